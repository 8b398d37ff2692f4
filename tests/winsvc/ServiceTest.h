// What the tests of the window services from outside share.
#pragma once

#include "ToolTips.h"
#include "input/Button.h"
#include "kit/Input.h"
#include "kit/Pump.h"
#include "kit/UiThread.h"

#include <ole2.h>
#include <olectl.h>

namespace quillet::winsvc {

using input::FormButton;
using input::looksBag;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// Each test lives on a thread of its own: what the component keeps per thread is never reset.
class ServiceTest : public kit::ControlTest {
protected:
    static void onNewThread(std::function<void()> const& body) { kit::onNewThread(body); }
};

/// A button of a running form, at a place that depends on its number.
class RunningButton : public FormButton {
public:
    RunningButton(kit::Library const& library, kit::FakeForm& form, int number = 1)
        : FormButton(library, form, {20, 50 * number, 140, 50 * number + 40},
                     L"Button" + std::to_wstring(number))
    {}
    void startDesigned()
    {
        site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
        start();
    }
};

/// A form with a button that is not started yet.
class ButtonTest : public ServiceTest {
protected:
    kit::FakeForm form;
    RunningButton button{library(), form};
};

inline WNDPROC procedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(window, GWLP_WNDPROC));
}

inline HWND windowOf(FormButton const& button)
{
    HWND window = nullptr;
    button.as<IOleWindow>()->GetWindow(&window);
    return window;
}

} // namespace quillet::winsvc
