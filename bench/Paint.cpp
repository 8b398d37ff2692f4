// One paint of a flat command button against the bare GDI calls that make the same picture.
#include "base/RunTimeError.h"
#include "bench/BarePainter.h"
#include "bench/Container.h"
#include "bench/Rounds.h"
#include "kit/Canvas.h"
#include "kit/HostWindow.h"
#include "kit/Input.h"
#include "kit/Painter.h"
#include "kit/Pump.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <array>

namespace quillet::bench {

namespace {

constexpr RECT kPlace{20, 20, 140, 52};
constexpr SIZE kSize{kPlace.right - kPlace.left, kPlace.bottom - kPlace.top};

/// A button in a visible window, brought into each look as a user brings it there.
class Bench {
public:
    explicit Bench(kit::Library const& library)
        : m_factory(library.factory(kQvFlatCommandClass)),
          m_hosted(deref(m_factory.get()), m_saved, m_frame, m_window.handle(), kPlace),
          m_button(m_hosted.as<_qvFlatCommand>())
    {
        ComPtr<IOleWindow> const window = m_hosted.as<IOleWindow>();
        check(deref(window.get()).GetWindow(&m_buttonWindow));
        LONG dc = 0;
        check(m_button->get_hdc(&dc));
        m_dc = reinterpret_cast<HDC>(static_cast<LONG_PTR>(dc));
    }

    _qvFlatCommand& button() const noexcept { return *m_button.get(); }
    HDC dc() const noexcept { return m_dc; }

    bool isFocused() const { return ::GetFocus() == m_buttonWindow; }

    HFONT font() const
    {
        ComPtr<IFontDisp> dispatch;
        check(m_button->get_Font(dispatch.put()));
        HFONT handle = nullptr;
        check(dispatch.as<IFont>(IID_IFont)->get_hFont(&handle));
        return handle;
    }

    void normal() { require(kit::moveCursorAway(), "the cursor does not move"); }
    void hot()
    {
        require(kit::moveCursorTo(m_buttonWindow, kSize.cx / 2, kSize.cy / 2), "the cursor does not move");
    }
    void press()
    {
        hot();
        kit::press(kit::MouseButton::Left);
    }
    void release()
    {
        kit::release(kit::MouseButton::Left);
        kit::pumpPending();
        require(kit::focus(m_window.handle()), "the focus does not move");
    }
    void disable() { check(m_button->put_Enabled(VARIANT_FALSE)); }

    void show(kit::Canvas& canvas) const { kit::readWindow(m_buttonWindow, canvas); }

private:
    kit::HostWindow m_window{40, 40, 200, 100};
    Frame m_frame{m_window.handle()};
    SavedButton m_saved;
    ComPtr<IClassFactory> m_factory;
    Hosted m_hosted;
    ComPtr<_qvFlatCommand> m_button;
    HWND m_buttonWindow = nullptr;
    HDC m_dc = nullptr;
};

using GetColor = HRESULT (STDMETHODCALLTYPE _qvFlatCommand::*)(OLE_COLOR*);

/// One look: how the button gets there, and which of its properties make it.
struct Look {
    char const* name;
    void (Bench::*enter)();
    void (Bench::*leave)();
    GetColor fore;
    GetColor back;
    GetColor border;
};

using B = _qvFlatCommand;
constexpr Look kLooks[] = {
    {"normal", &Bench::normal, nullptr, &B::get_ForeColor, &B::get_BackColor, &B::get_BorderColor},
    {"hot", &Bench::hot, &Bench::normal, &B::get_HotForeColor, &B::get_HotBackColor, &B::get_HotBorderColor},
    {"pressed", &Bench::press, &Bench::release, &B::get_PressedForeColor, &B::get_PressedBackColor,
     &B::get_PressedBorderColor},
    {"disabled", &Bench::disable, nullptr, &B::get_DisabledForeColor, &B::get_BackColor, &B::get_BorderColor},
};

COLORREF colorOf(_qvFlatCommand& button, GetColor get)
{
    OLE_COLOR color = 0;
    check((button.*get)(&color));
    COLORREF translated = 0;
    check(::OleTranslateColor(color, nullptr, &translated));
    return translated;
}

/// What the button shows, painted by itself or by body.
template <class Body> kit::Canvas& painted(Bench const& bench, kit::Canvas& canvas, Body&& body)
{
    RECT const all{0, 0, kSize.cx, kSize.cy};
    ::FillRect(bench.dc(), &all, static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));
    body();
    bench.show(canvas);
    return canvas;
}

Row measureLook(Bench& bench, BarePainter const& bare, Look const& look, Effort effort)
{
    (bench.*look.enter)();
    kit::pumpPending();
    check(bench.button().Refresh()); // decides the look, which DrawButton then keeps
    BareLook const colors{colorOf(bench.button(), look.fore), colorOf(bench.button(), look.back),
                          colorOf(bench.button(), look.border), bench.isFocused()};
    auto const ours = [&] { bench.button().DrawButton(); };
    auto const floor = [&] { bare.paint(colors); };

    kit::Canvas actual(kSize.cx, kSize.cy);
    kit::Canvas expected(kSize.cx, kSize.cy);
    std::string const different = differences(painted(bench, expected, floor), painted(bench, actual, ours));
    require(different.empty(), (std::string(look.name) + " look: the pictures differ\n" + different).c_str());

    bool const full = effort == Effort::Full;
    Comparison const comparison = compare(full ? 1001 : 3, full ? 10 : 5, ours, floor);
    if (look.leave)
        (bench.*look.leave)();
    kit::pumpPending();
    return rowOf(std::string("one paint, ") + look.name + " look", comparison, "≤ 1.05");
}

} // namespace

Rows measurePaint(kit::Library const& library, Effort effort)
{
    Bench bench(library);
    kit::pumpPending();
    BarePainter const bare(bench.dc(), kSize, bench.font(), "Save changes");
    Rows rows;
    for (Look const& look : kLooks)
        rows.push_back(measureLook(bench, bare, look, effort));
    return rows;
}

} // namespace quillet::bench
