// The hidden window that surfaces of a thread live under while no container shows them.
#include "surface/window/ParkingWindow.h"

#include "base/ComCall.h"
#include "base/Module.h"
#include "base/RunTimeError.h"
#include "surface/window/ThreadState.h"

#include <utility>

namespace quillet {

namespace {

/// The thread's window, made again when somebody destroyed it.
HWND madeParkingWindow(ThreadState& state)
{
    // A plain system class: the window does nothing but be a parent.
    if (!::IsWindow(state.parkingWindow))
        state.parkingWindow = ::CreateWindowExA(WS_EX_NOPARENTNOTIFY, "Static", nullptr, WS_POPUP, 0, 0, 0, 0,
                                                nullptr, nullptr, moduleInstance(), nullptr);
    if (!state.parkingWindow)
        throw lastError();
    return state.parkingWindow;
}

} // namespace

HWND enterParking()
{
    ThreadState& state = threadState();
    HWND const window = madeParkingWindow(state);
    ++state.surfaces;
    return window;
}

void leaveParking() noexcept
{
    ignoringErrors([] {
        ThreadState& state = threadState();
        if (--state.surfaces == 0)
            ::DestroyWindow(std::exchange(state.parkingWindow, nullptr));
    });
}

HWND parkingWindow() { return madeParkingWindow(threadState()); }

} // namespace quillet
