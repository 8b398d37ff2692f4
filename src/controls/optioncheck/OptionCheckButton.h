// What the flat option button and the flat check box share: a control filled by one inner button.
#pragma once

#include "base/Bstr.h"
#include "controls/optioncheck/InnerButton.h"
#include "surface/PropertyTable.h"
#include "surface/Surface.h"
#include "surface/window/Cursor.h"
#include "winsvc/modToolTip.h"

#include <windows.h>

#include <string_view>

namespace quillet {

class OptionCheckButton : public Surface {
public:
    InnerButton& innerButton() noexcept { return m_inner; }
    InnerButton const& innerButton() const noexcept { return m_inner; }
    OLE_COLOR hotForeColor() const noexcept { return m_hotForeColor; }
    void setHotForeColor(OLE_COLOR colour) noexcept { m_hotForeColor = colour; }

    // Handlers of the surface.
    void onInitProperties() override;
    void onWriteProperties(PropertyBag& bag) override;
    void onPaint() override;
    void onMouseDown(MouseArguments const& mouse) override;
    void onMouseUp(MouseArguments const& mouse) override;
    void onWindowMade() override { m_inner.handle(); }
    void onCommand(WORD code, HWND from) override;
    void onGotFocus() override { m_inner.takeFocus(); }
    void onFocusMessage() override { refresh(); }
    void onCaptureLost() override;
    void onMouseLeft() override;
    void onResize() override;
    void onAmbientChanged(DISPID) override { onResize(); }
    void onFontChanged() override { m_inner.fontChanged(); }
    void onAccessKeyPress(short) override { doClick(); }
    void doClick() override { m_inner.click(); }
    void onTerminate() override;
    AccessibleLook accessibleLook() const override;
    HWND accessibleWindow() const noexcept override { return m_inner.existing(); }
    IUnknown* windowMessages() noexcept override { return &m_toolTip; }

    // Handlers of the button inside, whose mouse goes to the handlers above. A key set to 0 goes no further.
    void onKeyDown(short& keyCode, short shift);
    void onKeyUp(short& keyCode, short shift);
    void onCharacter(short& keyAscii);
    void onInnerPainted();
    /// Its window was made, or made anew.
    void onInnerMade() { m_toolTip.windowMade(m_inner.existing()); }

protected:
    OptionCheckButton(ControlClass const& controlClass, IUnknown* outer, InnerKind kind,
                      std::wstring_view caption, PropertyTable const& properties);

    /// Takes the saved values over and sets up what a running control needs.
    void readProperties(PropertyBag& bag);
    void refresh();

    bool isMouseOver() const { return isUnderCursor(m_inner.existing()); }
    /// Changes the look as a move needs it while the form runs. Raises no event.
    void followMouse(MouseArguments const& mouse);
    void setLastHover(bool over) noexcept { m_lastHover = over; }

    // The members that both interfaces have; the properties go through their rows.
    virtual void putValue(OLE_TRISTATE value) = 0;
    HRESULT getValue(OLE_TRISTATE* value) noexcept;
    HRESULT getWindow(LONG* value) noexcept;
    HRESULT runWindowProc(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam, LONG* result) noexcept;

    PropertyTable const& properties() const noexcept { return m_properties; }

private:
    void showCaption(OLE_COLOR colour);
    void showState(bool hot);
    void drawElsewhere();
    void FillOptionGlyph(bool hot);

    PropertyTable const& m_properties;
    InnerButton m_inner;
    Bstr m_toolTipText; ///< the extender's, as it was at the last mouse move
    OLE_COLOR m_hotForeColor = 0;
    bool m_lastHover = false;   ///< whether the cursor was over the button at the last mouse move
    bool m_hot = false;         ///< the look last shown
    bool m_recolouring = false; ///< a paint is giving the caption another colour
    ToolTipUser m_toolTip{*this};
};

} // namespace quillet
