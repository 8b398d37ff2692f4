// The automation face of the form's own simple controls.
#include "gallery/intrinsic/IntrinsicObject.h"

#include "gallery/intrinsic/IntrinsicControl.h"

#include <olectl.h>

namespace quillet::gallery {

namespace {

/// How components recognise the environment's command button among the controls of a form.
constexpr IID kCommandButtonFace = {
    0x33AD4EF1, 0x6699, 0x11CF, {0xB7, 0x0C, 0x00, 0xAA, 0x00, 0x60, 0xD3, 0x93}};

Variant getText(IntrinsicControl& control, Arguments const&) { return Variant::ofString(control.text()); }

void putText(IntrinsicControl& control, Variant const& value)
{
    control.setText(std::wstring(value.toString().view()));
}

Variant getValue(IntrinsicControl& control, Arguments const&)
{
    return control.isOption() ? Variant::ofBool(control.value() != 0)
                              : Variant::ofShort(static_cast<short>(control.value()));
}

void putValue(IntrinsicControl& control, Variant const& value)
{
    control.setValue(control.isOption() ? value.toBool() : value.toLong());
}

Variant getWindow(IntrinsicControl& control, Arguments const&)
{
    return Variant::ofLong(static_cast<long>(reinterpret_cast<LONG_PTR>(control.window())));
}

constexpr Member<IntrinsicControl> kIntrinsicMembers[] = {
    {L"Caption", DISPID_CAPTION, getText, putText},
    {L"Text", DISPID_TEXT, getText, putText},
    {L"Value", DISPID_VALUE, getValue, putValue},
    {L"Enabled", DISPID_ENABLED,
     [](IntrinsicControl& c, Arguments const&) { return Variant::ofBool(c.isEnabled()); },
     [](IntrinsicControl& c, Variant const& value) { c.setEnabled(value.toBool()); }},
    {L"ForeColor", DISPID_FORECOLOR,
     [](IntrinsicControl& c, Arguments const&) { return Variant::ofLong(static_cast<long>(c.foreColor())); },
     [](IntrinsicControl& c, Variant const& value) {
         c.setForeColor(static_cast<OLE_COLOR>(value.toLong()));
     }},
    {L"BackColor", DISPID_BACKCOLOR,
     [](IntrinsicControl& c, Arguments const&) { return Variant::ofLong(static_cast<long>(c.backColor())); },
     [](IntrinsicControl& c, Variant const& value) {
         c.setBackColor(static_cast<OLE_COLOR>(value.toLong()));
     }},
    {L"Font", DISPID_FONT,
     [](IntrinsicControl& c, Arguments const&) {
         return Variant::ofDispatch(query<IDispatch>(c.font()).get());
     },
     nullptr},
    {L"hWnd", DISPID_HWND, getWindow, nullptr},
};

} // namespace

DISPID IntrinsicObject::idOf(std::wstring_view name)
{
    Member<IntrinsicControl> const* const row = findMember<IntrinsicControl>(kIntrinsicMembers, name);
    return row ? row->id : DISPID_UNKNOWN;
}

Variant IntrinsicObject::invoke(DISPID id, WORD flags, Arguments const& arguments)
{
    if (!m_control)
        throw RunTimeError(RPC_E_DISCONNECTED);
    return invokeMember<IntrinsicControl>(kIntrinsicMembers, *m_control, id, flags, arguments);
}

IUnknown* IntrinsicObject::inheritedInterface(REFIID iid) noexcept
{
    bool const isButton = m_control && m_control->kind() == IntrinsicKind::CommandButton;
    return isButton && iid == kCommandButtonFace ? static_cast<IDispatch*>(this) : nullptr;
}

} // namespace quillet::gallery
