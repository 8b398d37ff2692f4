// Tooltips and subclassing, which are the inner window's business.
#include "Box.h"
#include "kit/UiThread.h"
#include "winsvc/ToolTips.h"

#include <commctrl.h>

namespace quillet::box {
namespace {

using winsvc::theToolTipWindow;
using winsvc::ToolTipWatch;
using winsvc::toolTipWindows;

class ToolTip : public EachBoxTest {
protected:
    /// A box on a thread where no tooltip window was ever made.
    void onNewThread(std::function<void(Box&)> const& body) const
    {
        kit::onNewThread([&] {
            kit::FakeForm own;
            Box box(kind(), library(), own);
            body(box);
        });
    }
};

TEST_P(ToolTip, isOfTheInnerWindow)
{
    onNewThread([](Box& box) {
        ToolTipWatch watch;
        box.start();
        ASSERT_GE(watch.messages.size(), 3U);
        EXPECT_EQ(watch.messages[0].message, static_cast<UINT>(TTM_ACTIVATE));
        EXPECT_EQ(watch.messages[1].message, static_cast<UINT>(TTM_ADDTOOLA));
        EXPECT_EQ(watch.messages[1].tool.hwnd, box.inner());
        EXPECT_EQ(watch.messages[1].tool.uId, reinterpret_cast<UINT_PTR>(box.inner()));
        EXPECT_EQ(watch.messages[2].lParam, reinterpret_cast<LPARAM>(box.inner()));
    });
}

TEST_P(ToolTip, seesTheMouseOfTheInnerWindow)
{
    onNewThread([](Box& box) {
        box.start();
        ToolTipWatch watch;
        for (UINT const message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP,
                                   WM_MBUTTONDOWN, WM_MBUTTONUP, WM_LBUTTONDBLCLK})
            box.send(message, kInside);
        auto const relayed = watch.relayed();
        EXPECT_THAT(relayed,
                    testing::IsSupersetOf({WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN,
                                           WM_RBUTTONUP, WM_MBUTTONDOWN, WM_MBUTTONUP}));
        EXPECT_THAT(relayed, testing::Not(testing::Contains(static_cast<UINT>(WM_LBUTTONDBLCLK))));
    });
}

TEST_P(ToolTip, textIsTheExtendersOfNow)
{
    onNewThread([](Box& box) {
        box.start();
        box.extender().offer(L"ToolTipText", Variant::ofString(L"Choose me"));
        NMTTDISPINFOA request = {};
        request.hdr.hwndFrom = theToolTipWindow();
        request.hdr.code = static_cast<UINT>(-520);
        ::SendMessageA(box.inner(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&request));
        EXPECT_STREQ(request.lpszText, "Choose me");
    });
}

TEST_P(ToolTip, isMissingWhereNothingWasLoaded)
{
    onNewThread([](Box& box) {
        box.startNew();
        EXPECT_THAT(toolTipWindows(), IsEmpty());
        EXPECT_EQ(::GetWindowLongPtrA(box.inner(), GWLP_USERDATA), 0);
    });
}

TEST_P(ToolTip, windowIsSharedAndGoesWithTheLastOne)
{
    kit::onNewThread([this] {
        kit::FakeForm own;
        auto first = std::make_unique<Box>(kind(), library(), own);
        auto second =
            std::make_unique<Box>(&kind() == &kOption ? kCheck : kOption, library(), own, kPlace, L"Other");
        first->start();
        second->start();
        EXPECT_NE(theToolTipWindow(), nullptr);
        first.reset();
        EXPECT_NE(theToolTipWindow(), nullptr);
        second.reset();
        EXPECT_THAT(toolTipWindows(), IsEmpty());
    });
}

/// Stands before the button's own procedure and behind the control's: looks at the picture as it finds it.
struct FocusLook {
    static constexpr POINT kAt{110, 3};
    static COLORREF s_seen;
    static WNDPROC s_button;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
            WindowDc const dc(window);
            s_seen = ::GetPixel(dc.get(), kAt.x, kAt.y);
        }
        return ::CallWindowProcW(s_button, window, message, wParam, lParam);
    }
};
COLORREF FocusLook::s_seen = CLR_INVALID;
WNDPROC FocusLook::s_button = nullptr;

TEST_P(ToolTip, focusMessagesPaintBeforeTheButtonSeesThem)
{
    Box box(kind(), library(), form);
    box.hosted().setSite();
    FocusLook::s_button = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(box.hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&FocusLook::procedure)));
    box.start();
    for (long const message : {WM_SETFOCUS, WM_KILLFOCUS}) {
        ::SetPixelV(WindowDc(box.inner()).get(), FocusLook::kAt.x, FocusLook::kAt.y, RGB(255, 0, 255));
        FocusLook::s_seen = CLR_INVALID;
        std::vector<Variant> const told = {Variant::ofLong(HandleToLong(box.inner())),
                                           Variant::ofLong(message), Variant::ofLong(0), Variant::ofLong(0)};
        EXPECT_EQ(kit::callByName(box.dispatch(), L"WindowProc", told).result, S_OK);
        EXPECT_EQ(FocusLook::s_seen, ::GetSysColor(COLOR_BTNFACE)) << message;
    }
}

TEST_P(ToolTip, endsWithTheControl)
{
    Box box(kind(), library(), form);
    box.start();
    EXPECT_NE(::GetWindowLongPtrA(box.inner(), GWLP_USERDATA), 0);
    box.remove();
}

QV_EACH_BOX(ToolTip);

} // namespace
} // namespace quillet::box
