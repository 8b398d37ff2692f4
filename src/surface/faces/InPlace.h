// In-place activation: where the control's window is and who has the keyboard.
#pragma once

#include "base/ComPtr.h"
#include "surface/faces/Face.h"

#include <windows.h>

#include <oleidl.h>

namespace quillet {

class InPlace final : public Face<IOleInPlaceObject, IOleInPlaceActiveObject> {
public:
    enum class Activation { Visible, WithFocus };
    /// What a container gives with a verb: used where its site tells nothing. Both may be null.
    struct Offer {
        HWND parent;
        RECT const* position;
    };

    using Face::Face;

    // IOleWindow
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(WINBOOL enter) override;
    // IOleInPlaceObject
    STDMETHODIMP InPlaceDeactivate() override;
    STDMETHODIMP UIDeactivate() override;
    STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
    STDMETHODIMP ReactivateAndUndo() override;
    // IOleInPlaceActiveObject
    STDMETHODIMP TranslateAccelerator(LPMSG message) override;
    STDMETHODIMP OnFrameWindowActivate(WINBOOL activated) override;
    STDMETHODIMP OnDocWindowActivate(WINBOOL activated) override;
    STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, WINBOOL frame) override;
    STDMETHODIMP EnableModeless(WINBOOL enable) override;

    /// Shows the control in its container's window, and with WithFocus gives it the keyboard.
    void activate(Activation kind, Offer const& offer = {});
    void hide();
    /// While active: asks the site for another width, in pixels.
    void requestWidth(long width);
    /// What becomes of the window of a control that is not active any more. A parked one keeps its handle.
    enum class WindowThen { Parked, Destroyed };
    /// Ends activation whatever the state, and then tells the container.
    void leave(WindowThen then) noexcept;
    /// Sends the message that led to an activation on to the window.
    void forward(MSG const* message);

    /// The window got or lost the keyboard.
    void focusGained();
    void focusLost();

    bool isActive() const noexcept { return m_active; }
    RECT const& position() const noexcept { return m_position; }

private:
    /// Where the control is to be activated: the site, and the window that the control's is to be in.
    struct Stage {
        ComPtr<IOleInPlaceSite> site;
        HWND parent;
    };
    /// Asks the container. Throws where it refuses, or has no window and none was offered.
    Stage stage(HWND offered) const;
    /// Whether the control is active in that site, still or again.
    bool isIn(ComPtr<IOleInPlaceSite> const& site) const noexcept { return m_site.get() == site.get(); }
    void activateVisibly(Offer const& offer);
    void activateKeyboard();
    void leaveKeyboard() noexcept;
    void place(RECT const& position, RECT const* clip);

    ComPtr<IOleInPlaceSite> m_site; ///< while active
    ComPtr<IOleInPlaceFrame> m_frame;
    ComPtr<IOleInPlaceUIWindow> m_document;
    bool m_active = false;     ///< shown in the container's window
    bool m_keyboard = false;   ///< UI-active
    bool m_leaving = false;    ///< the activation is ending: the keyboard is not taken again
    unsigned m_activation = 0; ///< tells one activation from the next
    RECT m_position = {};
};

} // namespace quillet
