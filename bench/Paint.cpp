// One paint of a flat command button against the bare GDI calls that make the same picture.
#include "bench/Rounds.h"
#include "bench/ShownButton.h"

namespace quillet::bench {

namespace {

struct LookRow {
    Look look;
    char const* name;
};
constexpr LookRow kLooks[] = {
    {Look::Normal, "normal"}, {Look::Hot, "hot"}, {Look::Pressed, "pressed"}, {Look::Disabled, "disabled"}};

/// What the button shows, painted by body.
template <class Body> kit::Canvas& painted(ShownButton const& button, kit::Canvas& canvas, Body&& body)
{
    RECT const all{0, 0, ShownButton::kSize.cx, ShownButton::kSize.cy};
    ::FillRect(WindowDc(button.window()).get(), &all, static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));
    body();
    button.show(canvas);
    return canvas;
}

Row measureLook(ShownButton& button, BarePainter const& bare, LookRow const& row, Effort effort)
{
    button.enter(row.look);
    button.control().Refresh(); // decides the look, which DrawButton then keeps
    BareLook const look = button.bareLook(row.look);
    auto const ours = [&] { button.control().DrawButton(); };
    auto const floor = [&] { bare.paint(look); };

    kit::Canvas actual(ShownButton::kSize.cx, ShownButton::kSize.cy);
    kit::Canvas expected(ShownButton::kSize.cx, ShownButton::kSize.cy);
    std::string const different =
        differences(painted(button, expected, floor), painted(button, actual, ours));
    require(different.empty(), (std::string(row.name) + " look: the pictures differ\n" + different).c_str());

    bool const full = effort == Effort::Full;
    Comparison const comparison = compare(full ? 1001 : 3, full ? 10 : 5, ours, floor);
    button.leave(row.look);
    return rowOf(std::string("one paint, ") + row.name + " look", comparison, "≤ 1.05");
}

} // namespace

Rows measurePaint(kit::Library const& library, Effort effort)
{
    ShownButton button(library);
    BarePainter const bare = button.barePainter();
    Rows rows;
    for (LookRow const& row : kLooks)
        rows.push_back(measureLook(button, bare, row, effort));
    return rows;
}

} // namespace quillet::bench
