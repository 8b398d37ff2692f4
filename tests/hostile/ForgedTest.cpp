// Messages that only the system sends, sent by somebody else.
#include "HostileTest.h"
#include "WindowWatch.h"
#include "kit/ByName.h"
#include "kit/Hosted.h"

namespace quillet::hostile {
namespace {

class HostileForgery : public HostileControlTest {
protected:
    kit::FakeForm form;
    kit::Hosted control{library(), kind().classId, form, kPlace};

    void TearDown() override
    {
        control.remove();
        HostileControlTest::TearDown();
    }
};
QV_ALL_CONTROLS(HostileForgery);

TEST_P(HostileForgery, ofAWindowsEndLeavesTheNextWindowAlone)
{
    control.start();
    HWND const first = surfaceIn(form.window());
    ASSERT_NE(first, nullptr);
    ::SendMessageA(first, WM_NCDESTROY, 0, 0);
    HWND const next = control.window();
    ASSERT_TRUE(::IsWindow(next));
    ASSERT_NE(next, first);
    ::DestroyWindow(first);
    EXPECT_EQ(control.window(), next) << "the first window's real end was taken for the next one's";
    control.remove();
    EXPECT_FALSE(::IsWindow(next));
    expectNothingLeft();
}

TEST_P(HostileForgery, ofAnInnerWindowsEndLeavesNothingThatFindsTheControl)
{
    control.start();
    HWND const inner = ::GetWindow(surfaceIn(form.window()), GW_CHILD);
    if (!inner)
        return; // a command button has none
    ::SendMessageA(inner, WM_NCDESTROY, 0, 0);
    ::SetParent(inner, form.window()); // it outlives the control there
    control.remove();
    for (UINT const message : {WM_PAINT, WM_LBUTTONDOWN, WM_KEYDOWN, WM_SETFOCUS})
        ::SendMessageA(inner, message, 0, 0);
    ::DestroyWindow(inner);
    expectNothingLeft();
}

} // namespace
} // namespace quillet::hostile
