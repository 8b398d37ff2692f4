// Option buttons against the system's own: a paint of the same picture, the hot look, one choice of many.
#include "base/Handles.h"
#include "base/RunTimeError.h"
#include "bench/Container.h"
#include "bench/Rounds.h"
#include "kit/Canvas.h"
#include "kit/HostWindow.h"
#include "kit/Input.h"
#include "kit/Pump.h"
#include "kit/Usage.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <windows.h>

#include <memory>
#include <vector>

namespace quillet::bench {

namespace {

/// Painted off screen with bare calls, its hover followed by capture. It knows beforehand what a control
/// finds out: its size, its font, where its caption stands, and what its circle looks like.
class BareOption {
public:
    /// The picture has the circle in its left 13 columns.
    BareOption(HWND parent, RECT const& place, HFONT font, kit::Canvas const& picture);
    BareOption(BareOption const&) = delete;
    BareOption& operator=(BareOption const&) = delete;

    HWND window() const noexcept { return m_window.get(); }
    void setColours(COLORREF fore, COLORREF hot) noexcept { m_fore = fore, m_hotFore = hot; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void follow();
    void paint() const;

    SIZE m_size;
    HFONT m_font;
    kit::Canvas const& m_picture;
    RECT m_text{};
    COLORREF m_fore = 0;
    COLORREF m_hotFore = 0;
    bool m_hot = false;
    WNDPROC m_system = nullptr;
    UniqueWindow m_window;
};

constexpr int kGlyph = 13;
constexpr int kTextLeft = 17;
constexpr UINT kFormat = DT_LEFT | DT_TOP | DT_SINGLELINE | DT_NOCLIP;

BareOption::BareOption(HWND parent, RECT const& place, HFONT font, kit::Canvas const& picture)
    : m_size{place.right - place.left, place.bottom - place.top}, m_font(font), m_picture(picture),
      m_window(::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON, place.left,
                                 place.top, m_size.cx, m_size.cy, parent, nullptr, nullptr, nullptr))
{
    {
        WindowDc const dc(m_window.get());
        SelectScope const selected(dc.get(), font);
        ::DrawTextW(dc.get(), kCaption, -1, &m_text, kFormat | DT_CALCRECT);
    }
    ::OffsetRect(&m_text, kTextLeft, (m_size.cy - m_text.bottom) / 2);
    ::SetWindowLongPtrW(m_window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_system = reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(
        m_window.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&BareOption::procedure)));
}

LRESULT CALLBACK BareOption::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const self = reinterpret_cast<BareOption*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_PAINT) {
        self->paint();
        return 0;
    }
    if (message == WM_ERASEBKGND)
        return 1;
    if (message == WM_MOUSEMOVE)
        self->follow();
    return ::CallWindowProcW(self->m_system, window, message, wParam, lParam);
}

void BareOption::follow()
{
    POINT cursor{};
    ::GetCursorPos(&cursor);
    bool const over = ::WindowFromPoint(cursor) == m_window.get();
    if (over == m_hot)
        return;
    m_hot = over;
    if (over)
        ::SetCapture(m_window.get());
    else
        ::ReleaseCapture();
    ::RedrawWindow(m_window.get(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void BareOption::paint() const
{
    PAINTSTRUCT region;
    HDC const target = ::BeginPaint(m_window.get(), &region);
    {
        UniqueMemoryDc const dc(::CreateCompatibleDC(target));
        UniqueBitmap const bitmap(::CreateCompatibleBitmap(target, m_size.cx, m_size.cy));
        SelectScope const selectedBitmap(dc.get(), bitmap.get());
        SelectScope const selectedFont(dc.get(), m_font);
        RECT const all = {0, 0, m_size.cx, m_size.cy};
        ::SetBkColor(dc.get(), ::GetSysColor(COLOR_BTNFACE));
        ::ExtTextOutW(dc.get(), 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
        ::BitBlt(dc.get(), 0, 0, kGlyph, m_size.cy, m_picture.dc(), 0, 0, SRCCOPY);
        ::SetTextColor(dc.get(), m_hot ? m_hotFore : m_fore);
        ::SetBkMode(dc.get(), TRANSPARENT);
        RECT text = m_text;
        ::DrawTextW(dc.get(), kCaption, -1, &text, kFormat);
        ::BitBlt(target, 0, 0, m_size.cx, m_size.cy, dc.get(), 0, 0, SRCCOPY);
    }
    ::EndPaint(m_window.get(), &region);
}

constexpr SIZE kSize{120, 20};
constexpr RECT kOurs{20, 20, 20 + kSize.cx, 20 + kSize.cy};
constexpr RECT kTheirs{20, 60, 20 + kSize.cx, 60 + kSize.cy};
constexpr COLORREF kHot = RGB(200, 0, 0);

HWND windowOf(_qvFlatOption& option)
{
    LONG window = 0;
    check(option.get_hwnd(&window));
    return static_cast<HWND>(LongToHandle(window));
}

/// A flat option button and a bare one of the same look in one window.
struct Pair {
    explicit Pair(kit::Library const& library) : factory(library.factory(kQvFlatOptionClass))
    {
        kit::pumpPending();
        kit::readWindow(window, picture);
        bare = std::make_unique<BareOption>(host.handle(), kTheirs, fontOf(*option.get()), picture);
        bare->setColours(::GetSysColor(COLOR_BTNTEXT), kHot);
        kit::pumpPending();
    }

    void requireSamePicture(char const* look) const
    {
        kit::Canvas expected(kSize.cx, kSize.cy);
        kit::Canvas actual(kSize.cx, kSize.cy);
        kit::readWindow(bare->window(), expected);
        kit::readWindow(window, actual);
        std::string const different = kit::differences(expected, actual);
        require(different.empty(), (std::string(look) + ": the pictures differ\n" + different).c_str());
    }

    kit::HostWindow host{40, 40, 200, 120};
    Frame frame{host.handle()};
    SavedButton saved;
    ComPtr<IClassFactory> factory;
    Hosted hosted{deref(factory.get()), saved, frame, host.handle(), kOurs};
    ComPtr<_qvFlatOption> option{hosted.as<_qvFlatOption>()};
    HWND window = windowOf(*option.get());
    kit::Canvas picture{kSize.cx, kSize.cy};
    std::unique_ptr<BareOption> bare;
};

void repaint(HWND window) { ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

/// The cursor goes over the window and off it again; the window is told as the system tells it.
void hover(HWND window)
{
    POINT at{kSize.cx / 2, kSize.cy / 2};
    ::ClientToScreen(window, &at);
    ::SetCursorPos(at.x, at.y);
    ::SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(kSize.cx / 2, kSize.cy / 2));
    ::SetCursorPos(at.x, at.y + 400);
    ::SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(kSize.cx / 2, 400));
}

Rows measureOne(kit::Library const& library, Effort effort)
{
    Pair pair(library);
    require(kit::moveCursorAway(), "the cursor does not move");
    Rows rows;
    auto const paint = [&](char const* what) {
        rows.push_back(
            {what, compare(
                       effort, 10, [&] { repaint(pair.window); }, [&] { repaint(pair.bare->window()); })});
        pair.requireSamePicture("option button");
    };
    paint("an option button painted, equal colours"); // each paint ends with a flood fill
    check(pair.option->put_HotForeColor(kHot));
    paint("the same, its own hot colour");
    rows.push_back({"hover over an option button and off it",
                    compare(
                        effort, 4, [&] { hover(pair.window); }, [&] { hover(pair.bare->window()); },
                        &kit::pumpPending)});
    pair.requireSamePicture("option button after the hover");
    require(kit::moveCursorAway(), "the cursor does not move");
    return rows;
}

/// So many options in one container, against as many of the system's in one group.
class Groups {
public:
    Groups(kit::Library const& library, int count)
        : m_factory(library.factory(kQvFlatOptionClass)), m_count(count)
    {
        for (int i = 0; i < count; ++i) {
            RECT const place = {0, i % 20 * 20, 100, i % 20 * 20 + 20};
            m_ours.push_back(
                std::make_unique<Hosted>(deref(m_factory.get()), m_saved, m_frame, m_window.handle(), place));
            m_siblings.add(m_ours.back()->as<IUnknown>());
            m_theirs.emplace_back(::CreateWindowExW(
                0, L"BUTTON", kCaption, WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON, 120, place.top, 100, 20,
                m_window.handle(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(1 + i)), nullptr, nullptr));
        }
        kit::pumpPending();
    }

    /// The first and the last in turns.
    void chooseOurs()
    {
        check(m_ours[static_cast<size_t>(next())]->as<_qvFlatOption>()->put_Value(triChecked));
    }
    void chooseTheirs() { ::CheckRadioButton(m_window.handle(), 1, m_count, 1 + next()); }

private:
    int next()
    {
        m_last = !m_last;
        return m_last ? m_count - 1 : 0;
    }

    kit::HostWindow m_window{40, 40, 240, 420};
    Siblings m_siblings;
    Frame m_frame{m_window.handle(), &m_siblings};
    SavedButton m_saved;
    ComPtr<IClassFactory> m_factory;
    int m_count;
    bool m_last = false;
    std::vector<std::unique_ptr<Hosted>> m_ours;
    std::vector<UniqueWindow> m_theirs;
};

} // namespace

/// Each shading asks for the window's device context and never gives it back.
Rows measureFills(kit::Library const& library, Effort effort)
{
    int const fills = effort == Effort::Full ? 10'000 : 1'000;
    Pair pair(library);
    check(pair.option->put_Enabled(VARIANT_FALSE));
    auto const shade = [&] { ::RedrawWindow(pair.window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); };
    for (int i = 0; i < 100; ++i) // until the system's caches have what they keep
        shade();
    int const before = kit::Usage::now().gdi;
    for (int i = 0; i < fills; ++i)
        shade();
    double const growth = kit::Usage::now().gdi - before;
    return {{"growth of GDI places over " + std::to_string(fills) + " shaded glyphs",
             {growth, 0, kNone},
             Unit::Count}};
}

Rows measureOptions(kit::Library const& library, Effort effort)
{
    Rows rows = measureOne(library, effort);
    std::vector<int> const full = {10, 100, 1000};
    std::vector<int> const smoke = {10};
    for (int const options : effort == Effort::Full ? full : smoke) {
        Groups groups(library, options);
        rows.push_back({"choosing one of " + std::to_string(options) + " options",
                        compare(
                            effort, 2, [&] { groups.chooseOurs(); }, [&] { groups.chooseTheirs(); },
                            &kit::pumpPending)});
    }
    return rows;
}

} // namespace quillet::bench
