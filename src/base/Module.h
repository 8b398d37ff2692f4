// The component as Windows knows it: its instance handle, and the count that decides whether it may go.
#pragma once

#include <windows.h>

#include <string>

namespace quillet {

/// Windows' handle of the component's image; set once, when the process attaches.
HINSTANCE moduleInstance() noexcept;
void setModuleInstance(HINSTANCE instance) noexcept;

/// The component's file with its folder; empty where Windows does not tell it.
std::wstring modulePath();

/// Objects and locks alive, from every thread. The component may be unloaded at 0.
long liveObjects() noexcept;
void addLiveObject() noexcept;
void removeLiveObject() noexcept;

/// Counts its owner as alive. A member of every object that a host can hold.
class LiveObject {
public:
    LiveObject() noexcept { addLiveObject(); }
    ~LiveObject() { removeLiveObject(); }
    LiveObject(LiveObject const&) = delete;
    LiveObject& operator=(LiveObject const&) = delete;
};

} // namespace quillet
