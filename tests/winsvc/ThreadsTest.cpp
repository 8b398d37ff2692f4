// Two user-interface threads at the same time: each has its tooltip window and its users.
#include "ServiceTest.h"

namespace quillet::winsvc {
namespace {

/// A running button of one thread, used on that thread alone.
struct OnThread {
    std::unique_ptr<kit::FakeForm> form;
    std::unique_ptr<RunningButton> button;
    HWND toolTip = nullptr;

    void start(kit::Library const& library)
    {
        form = std::make_unique<kit::FakeForm>();
        button = std::make_unique<RunningButton>(library, *form);
        button->start();
        toolTip = theToolTipWindow();
    }
    void end()
    {
        button.reset();
        form.reset();
    }
};

class TwoThreads : public ServiceTest {};

TEST_F(TwoThreads, haveAToolTipWindowEachAndOneEndsWithoutTheOther)
{
    OnThread first;
    OnThread second;
    kit::UiThread one;
    kit::UiThread two;
    one.run([&] { first.start(library()); });
    two.run([&] { second.start(library()); });
    EXPECT_NE(first.toolTip, second.toolTip);
    EXPECT_NE(::GetWindowThreadProcessId(first.toolTip, nullptr),
              ::GetWindowThreadProcessId(second.toolTip, nullptr));
    one.run([&] { first.end(); });
    EXPECT_FALSE(::IsWindow(first.toolTip));
    EXPECT_TRUE(::IsWindow(second.toolTip));
    two.run([&] {
        ToolTipWatch const watch;
        ::SendMessageA(second.button->window(), WM_MOUSEMOVE, 0, 0);
        EXPECT_THAT(watch.relayed(), ElementsAre(WM_MOUSEMOVE));
        second.end();
    });
    EXPECT_FALSE(::IsWindow(second.toolTip));
}

TEST_F(TwoThreads, answerTheirOwnToolTipWindowOnly)
{
    OnThread first;
    OnThread second;
    kit::UiThread one;
    kit::UiThread two;
    one.run([&] { first.start(library()); });
    two.run([&] { second.start(library()); });
    one.run([&] {
        first.button->extender().offer(L"ToolTipText", Variant::ofString(L"mine"));
        char untouched[] = "untouched";
        for (HWND const from : {first.toolTip, second.toolTip}) {
            NMTTDISPINFOA request{};
            request.hdr = {from, 0, static_cast<UINT>(-520)};
            request.lpszText = untouched;
            ::SendMessageA(first.button->window(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&request));
            EXPECT_STREQ(request.lpszText, from == first.toolTip ? "mine" : "untouched");
        }
        first.end();
    });
    two.run([&] { second.end(); });
}

TEST_F(TwoThreads, keepTheCreatedFlagApart)
{
    OnThread first;
    kit::UiThread one;
    one.run([&] {
        first.start(library());
        first.end();
        kit::FakeForm form;
        RunningButton again(library(), form);
        again.start();
        EXPECT_TRUE(toolTipWindows().empty());
    });
    OnThread second;
    kit::UiThread two;
    two.run([&] {
        second.start(library());
        EXPECT_NE(second.toolTip, nullptr) << "this thread never had one";
        second.end();
    });
}

} // namespace
} // namespace quillet::winsvc
