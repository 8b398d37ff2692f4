// The flat command button: a caption in a single-colour border, with a look for each visual state.
#pragma once

#include "base/Bstr.h"
#include "controls/button/CommandButton.h"
#include "surface/PropertyTable.h"
#include "typelib/Interfaces.h"

#include <windows.h>

#include <string_view>

namespace quillet {

class qvFlatCommand;

/// Everything about a flat command button that its properties keep and the surface does not. The property
/// table holds the defaults.
struct FlatCommandLooks {
    using Control = qvFlatCommand;

    bool officeXPColors;
    bool showFocusRectangle;
    bool centreCaption;
    short captionIndent; ///< pixels
    Bstr caption;
    long borderStyle; ///< 0 none, 1 fixed single
    short borderWidth;
    short hotBorderWidth;
    short pressedBorderWidth;
    OLE_COLOR borderColor;
    OLE_COLOR hotBorderColor;
    OLE_COLOR pressedBorderColor;
    OLE_COLOR hotForeColor;
    OLE_COLOR hotBackColor;
    OLE_COLOR pressedForeColor;
    OLE_COLOR pressedBackColor;
    OLE_COLOR disabledForeColor;
    Bstr toolTipText; ///< the extender's, as it was at the last mouse move
};

class qvFlatCommand final : public Dual<_qvFlatCommand>, public CommandButton {
public:
    static ControlClass const kClass;

    explicit qvFlatCommand(IUnknown* outer);

    // _qvFlatCommand: every property reads and writes through its row.
#define QV_TABLE kProperties
#include "surface/PropertyMembers.inc"
#define QV_READ_ONLY(name, id, type, help) STDMETHODIMP get_##name(type* value) override;
#define QV_METHOD(name, id, help) STDMETHODIMP name() override;
#define QV_WINDOW_PROCEDURE(name, id, help)                                                                  \
    STDMETHODIMP name(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam, LONG* result) override;
#include "typelib/members/qvFlatCommand.inc"
#undef QV_TABLE

    // Handlers of the surface.
    void onInitProperties() override;
    void onReadProperties(PropertyBag& bag) override;
    void onWriteProperties(PropertyBag& bag) override;
    void onPaint() override;
    void onMouseMove(MouseArguments const& mouse) override;
    void onGotFocus() override;
    void onLostFocus() override;

    FlatCommandLooks& looks() noexcept { return m_looks; }
    FlatCommandLooks const& looks() const noexcept { return m_looks; }

protected:
    IDispatch* dual() noexcept override { return this; }
    std::wstring_view caption() const noexcept override { return m_looks.caption.view(); }

private:
    struct Palette;
    struct Painting;

    void refreshSiblings() noexcept;

    void draw(bool userMode);
    Palette paletteOf(VisualState state) const;
    void drawBorder(Painting& painting) const;
    void drawBackground(Painting& painting) const;
    void drawFocusFrame(Painting& painting) const;
    void drawCaption(Painting& painting);
    long captionLeft(Painting const& painting, std::wstring_view caption) const;

    static PropertyTable const kProperties;

    FlatCommandLooks m_looks{};
    bool m_lastOver = false; ///< whether the cursor was over the button at the last mouse move
};

} // namespace quillet
