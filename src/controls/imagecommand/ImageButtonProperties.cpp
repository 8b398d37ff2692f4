// The image buttons' properties, with the defaults of the image command button and of the tool button.
#include "controls/button/RowWords.h"
#include "controls/imagecommand/ImageButton.h"
#include "saving/StandardPicture.h"
#include "surface/MessageBoxes.h"
#include "surface/window/MouseCapture.h"
#include "typelib/DispatchIds.h"

#include <olectl.h>

#include <array>

namespace quillet {

namespace {

ImageLooks& looksOf(Surface& surface) { return static_cast<ImageButton&>(surface).looks(); }

/// The task-pane look sets the background to the button face colour; ending it leaves that colour.
bool assignOfficeXPColors(Surface& control, Variant const& value)
{
    looksOf(control).officeXPColors = value.toBool();
    if (looksOf(control).officeXPColors)
        control.setBackColor(colour::kButtonFace);
    return true;
}

/// A button that ignores the mouse must not keep it from everybody else.
bool assignActive(Surface& control, Variant const& value)
{
    looksOf(control).active = value.toBool();
    if (!looksOf(control).active)
        setMouseCapture(control.window().existing(), false);
    return true;
}

/// A refused picture raises an error at run time, and shows a message to the designer in design mode.
bool acceptsPicture(ImageButton& control, IUnknown* picture, wchar_t const* refusal)
{
    SHORT const type = pictureType(picture);
    if (type == PICTYPE_BITMAP || type == PICTYPE_ICON)
        return true;
    if (control.inUserMode())
        throw RunTimeError(ErrorNumber::InvalidPicture);
    showExclamation(control.hWnd(), refusal);
    return false;
}

// All four take bitmaps as well as icons, whatever their messages say.
constexpr wchar_t kImageRefusal[] = L"Only icons and bitmaps may be assigned to the Image property.";
constexpr wchar_t kDisabledImageRefusal[] = L"Only icons may be assigned to the DisabledImage property.";
constexpr wchar_t kHotImageRefusal[] = L"Only icons may be assigned to the HotImage property.";
constexpr wchar_t kPressedImageRefusal[] = L"Only icons may be assigned to the PressedImage property.";

template <auto Field, wchar_t const* Refusal> bool assignPicture(Surface& control, Variant const& value)
{
    auto const picture = value.toObject();
    if (!acceptsPicture(static_cast<ImageButton&>(control), picture.get(), Refusal))
        return false;
    looksOf(control).*Field = query<IPictureDisp>(picture.get());
    return true;
}

/// In the order of saving, with the defaults of the image command button.
constexpr auto imageRows()
{
    namespace id = dispid::imageButton;
    using namespace rowwords;
    using Looks = ImageLooks;
    // clang-format off
    return std::to_array<Row>({
        {L"BackColor",                id::BackColor,                Kind::Colour,  kFace,        Held::kBackColor,                         kSaved, kAsSurface, kPaint},
        {L"ForeColor",                id::ForeColor,                Kind::Colour,  kText,        Held::kForeColor,                         kSaved, kAsSurface, kPaint},
        {L"Enabled",                  id::Enabled,                  Kind::Flag,    true,         Held::kEnabled,                           kSaved, kAsSurface, kPaint},
        {L"Font",                     id::Font,                     Kind::OwnFont, 0,            Held::kFont,                              kSaved, kAsSurface, kMeasure},
        {L"BorderStyle",              id::BorderStyle,              Kind::Style,   1,            kField<&Looks::borderStyle>,              kSaved, kNew, kMeasure},
        {L"LightBorderColor",         id::LightBorderColor,         Kind::Colour,  kDark,        kField<&Looks::lightBorderColor>,         kSaved, kNew, kPaint},
        {L"HotForeColor",             id::HotForeColor,             Kind::Colour,  k3dHighlight, kField<&Looks::hotForeColor>,             kSaved, kNew, kQuiet},
        {L"PressedForeColor",         id::PressedForeColor,         Kind::Colour,  k3dHighlight, kField<&Looks::pressedForeColor>,         kSaved, kNew, kQuiet},
        {L"HotBackColor",             id::HotBackColor,             Kind::Colour,  kShadow,      kField<&Looks::hotBackColor>,             kSaved, kNew, kQuiet},
        {L"PressedBackColor",         id::PressedBackColor,         Kind::Colour,  kDark,        kField<&Looks::pressedBackColor>,         kSaved, kNew, kQuiet},
        {L"HotLightBorderColor",      id::HotLightBorderColor,      Kind::Colour,  kDark,        kField<&Looks::hotLightBorderColor>,      kSaved, kNew, kQuiet},
        {L"PressedLightBorderColor",  id::PressedLightBorderColor,  Kind::Colour,  kDark,        kField<&Looks::pressedLightBorderColor>,  kSaved, kNew, kQuiet},
        {L"BorderWidth",              id::BorderWidth,              Kind::Integer, 1,            kField<&Looks::borderWidth>,              kSaved, kNew, kMeasure},
        {L"HotBorderWidth",           id::HotBorderWidth,           Kind::Integer, 1,            kField<&Looks::hotBorderWidth>,           kSaved, kNew, kQuiet},
        {L"PressedBorderWidth",       id::PressedBorderWidth,       Kind::Integer, 1,            kField<&Looks::pressedBorderWidth>,       kSaved, kNew, kMeasure},
        {L"DisabledForeColor",        id::DisabledForeColor,        Kind::Colour,  kGreyText,    kField<&Looks::disabledForeColor>,        kSaved, kNew, kPaint},
        {L"Caption",                  id::Caption,                  Kind::Text,    0,            kField<&Looks::caption>,                  kSaved, kNew, kMeasure},
        {L"CentreCaption",            id::CentreCaption,            Kind::Flag,    false,        kField<&Looks::centreCaption>,            kSaved, kNew, kPaint},
        {L"CaptionIndent",            id::CaptionIndent,            Kind::Integer, 4,            kField<&Looks::captionIndent>,            kSaved, kNew, kPaint},
        {L"MousePointer",             id::MousePointer,             Kind::Integer, 0,            Held::kMousePointer,                      kSaved, kAsSurface, kQuiet},
        {L"MouseIcon",                id::MouseIcon,                Kind::Picture, 0,            Held::kMouseIcon,                         kSaved, kAsSurface, kQuiet},
        {L"ShowFocusRectangle",       id::ShowFocusRectangle,       Kind::Flag,    true,         kField<&Looks::showFocusRectangle>,       kSaved, kNew, kPaint},
        {L"Image",                    id::Image,                    Kind::Picture, 0,            kField<&Looks::image>,                    kSaved, kNew, kMeasure, &assignPicture<&Looks::image, kImageRefusal>},
        {L"DisabledImage",            id::DisabledImage,            Kind::Picture, 0,            kField<&Looks::disabledImage>,            kSaved, kNew, kPaint,   &assignPicture<&Looks::disabledImage, kDisabledImageRefusal>},
        {L"HotImage",                 id::HotImage,                 Kind::Picture, 0,            kField<&Looks::hotImage>,                 kSaved, kNew, kMeasure, &assignPicture<&Looks::hotImage, kHotImageRefusal>},
        {L"PressedImage",             id::PressedImage,             Kind::Picture, 0,            kField<&Looks::pressedImage>,             kSaved, kNew, kMeasure, &assignPicture<&Looks::pressedImage, kPressedImageRefusal>},
        {L"DarkBorderColor",          id::DarkBorderColor,          Kind::Colour,  kDark,        kField<&Looks::darkBorderColor>,          kSaved, kNew, kPaint},
        {L"HotDarkBorderColor",       id::HotDarkBorderColor,       Kind::Colour,  kDark,        kField<&Looks::hotDarkBorderColor>,       kSaved, kNew, kPaint},
        {L"DisabledDarkBorderColor",  id::DisabledDarkBorderColor,  Kind::Colour,  kFace,        kField<&Looks::disabledDarkBorderColor>,  kSaved, kNew, kPaint},
        {L"PressedDarkBorderColor",   id::PressedDarkBorderColor,   Kind::Colour,  kDark,        kField<&Looks::pressedDarkBorderColor>,   kSaved, kNew, kPaint},
        {L"DisabledLightBorderColor", id::DisabledLightBorderColor, Kind::Colour,  kFace,        kField<&Looks::disabledLightBorderColor>, kSaved, kNew, kPaint},
        {L"CheckButton",              id::CheckButton,              Kind::Flag,    false,        kField<&Looks::checkButton>,              kSaved, kNew, kPaint},
        {L"Checked",                  id::Checked,                  Kind::Flag,    false,        kField<&Looks::checked>,                  kSaved, kNew, kPaint},
        {L"CheckedForeColor",         id::CheckedForeColor,         Kind::Colour,  k3dHighlight, kField<&Looks::checkedForeColor>,         kSaved, kNew, kQuiet},
        {L"CheckedBackColor",         id::CheckedBackColor,         Kind::Colour,  k3dLight,     kField<&Looks::checkedBackColor>,         kSaved, kNew, kQuiet},
        {L"CheckedDarkBorderColor",   id::CheckedDarkBorderColor,   Kind::Colour,  kDark,        kField<&Looks::checkedDarkBorderColor>,   kSaved, kNew, kQuiet},
        {L"CheckedLightBorderColor",  id::CheckedLightBorderColor,  Kind::Colour,  kDark,        kField<&Looks::checkedLightBorderColor>,  kSaved, kNew, kQuiet},
        {L"AutoSizeWidth",            id::AutoSizeWidth,            Kind::Flag,    false,        kField<&Looks::autoSizeWidth>,            kSaved, kNew, kMeasure},
        {L"CheckedFont",              id::CheckedFont,              Kind::Font,    0,            kField<&Looks::checkedFont>,              kSaved, kNew, kQuiet},
        {L"Active",                   id::Active,                   Kind::Flag,    true,         kField<&Looks::active>,                   kSaved, kNew, kQuiet,   &assignActive},
        {L"OffsetPressed",            id::OffsetPressed,            Kind::Flag,    false,        kField<&Looks::offsetPressed>,            kSaved, kNew, kQuiet},
        {L"OfficeXPColors",           id::OfficeXPColors,           Kind::FlagAsInteger, false,  kField<&Looks::officeXPColors>,           kSaved, kNew, kPaint,   &assignOfficeXPColors},
        // The container's extender keeps this one.
        {L"ToolTipText",              id::ToolTipText,              Kind::Text,    0,            kField<&Looks::toolTipText>,              kUnsaved, kAsSurface, kQuiet},
    });
    // clang-format on
}
constexpr auto kImageRows = imageRows();

/// The same rows where the tool button's defaults are others.
constexpr auto toolRows()
{
    namespace id = dispid::imageButton;
    using namespace rowwords;
    struct Default {
        DISPID id;
        long value;
    };
    // clang-format off
    constexpr Default kDefaults[] = {
        {id::LightBorderColor,        k3dLight},
        {id::HotForeColor,            kHighlight},
        {id::HotBackColor,            kFace},
        {id::PressedBackColor,        k3dLight},
        {id::HotLightBorderColor,     k3dHighlight},
        {id::PressedLightBorderColor, k3dHighlight},
        {id::ShowFocusRectangle,      false},
        {id::DarkBorderColor,         k3dLight},
        {id::HotDarkBorderColor,      kShadow},
        {id::PressedDarkBorderColor,  kShadow},
        {id::CheckedForeColor,        kText},
        {id::CheckedDarkBorderColor,  kShadow},
        {id::CheckedLightBorderColor, k3dHighlight},
        {id::OffsetPressed,           true},
    };
    // clang-format on
    auto rows = kImageRows;
    for (Row& row : rows)
        for (Default const& own : kDefaults)
            if (row.id == own.id)
                row.fallback = own.value;
    return rows;
}
constexpr auto kToolRows = toolRows();

} // namespace

constinit PropertyTable const kImageCommandProperties(kImageRows, LoadedObjects::IntoFields);
constinit PropertyTable const kFlatToolButtonProperties(kToolRows, LoadedObjects::IntoFields);

} // namespace quillet
