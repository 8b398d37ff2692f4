// What all command buttons do alike: follow the mouse, press, click, tell whether they are emphasised.
#pragma once

#include "controls/button/VisualState.h"
#include "surface/Surface.h"
#include "winsvc/modToolTip.h"

#include <windows.h>

#include <span>
#include <string_view>

namespace quillet {

class OffScreenDC;

/// The host's own command button.
inline constexpr IID kIntrinsicButton = {
    0x33AD4EF1, 0x6699, 0x11CF, {0xB7, 0x0C, 0x00, 0xAA, 0x00, 0x60, 0xD3, 0x93}};

/// OLEMISC flags of every command button.
inline constexpr DWORD kCommandButtonStatus = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                                              OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_RECOMPOSEONRESIZE |
                                              OLEMISC_CANTLINKINSIDE | OLEMISC_ACTSLIKEBUTTON;

/// The BorderStyle with a border.
inline constexpr long kFixedBorder = 1;

/// Whether a press or release of a mouse button is one that presses the control: of the left button. The
/// shift state is part of the test by a bitwise And, which every ordinary shift state passes.
bool isOwnPress(MouseArguments const& mouse) noexcept;

/// A control that a press of the left mouse button presses. A derived class paints it and follows the mouse.
class CommandButton : public Surface {
public:
    void onClick() override;
    void onDblClick() override;
    void onMouseDown(MouseArguments const& mouse) override;
    void onMouseUp(MouseArguments const& mouse) override;
    void onKeyPress(short keyAscii) override;
    void onAccessKeyPress(short keyAscii) override;
    void onShow() override;
    void onTerminate() override { m_toolTip.Terminate(); }
    void onWindowMade() override;
    bool watchesFocus() const noexcept override { return !m_toolTip.isRunning(); }
    void onCaptureLost() override;
    void onMouseLeft() override;
    void onFontChanged() override { repaint(); }
    AccessibleLook accessibleLook() const override;
    IUnknown* windowMessages() noexcept override { return &m_toolTip; }

protected:
    using Surface::Surface;

    /// Whether the button reacts to the user. Never in design mode.
    virtual bool reacts() const noexcept { return userMode(); }
    virtual std::wstring_view caption() const noexcept = 0;
    /// The left mouse button came up. A repaint follows.
    virtual void onReleased(MouseArguments const&) {}

    // What the published members hwnd, hdc and WindowProc answer.
    HRESULT answerHwnd(LONG* value);
    HRESULT answerHdc(LONG* value);
    HRESULT answerWindowProc(LONG window, LONG message, LONG wParam, LONG lParam, LONG* result);

    /// Whether the cursor is over the button's own window.
    bool isOver();
    /// Takes the capture and raises MouseEnter, or gives it up and raises MouseExit. Whether either was
    /// raised.
    bool enterOrExit(bool over);
    void setPressed(bool pressed);

    VisualState state() const noexcept { return m_state; }
    /// Decides the look. A button that is disabled or not under the cursor is not pressed any more.
    void decideState(bool reacting);
    bool isPressed() const noexcept { return m_pressed; }

    /// Whether this is the form's default button and shows that: not while a control with one of the takers'
    /// interfaces has the focus.
    bool isEmphasisedDefault(bool userMode, std::span<IID const> takers) const;
    /// Binds the canvas of one paint, with the button's font.
    void open(OffScreenDC& canvas, HDC target, SIZE size);

    ToolTipUser& toolTip() noexcept { return m_toolTip; }

private:
    void takeUnderlineOff();

    VisualState m_state = VisualState::Normal;
    bool m_pressed = false; ///< between a press of the left button and its release
    bool m_entered = false; ///< MouseEnter was raised, and its MouseExit was not
    ToolTipUser m_toolTip{*this};
};

} // namespace quillet
