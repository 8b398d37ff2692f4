// The window inside: one of the system's button class, owned and covered by the control.
#include "Box.h"
#include "kit/Fonts.h"

#include <algorithm>

namespace quillet::box {
namespace {

class Inner : public StartedBoxTest {
protected:
    static BOOL CALLBACK countOne(HWND, LPARAM count) { return ++*reinterpret_cast<int*>(count); }
    static int allWindows()
    {
        int count = 0;
        ::EnumChildWindows(::GetDesktopWindow(), countOne, reinterpret_cast<LPARAM>(&count));
        return count;
    }
    /// How many rows of the caption show the colour below, and the first and last of them; -1 for none.
    struct Rows {
        int count = 0;
        int first = -1;
        int last = -1;
    };
    static constexpr COLORREF kInk = RGB(1, 2, 3);
    Rows captionRows() const
    {
        kit::Canvas const shown(box.inner());
        Rows rows;
        for (int y = 0; y < shown.height(); ++y) {
            bool found = false;
            for (int x = 17; x < shown.width(); ++x)
                found = found || shown.at(x, y) == kInk;
            if (!found)
                continue;
            ++rows.count;
            rows.first = rows.first < 0 ? y : rows.first;
            rows.last = y;
        }
        return rows;
    }
    std::string differencesTo(kit::Canvas const& expected) const
    {
        return kit::differences(expected, kit::Canvas(box.inner()));
    }
};

TEST_P(Inner, isASystemButtonOfItsKind)
{
    LONG const style = ::GetWindowLongW(box.inner(), GWL_STYLE);
    EXPECT_EQ(style & BS_TYPEMASK, isOption() ? BS_RADIOBUTTON : BS_3STATE);
    EXPECT_TRUE(style & WS_CHILD);
    EXPECT_TRUE(style & WS_VISIBLE);
    for (HWND const window : {box.inner(), box.outer()}) { // a dialog may look at either
        auto const code = ::SendMessageW(window, WM_GETDLGCODE, 0, 0);
        EXPECT_EQ(code & DLGC_BUTTON, DLGC_BUTTON);
        EXPECT_EQ(code & DLGC_RADIOBUTTON, isOption() ? DLGC_RADIOBUTTON : 0);
        EXPECT_EQ(code & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON), 0);
    }
}

TEST_P(Inner, isOfAClassThatGoesWithTheComponent)
{
    std::wstring const copy = kit::Library::folder() + L"second.ocx";
    ASSERT_TRUE(::CopyFileW(kit::Library::path().c_str(), copy.c_str(), FALSE));
    std::vector<std::wstring> names;
    HMODULE module = nullptr;
    auto const isKnown = [&](std::wstring const& name) {
        WNDCLASSEXW known{};
        known.cbSize = sizeof known;
        return ::GetClassInfoExW(module, name.c_str(), &known) != FALSE;
    };
    {
        kit::Library const second(copy);
        module = second.module();
        Box other(kind(), second, form, kPlaceBelow, L"Other");
        other.start();
        for (HWND const window : {other.inner(), other.outer()}) {
            wchar_t name[64] = {};
            ::GetClassNameW(window, name, 64);
            EXPECT_TRUE(isKnown(name));
            names.emplace_back(name);
        }
    }
    EXPECT_EQ(::GetModuleHandleW(copy.c_str()), nullptr);
    for (std::wstring const& name : names)
        EXPECT_FALSE(isKnown(name)) << kit::narrow(name);
    ::DeleteFileW(copy.c_str());
}

TEST_P(Inner, saysItsStateAndItsTextByTheSystemsMessages)
{
    box.put(L"Caption", L"Said");
    wchar_t text[20] = {};
    ::GetWindowTextW(box.inner(), text, 20);
    EXPECT_STREQ(text, L"Said");
    EXPECT_EQ(::SendMessageW(box.inner(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    box.setValue(1);
    EXPECT_EQ(::SendMessageW(box.inner(), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_P(Inner, takesTextFromOutside)
{
    ::SetWindowTextW(box.inner(), L"&Told");
    EXPECT_EQ(box.caption(), L"&Told");
}

TEST_P(Inner, isMadeOnceWhoeverAsksFirst)
{
    Box other(kind(), library(), form, kPlaceBelow, L"Other");
    other.hosted().setSite();
    other.hosted().load(*newBag().get());
    HWND const early = other.hwnd(); // before any container shows it
    other.hosted().activate();
    EXPECT_EQ(other.hwnd(), early);
    HWND const first = ::GetWindow(other.outer(), GW_CHILD);
    EXPECT_EQ(first, early);
    EXPECT_EQ(::GetWindow(first, GW_HWNDNEXT), nullptr);
    EXPECT_NE(::GetWindowLongPtrA(early, GWLP_USERDATA), 0); // and has its tooltip
}

TEST_P(Inner, isNotMadeByLoading)
{
    Box other(kind(), library(), form, kPlaceBelow, L"Other");
    other.hosted().setSite();
    int const before = allWindows();
    other.hosted().load(*newBag({{L"Enabled", Variant::ofBool(false)}}).get());
    EXPECT_EQ(allWindows(), before);
}

TEST_P(Inner, ownsItsDeviceContext)
{
    HDC const first = ::GetDC(box.inner());
    HDC const second = ::GetDC(box.inner()); // as the fill does: without giving it back
    EXPECT_EQ(first, second);
}

TEST_P(Inner, coversTheControl)
{
    RECT inner;
    RECT outer;
    ::GetWindowRect(box.inner(), &inner);
    ::GetWindowRect(box.outer(), &outer);
    EXPECT_TRUE(::EqualRect(&inner, &outer));
}

TEST_P(Inner, keepsTheSystemFromDrawing)
{
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    kit::focus(edit.get());
    kit::pumpPending();
    kit::Canvas const before(box.inner());
    // Nobody paints between these messages and the look: what they draw by themselves would show.
    ::SendMessageW(box.inner(), BM_SETSTATE, TRUE, 0);
    ::SendMessageW(box.inner(), BM_SETSTATE, FALSE, 0);
    ::SendMessageW(box.inner(), WM_ENABLE, FALSE, 0);
    ::SendMessageW(box.inner(), WM_ENABLE, TRUE, 0);
    ::SendMessageW(box.inner(), BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_EQ(differencesTo(before), "");
    EXPECT_TRUE(::IsWindowVisible(box.inner()));
}

TEST_P(Inner, writesItsCaptionBesideTheGlyphInTheMiddle)
{
    COLORREF const face = RGB(250, 250, 200);
    COLORREF const fore = RGB(0, 0, 160);
    auto const font = kit::newFont(L"Tahoma", 9);
    box.setFont(font.get());
    box.put(L"Caption", L"Word");
    box.put(L"BackColor", face);
    box.put(L"ForeColor", fore);
    box.put(L"HotForeColor", fore);
    kit::Canvas shown(box.inner());
    shown.fill(0, 0, 13, 20, face); // the glyph has tests of its own
    kit::Canvas expected(120, 20, face);
    HFONT const handle = kit::handleOf(*font.get());
    SIZE const size = kit::textSize(handle, L"Word");
    kit::paintText(expected, {17, 0, 120, 20}, {17, (20 - size.cy) / 2}, L"Word", handle, fore, face);
    EXPECT_EQ(kit::differences(expected, shown), "");
}

TEST_P(Inner, movesItsCaptionWithItsTextItsFontAndItsSize)
{
    box.setColours(kInk, kInk);
    box.put(L"Caption", L"H");
    auto const small = captionRows();
    box.put(L"Caption", L"Hj");
    EXPECT_GT(captionRows().last, small.last); // the j goes down
    box.put(L"Caption", L"H");
    EXPECT_EQ(captionRows().first, small.first);
    EXPECT_EQ(captionRows().last, small.last);
    box.setFont(kit::newFont(L"Tahoma", 12).get());
    auto const large = captionRows();
    EXPECT_GT(large.last - large.first, small.last - small.first);
    box.hosted().place({20, 30, 140, 90});
    kit::pumpPending();
    if (large.first > 0) { // else the resolution is so high that the text did not fit
        EXPECT_EQ(captionRows().first, large.first + 20) << "40 pixels higher: in the middle again";
    }
}

TEST_P(Inner, wrapsALongCaption)
{
    box.hosted().place({20, 30, 140, 90});
    box.setColours(kInk, kInk);
    box.put(L"Caption", L"A caption that takes more than a line of so narrow a button");
    EXPECT_GT(captionRows().count, 18); // more than one line has
}

TEST_P(Inner, paintsIntoAnotherContextOnRequest)
{
    box.put(L"BackColor", RGB(250, 250, 200));
    kit::Canvas printed(120, 20);
    ::SendMessageW(box.inner(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(printed.dc()), PRF_CLIENT);
    EXPECT_EQ(differencesTo(printed), "");
    kit::Canvas drawn(120, 20);
    box.hosted().draw(drawn);
    EXPECT_EQ(differencesTo(drawn), "");
}

TEST_P(Inner, survivesTheLossOfItsWindow)
{
    box.put(L"Caption", L"Kept");
    box.setValue(1);
    ::DestroyWindow(box.inner());
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(box.caption(), L"Kept");
    HWND const made = box.hwnd(); // a new one
    EXPECT_TRUE(::IsWindow(made));
    EXPECT_EQ(::SendMessageW(made, BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_P(Inner, goesWithTheControl)
{
    HWND const inner = box.inner();
    box.remove();
    EXPECT_FALSE(::IsWindow(inner));
}

TEST_P(Inner, goesWithTheFormBeforeTheControl)
{
    ::DestroyWindow(form.window());
    EXPECT_FALSE(::IsWindow(box.inner()));
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_EQ(box.value(), 1);
}

QV_EACH_BOX(Inner);

} // namespace
} // namespace quillet::box
