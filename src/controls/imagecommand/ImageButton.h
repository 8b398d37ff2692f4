// A button with a picture: what the image command button and the tool button both are.
#pragma once

#include "base/Bstr.h"
#include "controls/button/CommandButton.h"
#include "controls/imagecommand/ImageElement.h"
#include "surface/PropertyTable.h"

#include <ocidl.h>
#include <windows.h>

#include <string_view>

namespace quillet {

class ImageButton;

/// Everything about an image button that its properties keep and the surface does not. The table of the
/// button's kind holds the defaults. "Stored only": saved with the form and read by no drawing code.
struct ImageLooks {
    using Control = ImageButton;

    bool officeXPColors;
    bool offsetPressed; ///< picture and caption move right and down while pressed or checked
    bool active;        ///< False makes a running button behave as in design mode
    ComPtr<IFontDisp> checkedFont;
    bool autoSizeWidth;
    OLE_COLOR checkedDarkBorderColor;
    OLE_COLOR checkedLightBorderColor;
    OLE_COLOR checkedForeColor; ///< stored only
    OLE_COLOR checkedBackColor;
    bool checkButton;
    bool checked;
    OLE_COLOR darkBorderColor;
    OLE_COLOR hotDarkBorderColor;
    OLE_COLOR disabledDarkBorderColor; ///< stored only
    OLE_COLOR pressedDarkBorderColor;
    OLE_COLOR disabledLightBorderColor; ///< stored only
    ComPtr<IPictureDisp> image;
    ComPtr<IPictureDisp> disabledImage;
    ComPtr<IPictureDisp> hotImage;
    ComPtr<IPictureDisp> pressedImage;
    bool showFocusRectangle; ///< stored only
    bool centreCaption;
    short captionIndent; ///< pixels
    Bstr caption;
    long borderStyle; ///< 0 none, 1 drawn
    short borderWidth;
    short hotBorderWidth;
    short pressedBorderWidth;
    OLE_COLOR lightBorderColor;
    OLE_COLOR hotLightBorderColor;
    OLE_COLOR pressedLightBorderColor;
    OLE_COLOR hotForeColor;
    OLE_COLOR hotBackColor;
    OLE_COLOR pressedForeColor;
    OLE_COLOR pressedBackColor;
    OLE_COLOR disabledForeColor;
    Bstr toolTipText;
};

/// How the border of a resting button looks in the task-pane colours.
enum class RestingBorder {
    Shadow,      ///< drawn in the shadow colour
    WhileLaidOut ///< an outline in design mode, none at run time
};

/// What tells the two kinds of image buttons apart.
struct ImageButtonKind {
    ControlClass controlClass;
    PropertyTable const& properties;
    RestingBorder restingBorder;
};
extern ImageButtonKind const kImageCommand;
extern ImageButtonKind const kFlatToolButton;
extern PropertyTable const kImageCommandProperties;
extern PropertyTable const kFlatToolButtonProperties;

class ImageButton : public CommandButton {
public:
    // Handlers of the surface.
    void onInitProperties() override;
    void onReadProperties(PropertyBag& bag) override;
    void onWriteProperties(PropertyBag& bag) override;
    void onPaint() override;
    void onMouseMove(MouseArguments const& mouse) override;
    void onResize() override { repaint(); }
    void onMeasure() override;
    void doDefaultAction() override;
    AccessibleLook accessibleLook() const override;

    ImageLooks& looks() noexcept { return m_looks; }
    ImageLooks const& looks() const noexcept { return m_looks; }
    bool inUserMode() const noexcept { return m_looks.active && userMode(); }

protected:
    ImageButton(ImageButtonKind const& kind, IUnknown* outer);

    PropertyTable const& properties() const noexcept { return m_kind.properties; }

    bool reacts() const noexcept override { return inUserMode(); }
    std::wstring_view caption() const noexcept override { return m_looks.caption.view(); }
    void onReleased(MouseArguments const& mouse) override;

    /// Paints the button in the look that it has, picture included.
    void draw();

private:
    struct Palette;
    struct Painting;

    bool isChecked() const noexcept { return m_looks.checkButton && m_looks.checked; }

    IPictureDisp* shownPicture(bool reacting) const noexcept;
    void placePicture();
    long pictureLeft() const;
    long pressedOffset() const noexcept;

    Palette palette(bool userMode) const;
    long drawBorder(Painting& painting);
    void drawCaption(Painting& painting, long inset);
    long captionLeft(Painting const& painting, std::wstring_view caption) const;

    ImageButtonKind const& m_kind;
    ImageLooks m_looks{};
    ImageElement m_image1;
};

} // namespace quillet
