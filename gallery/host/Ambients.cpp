// The ambient properties: what the form tells all its ActiveX controls.
#include "gallery/host/Ambients.h"

#include "gallery/host/Form.h"

#include <olectl.h>

namespace quillet::gallery {

namespace {

constexpr short kAppearance3D = 1;
constexpr short kTextAlignGeneral = 0;

template <bool value> Variant always(FormControl&, Arguments const&) { return Variant::ofBool(value); }

template <short value> Variant alwaysShort(FormControl&, Arguments const&) { return Variant::ofShort(value); }

Variant colour(OLE_COLOR value) { return Variant::ofLong(static_cast<long>(value)); }

Variant font(FormControl& control, Arguments const&)
{
    return Variant::ofDispatch(query<IDispatch>(control.form().font()).get());
}

Variant displayAsDefault(FormControl& control, Arguments const&)
{
    return Variant::ofBool(control.form().focus().shownDefault() == &control);
}

constexpr Member<FormControl> kRows[] = {
    {L"BackColor", DISPID_AMBIENT_BACKCOLOR,
     [](FormControl& c, Arguments const&) { return colour(c.form().backColor()); }, nullptr},
    {L"ForeColor", DISPID_AMBIENT_FORECOLOR,
     [](FormControl& c, Arguments const&) { return colour(c.form().foreColor()); }, nullptr},
    {L"Font", DISPID_AMBIENT_FONT, font, nullptr},
    {L"DisplayName", DISPID_AMBIENT_DISPLAYNAME,
     [](FormControl& c, Arguments const&) { return Variant::ofString(c.state().name); }, nullptr},
    {L"LocaleID", DISPID_AMBIENT_LOCALEID,
     [](FormControl&, Arguments const&) {
         return Variant::ofLong(static_cast<long>(::GetUserDefaultLCID()));
     },
     nullptr},
    {L"ScaleUnits", DISPID_AMBIENT_SCALEUNITS,
     [](FormControl&, Arguments const&) { return Variant::ofString(L"Twip"); }, nullptr},
    {L"UserMode", DISPID_AMBIENT_USERMODE,
     [](FormControl& c, Arguments const&) { return Variant::ofBool(!c.form().isDesign()); }, nullptr},
    {L"DisplayAsDefault", DISPID_AMBIENT_DISPLAYASDEFAULT, displayAsDefault, nullptr},
    {L"UIDead", DISPID_AMBIENT_UIDEAD, always<false>, nullptr},
    {L"MessageReflect", DISPID_AMBIENT_MESSAGEREFLECT, always<false>, nullptr},
    {L"SupportsMnemonics", DISPID_AMBIENT_SUPPORTSMNEMONICS, always<true>, nullptr},
    {L"ShowGrabHandles", DISPID_AMBIENT_SHOWGRABHANDLES, always<false>, nullptr},
    {L"ShowHatching", DISPID_AMBIENT_SHOWHATCHING, always<false>, nullptr},
    {L"AutoClip", DISPID_AMBIENT_AUTOCLIP, always<true>, nullptr},
    {L"RightToLeft", DISPID_AMBIENT_RIGHTTOLEFT, always<false>, nullptr},
    {L"Appearance", DISPID_AMBIENT_APPEARANCE, alwaysShort<kAppearance3D>, nullptr},
    {L"TextAlign", DISPID_AMBIENT_TEXTALIGN, alwaysShort<kTextAlignGeneral>, nullptr},
};

} // namespace

std::span<Member<FormControl> const> ambientRows() noexcept { return kRows; }

DISPID ambientId(std::wstring_view name) noexcept
{
    Member<FormControl> const* const row = findMember<FormControl>(kRows, name);
    return row ? row->id : DISPID_UNKNOWN;
}

} // namespace quillet::gallery
