// The flat command button: its properties, their defaults and their order, and its plain methods.
#include "controls/flatcommand/qvFlatCommand.h"

#include "controls/button/SystemColours.h"
#include "controls/flatcommand/Create.h"
#include "surface/MessageBoxes.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/HelpContexts.h"

namespace quillet {

namespace {

constexpr ControlClass kClass = {
    kQvFlatCommandClass,
    kQvFlatCommandInterface,
    kQvFlatCommandEvents,
    L"qvFlatCommand",
    L"Quillet.qvFlatCommand",
    OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_RECOMPOSEONRESIZE |
        OLEMISC_CANTLINKINSIDE | OLEMISC_ACTSLIKEBUTTON,
    kQvFlatCommandMembers,
    kHelpQvFlatCommand,
};

using Row = PropertyRow<qvFlatCommand>;
using Kind = PropertyKind;
using Held = SurfaceAccess<qvFlatCommand>;
using Looks = FlatCommandLooks;

/// A property that the button keeps in a field of its own.
template <auto Field>
constexpr PropertyAccess<qvFlatCommand> kField = {
    [](qvFlatCommand const& control) { return fieldValue(control.looks().*Field); },
    [](qvFlatCommand& control, Variant const& value) { storeField(control.looks().*Field, value); }};

// The system colours among the defaults.
constexpr long kButtonFace = static_cast<long>(colour::kButtonFace);
constexpr long kButtonShadow = static_cast<long>(colour::kButtonShadow);
constexpr long kGreyText = static_cast<long>(colour::kGreyText);
constexpr long kButtonText = static_cast<long>(colour::kButtonText);
constexpr long k3dHighlight = static_cast<long>(colour::k3dHighlight);
constexpr long k3dDarkShadow = static_cast<long>(colour::k3dDarkShadow);

constexpr auto kNew = AtStart::Default;
constexpr auto kAsSurface = AtStart::Surface;

namespace id = dispid::qvFlatCommand;

// clang-format off
// In the order of saving. Hot and pressed looks show at the next change of state: their setters do not paint.
constexpr Row kRows[] = {
    {L"BackColor",          id::BackColor,          Kind::Colour,  kButtonFace,   Held::kBackColor,                   Saved::Yes, kAsSurface, Repaint::Yes},
    {L"ForeColor",          id::ForeColor,          Kind::Colour,  kButtonText,   Held::kForeColor,                   Saved::Yes, kAsSurface, Repaint::Yes},
    {L"Enabled",            id::Enabled,            Kind::Flag,    true,          Held::kEnabled,                     Saved::Yes, kAsSurface, Repaint::Yes},
    {L"Font",               id::Font,               Kind::OwnFont, 0,             Held::kFont,                        Saved::Yes, kAsSurface, Repaint::Yes},
    {L"BorderStyle",        id::BorderStyle,        Kind::Style,   1,             kField<&Looks::borderStyle>,        Saved::Yes, kNew,       Repaint::Yes},
    {L"BorderColor",        id::BorderColor,        Kind::Colour,  k3dDarkShadow, kField<&Looks::borderColor>,        Saved::Yes, kNew,       Repaint::Yes},
    {L"HotForeColor",       id::HotForeColor,       Kind::Colour,  k3dHighlight,  kField<&Looks::hotForeColor>,       Saved::Yes, kNew,       Repaint::No},
    {L"PressedForeColor",   id::PressedForeColor,   Kind::Colour,  k3dHighlight,  kField<&Looks::pressedForeColor>,   Saved::Yes, kNew,       Repaint::No},
    {L"HotBackColor",       id::HotBackColor,       Kind::Colour,  kButtonShadow, kField<&Looks::hotBackColor>,       Saved::Yes, kNew,       Repaint::No},
    {L"PressedBackColor",   id::PressedBackColor,   Kind::Colour,  k3dDarkShadow, kField<&Looks::pressedBackColor>,   Saved::Yes, kNew,       Repaint::No},
    {L"HotBorderColor",     id::HotBorderColor,     Kind::Colour,  k3dDarkShadow, kField<&Looks::hotBorderColor>,     Saved::Yes, kNew,       Repaint::No},
    {L"PressedBorderColor", id::PressedBorderColor, Kind::Colour,  k3dDarkShadow, kField<&Looks::pressedBorderColor>, Saved::Yes, kNew,       Repaint::No},
    {L"BorderWidth",        id::BorderWidth,        Kind::Integer, 1,             kField<&Looks::borderWidth>,        Saved::Yes, kNew,       Repaint::Yes},
    {L"HotBorderWidth",     id::HotBorderWidth,     Kind::Integer, 1,             kField<&Looks::hotBorderWidth>,     Saved::Yes, kNew,       Repaint::No},
    {L"PressedBorderWidth", id::PressedBorderWidth, Kind::Integer, 1,             kField<&Looks::pressedBorderWidth>, Saved::Yes, kNew,       Repaint::No},
    {L"DisabledForeColor",  id::DisabledForeColor,  Kind::Colour,  kGreyText,     kField<&Looks::disabledForeColor>,  Saved::Yes, kNew,       Repaint::Yes},
    {L"Caption",            id::Caption,            Kind::Text,    0,             kField<&Looks::caption>,            Saved::Yes, kNew,       Repaint::Yes},
    {L"CentreCaption",      id::CentreCaption,      Kind::Flag,    false,         kField<&Looks::centreCaption>,      Saved::Yes, kNew,       Repaint::Yes},
    {L"CaptionIndent",      id::CaptionIndent,      Kind::Integer, 4,             kField<&Looks::captionIndent>,      Saved::Yes, kNew,       Repaint::Yes},
    {L"MousePointer",       id::MousePointer,       Kind::Integer, 0,             Held::kMousePointer,                Saved::Yes, kAsSurface, Repaint::No},
    {L"MouseIcon",          id::MouseIcon,          Kind::Picture, 0,             Held::kMouseIcon,                   Saved::Yes, kAsSurface, Repaint::No},
    {L"ShowFocusRectangle", id::ShowFocusRectangle, Kind::Flag,    true,          kField<&Looks::showFocusRectangle>, Saved::Yes, kNew,       Repaint::Yes},
    {L"OfficeXPColors",     id::OfficeXPColors,     Kind::Flag,    false,         kField<&Looks::officeXPColors>,     Saved::Yes, kNew,       Repaint::Yes},
    // The container's extender keeps this one.
    {L"ToolTipText",        id::ToolTipText,        Kind::Text,    0,             kField<&Looks::toolTipText>,        Saved::No,  kAsSurface, Repaint::No},
};
// clang-format on

} // namespace

PropertyTable<qvFlatCommand> const qvFlatCommand::kProperties(kRows);

ControlClass const& flatCommandClass() noexcept { return kClass; }

HRESULT createFlatCommand(IUnknown* outer, REFIID iid, void** object) noexcept
{
    return createControl<qvFlatCommand>(outer, iid, object);
}

qvFlatCommand::qvFlatCommand(IUnknown* outer)
    : CommandButton(kClass, outer), Dual(static_cast<Surface&>(*this))
{}

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
