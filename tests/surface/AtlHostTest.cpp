// The system's own host window, and scripts: containers that are not ours.
#include "kit/AtlHost.h"

#include "SurfaceTest.h"
#include "kit/Canvas.h"
#include "kit/Painter.h"
#include "kit/Pump.h"

namespace quillet::hosting {
namespace {

class SystemHost : public kit::ControlTest {
protected:
    kit::HostWindow parent{100, 100, 300, 200};

    static HWND windowOf(IUnknown* control)
    {
        HWND window = nullptr;
        auto const face = query<IOleWindow>(control);
        if (face)
            face->GetWindow(&window);
        return window;
    }
};

TEST_F(SystemHost, showsTheControlAndPaintsIt)
{
    kit::AtlHost host(parent.handle(), {10, 10, 130, 50});
    auto object = library().create(kQvFlatCommandClass);
    ASSERT_EQ(query<IPersistStreamInit>(object.get())->InitNew(), S_OK);
    ASSERT_EQ(host.attach(object.get()), S_OK);
    auto const button = query<_qvFlatCommand>(object.get());
    ASSERT_TRUE(button);
    EXPECT_EQ(button->put_BackColor(RGB(9, 99, 199)), S_OK);
    kit::pumpPending();
    HWND const window = windowOf(object.get());
    ASSERT_TRUE(::IsWindowVisible(window));
    EXPECT_TRUE(::IsChild(parent.handle(), window));
    RECT client{};
    ::GetClientRect(window, &client);
    EXPECT_EQ(client.right, 120);
    EXPECT_EQ(client.bottom, 40);
    kit::Canvas shown(120, 40);
    kit::readWindow(window, shown);
    EXPECT_EQ(shown.at(60, 20), RGB(9, 99, 199));
    EXPECT_EQ(shown.at(0, 0), ::GetSysColor(COLOR_3DDKSHADOW));
    host.destroy();
    EXPECT_FALSE(::IsWindow(window) && ::IsWindowVisible(window));
}

TEST_F(SystemHost, movesTheControlWithItself)
{
    kit::AtlHost host(parent.handle(), {10, 10, 130, 50});
    auto const object = library().create(kQvFlatCommandClass);
    ASSERT_EQ(host.attach(object.get()), S_OK);
    ::SetWindowPos(host.window(), nullptr, 0, 0, 200, 90, SWP_NOZORDER | SWP_NOMOVE);
    kit::pumpPending();
    RECT client{};
    ::GetClientRect(windowOf(object.get()), &client);
    EXPECT_EQ(client.right, 200);
    EXPECT_EQ(client.bottom, 90);
    host.destroy();
}

TEST_F(SystemHost, raisesEventsToo)
{
    kit::AtlHost host(parent.handle(), {10, 10, 130, 50});
    auto const object = library().create(kQvFlatCommandClass);
    ASSERT_EQ(host.attach(object.get()), S_OK);
    auto const events = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    {
        kit::Connection const joined(object.get(), kQvFlatCommandEvents, events->unknown());
        EXPECT_EQ(query<_qvFlatCommand>(object.get())->Refresh(), S_OK);
        EXPECT_EQ(events->count(kPaint), 1) << "a host without ambient properties counts as running";
    }
    host.destroy();
}

} // namespace
} // namespace quillet::hosting
