// Window services of every control: its window's messages seen first, and the thread's shared tooltip.
#pragma once

#include "surface/faces/Face.h"
#include "surface/window/WindowMessages.h"

#include <windows.h>

#include <string>

namespace quillet {

/// A control's share of the window services. A control owns one, tells it once which window is its tool's
/// (its own or an inner one), and hands its published WindowProc on to it.
class ToolTipUser final : public Face<WindowMessages> {
public:
    using Face::Face;

    /// Called when the saved properties have been read. Counts the control as a user; at run time makes the
    /// thread's tooltip window unless it was ever made, subclasses the window and registers it as a tool; a
    /// window that is not made yet (null) as soon as it is. Overflow when the users leave 32 bits.
    void CreateToolTip(HWND window);
    /// The tool's window was made, or made anew.
    void windowMade(HWND window) noexcept;
    /// Called when the control ends. The last user takes the tooltip window along; it is never made again.
    void Terminate();

    /// Replaces the window's procedure by SubclassWndProc. A refusal is silent: no tooltips then.
    void Subclass(HWND window) noexcept;
    /// Puts the previous procedure back.
    void Unsubclass() noexcept;

    /// What SubclassWndProc does for a control: repaints on focus changes, relays the mouse to the tooltip,
    /// answers its question for text, and always passes the message on. Answers what the previous procedure
    /// answered.
    LRESULT handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
    /// The same with a published member's arguments: 32 bits of a handle are significant on every Windows.
    LONG WindowProc(LONG window, LONG message, LONG wParam, LONG lParam) noexcept;

    /// Whether the tool's window is subclassed, or will be as soon as it is there.
    bool isRunning() const noexcept { return m_running; }

private:
    static void AddTool(HWND toolTip, HWND window) noexcept;
    void removeTool(HWND toolTip) const noexcept;
    void answerText(LPARAM request) noexcept;

    bool m_counted = false;
    bool m_running = false;       ///< has a tooltip, or will have it with its window
    WNDPROC m_previous = nullptr; ///< null while no window is subclassed
    HWND m_subclassed = nullptr;
    std::string m_ansiText; ///< what the tooltip window was last handed: it reads it after the answer
};

/// The procedure of subclassed windows: finds the control from the window and hands it the message. Answers
/// 0, and passes nothing on, where there is no control.
LRESULT CALLBACK SubclassWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

} // namespace quillet
