// The flat command button: its properties, their defaults and their order, and its plain methods.
#include "controls/flatcommand/qvFlatCommand.h"

#include "controls/button/RowWords.h"
#include "surface/MessageBoxes.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/HelpContexts.h"

#include <array>

namespace quillet {

namespace {

/// In the order of saving.
constexpr auto flatCommandRows()
{
    namespace id = dispid::qvFlatCommand;
    using namespace rowwords;
    using Looks = FlatCommandLooks;
    // clang-format off
    return std::to_array<Row>({
        {L"BackColor",          id::BackColor,          Kind::Colour,  kFace,        Held::kBackColor,                   kSaved,   kAsSurface, kPaint},
        {L"ForeColor",          id::ForeColor,          Kind::Colour,  kText,        Held::kForeColor,                   kSaved,   kAsSurface, kPaint},
        {L"Enabled",            id::Enabled,            Kind::Flag,    true,         Held::kEnabled,                     kSaved,   kAsSurface, kPaint},
        {L"Font",               id::Font,               Kind::OwnFont, 0,            Held::kFont,                        kSaved,   kAsSurface, kPaint},
        {L"BorderStyle",        id::BorderStyle,        Kind::Style,   1,            kField<&Looks::borderStyle>,        kSaved,   kNew,       kPaint},
        {L"BorderColor",        id::BorderColor,        Kind::Colour,  kDark,        kField<&Looks::borderColor>,        kSaved,   kNew,       kPaint},
        {L"HotForeColor",       id::HotForeColor,       Kind::Colour,  k3dHighlight, kField<&Looks::hotForeColor>,       kSaved,   kNew,       kQuiet},
        {L"PressedForeColor",   id::PressedForeColor,   Kind::Colour,  k3dHighlight, kField<&Looks::pressedForeColor>,   kSaved,   kNew,       kQuiet},
        {L"HotBackColor",       id::HotBackColor,       Kind::Colour,  kShadow,      kField<&Looks::hotBackColor>,       kSaved,   kNew,       kQuiet},
        {L"PressedBackColor",   id::PressedBackColor,   Kind::Colour,  kDark,        kField<&Looks::pressedBackColor>,   kSaved,   kNew,       kQuiet},
        {L"HotBorderColor",     id::HotBorderColor,     Kind::Colour,  kDark,        kField<&Looks::hotBorderColor>,     kSaved,   kNew,       kQuiet},
        {L"PressedBorderColor", id::PressedBorderColor, Kind::Colour,  kDark,        kField<&Looks::pressedBorderColor>, kSaved,   kNew,       kQuiet},
        {L"BorderWidth",        id::BorderWidth,        Kind::Integer, 1,            kField<&Looks::borderWidth>,        kSaved,   kNew,       kPaint},
        {L"HotBorderWidth",     id::HotBorderWidth,     Kind::Integer, 1,            kField<&Looks::hotBorderWidth>,     kSaved,   kNew,       kQuiet},
        {L"PressedBorderWidth", id::PressedBorderWidth, Kind::Integer, 1,            kField<&Looks::pressedBorderWidth>, kSaved,   kNew,       kQuiet},
        {L"DisabledForeColor",  id::DisabledForeColor,  Kind::Colour,  kGreyText,    kField<&Looks::disabledForeColor>,  kSaved,   kNew,       kPaint},
        {L"Caption",            id::Caption,            Kind::Text,    0,            kField<&Looks::caption>,            kSaved,   kNew,       kPaint},
        {L"CentreCaption",      id::CentreCaption,      Kind::Flag,    false,        kField<&Looks::centreCaption>,      kSaved,   kNew,       kPaint},
        {L"CaptionIndent",      id::CaptionIndent,      Kind::Integer, 4,            kField<&Looks::captionIndent>,      kSaved,   kNew,       kPaint},
        {L"MousePointer",       id::MousePointer,       Kind::Integer, 0,            Held::kMousePointer,                kSaved,   kAsSurface, kQuiet},
        {L"MouseIcon",          id::MouseIcon,          Kind::Picture, 0,            Held::kMouseIcon,                   kSaved,   kAsSurface, kQuiet},
        {L"ShowFocusRectangle", id::ShowFocusRectangle, Kind::Flag,    true,         kField<&Looks::showFocusRectangle>, kSaved,   kNew,       kPaint},
        {L"OfficeXPColors",     id::OfficeXPColors,     Kind::Flag,    false,        kField<&Looks::officeXPColors>,     kSaved,   kNew,       kPaint},
        // The container's extender keeps this one.
        {L"ToolTipText",        id::ToolTipText,        Kind::Text,    0,            kField<&Looks::toolTipText>,        kUnsaved, kAsSurface, kQuiet},
    });
    // clang-format on
}
constexpr auto kFlatCommandRows = flatCommandRows();

} // namespace

constinit PropertyTable const qvFlatCommand::kProperties(kFlatCommandRows);

constinit ControlClass const qvFlatCommand::kClass = {
    kQvFlatCommandClass,   kQvFlatCommandInterface,  kQvFlatCommandEvents,
    L"qvFlatCommand",      L"Quillet.qvFlatCommand", kCommandButtonStatus,
    kQvFlatCommandMembers, kHelpQvFlatCommand,       &createControl<qvFlatCommand>,
};

qvFlatCommand::qvFlatCommand(IUnknown* outer)
    : Dual(static_cast<Surface&>(*this)), CommandButton(kClass, outer)
{
    // A container may leave out both loading and initialising.
    kProperties.setPlainDefaults(*this);
}

void qvFlatCommand::onInitProperties()
{
    kProperties.init(*this);
    ignoringErrors([&] { m_looks.caption = container().extenderProperty(L"Name").toString(); });
}

void qvFlatCommand::onReadProperties(PropertyBag& bag)
{
    kProperties.read(*this, bag);
    toolTip().CreateToolTip(window().existing());
}

void qvFlatCommand::onWriteProperties(PropertyBag& bag) { kProperties.write(*this, bag); }

HRESULT qvFlatCommand::get_hwnd(LONG* value) { return answerHwnd(value); }

HRESULT qvFlatCommand::get_hdc(LONG* value) { return answerHdc(value); }

HRESULT qvFlatCommand::Refresh()
{
    return call([&] { repaint(); });
}

HRESULT qvFlatCommand::ShowAbout()
{
    return call([&] { showAboutBox(hWnd()); });
}

HRESULT qvFlatCommand::WindowProc(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam, LONG* result)
{
    return answerWindowProc(hwnd, uMsg, wParam, lParam, result);
}

} // namespace quillet
