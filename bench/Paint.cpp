// One paint of a flat command button against the bare GDI calls that make the same picture.
#include "bench/Rounds.h"
#include "bench/ShownButton.h"

#include <functional>
#include <utility>

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

Rows measureLook(ShownButton& button, BarePainter const& bare, LookRow const& row, Effort effort)
{
    button.enter(row.look);
    button.control().Refresh(); // decides the look, which DrawButton then keeps
    BareLook const look = button.bareLook(row.look);
    auto const ours = [&] { button.control().DrawButton(); };
    auto const floor = [&] { bare.paint(look); };
    auto const straight = [&] { bare.paintStraight(look); };

    kit::Canvas actual(ShownButton::kSize.cx, ShownButton::kSize.cy);
    kit::Canvas expected(ShownButton::kSize.cx, ShownButton::kSize.cy);
    painted(button, actual, ours);
    for (auto const& body : {std::function<void()>(floor), std::function<void()>(straight)}) {
        std::string const different = differences(painted(button, expected, body), actual);
        require(different.empty(),
                (std::string(row.name) + " look: the pictures differ\n" + different).c_str());
    }

    constexpr int kCalls = 10;
    Rows const rows = {
        {std::string("one paint, ") + row.name + " look", compare(effort, kCalls, ours, floor)},
        {"the same, the floor straight on the window", compare(effort, kCalls, ours, straight)}};
    button.leave(row.look);
    return rows;
}

} // namespace

Rows measurePaint(kit::Library const& library, Effort effort)
{
    ShownButton button(library);
    BarePainter const bare = button.barePainter();
    Rows rows;
    for (LookRow const& look : kLooks)
        for (Row& row : measureLook(button, bare, look, effort))
            rows.push_back(std::move(row));
    return rows;
}

} // namespace quillet::bench
