// The extended control: the rows of its members, and what it hands on.
#include "gallery/host/Extender.h"

#include "gallery/host/Form.h"
#include "gallery/host/FormControl.h"
#include "gallery/host/FormObject.h"

namespace quillet::gallery {

namespace {

/// Where the form's own identifiers begin, away from those of controls and from the standard ones.
constexpr DISPID kFirstId = static_cast<DISPID>(0x80010000);

template <long Place::*field> Variant getPlace(FormControl& control, Arguments const&)
{
    return Variant::ofLong(control.state().place.*field);
}

template <long Place::*field> void putPlace(FormControl& control, Variant const& value)
{
    Place place = control.state().place;
    place.*field = value.toLong();
    control.moveTo(place);
}

template <std::wstring ExtenderState::*field> Variant getText(FormControl& control, Arguments const&)
{
    return Variant::ofString(control.state().*field);
}

template <std::wstring ExtenderState::*field> void putText(FormControl& control, Variant const& value)
{
    control.state().*field = value.toString().view();
}

template <bool ExtenderState::*field> Variant getFlag(FormControl& control, Arguments const&)
{
    return Variant::ofBool(control.state().*field);
}

Variant getContainer(FormControl& control, Arguments const&)
{
    if (FormControl* const container = control.container())
        return Variant::ofDispatch(&container->extender());
    return Variant::ofDispatch(&control.form().object());
}

Variant getIndex(FormControl& control, Arguments const&)
{
    // Only a member of a control array has one.
    if (!control.state().index)
        throw RunTimeError(DISP_E_MEMBERNOTFOUND);
    return Variant::ofLong(*control.state().index);
}

Variant move(FormControl& control, Arguments const& arguments)
{
    Place place = control.state().place;
    long* const parts[] = {&place.left, &place.top, &place.width, &place.height};
    for (unsigned i = 0; i < arguments.count() && i < std::size(parts); ++i)
        *parts[i] = arguments.at(i).toLong();
    control.moveTo(place);
    return {};
}

Variant setFocus(FormControl& control, Arguments const&)
{
    control.focus();
    return {};
}

constexpr Member<FormControl> kExtenderMembers[] = {
    {L"Name", kFirstId, getText<&ExtenderState::name>, nullptr},
    {L"Object", kFirstId + 1,
     [](FormControl& c, Arguments const&) { return Variant::ofDispatch(c.automation()); }, nullptr},
    {L"Parent", kFirstId + 2,
     [](FormControl& c, Arguments const&) { return Variant::ofDispatch(&c.form().object()); }, nullptr},
    {L"Container", kFirstId + 3, getContainer, nullptr},
    {L"Left", kFirstId + 4, getPlace<&Place::left>, putPlace<&Place::left>},
    {L"Top", kFirstId + 5, getPlace<&Place::top>, putPlace<&Place::top>},
    {L"Width", kFirstId + 6, getPlace<&Place::width>, putPlace<&Place::width>},
    {L"Height", kFirstId + 7, getPlace<&Place::height>, putPlace<&Place::height>},
    {L"Visible", kFirstId + 8, getFlag<&ExtenderState::visible>,
     [](FormControl& c, Variant const& value) { c.setVisible(value.toBool()); }},
    {L"TabIndex", kFirstId + 9,
     [](FormControl& c, Arguments const&) { return Variant::ofLong(c.state().tabIndex); },
     [](FormControl& c, Variant const& value) { c.state().tabIndex = value.toLong(); }},
    {L"TabStop", kFirstId + 10, getFlag<&ExtenderState::tabStop>,
     [](FormControl& c, Variant const& value) { c.state().tabStop = value.toBool(); }},
    {L"Tag", kFirstId + 11, getText<&ExtenderState::tag>, putText<&ExtenderState::tag>},
    {L"ToolTipText", kFirstId + 12, getText<&ExtenderState::toolTipText>,
     putText<&ExtenderState::toolTipText>},
    {L"Index", kFirstId + 13, getIndex, nullptr},
    {L"SetFocus", kFirstId + 14, setFocus, nullptr},
    {L"Move", kFirstId + 15, move, nullptr},
};

/// What only a control that acts like a button has.
constexpr Member<FormControl> kButtonMembers[] = {
    {L"Default", kFirstId + 32, getFlag<&ExtenderState::isDefault>,
     [](FormControl& c, Variant const& value) { c.setDefault(value.toBool()); }},
    {L"Cancel", kFirstId + 33, getFlag<&ExtenderState::isCancel>,
     [](FormControl& c, Variant const& value) { c.setCancel(value.toBool()); }},
};

constexpr DISPID kLastId = kFirstId + 63;

bool isOwnId(DISPID id) noexcept { return id >= kFirstId && id <= kLastId; }

} // namespace

FormControl& Extender::connected() const
{
    if (!m_control)
        throw RunTimeError(RPC_E_DISCONNECTED);
    return *m_control;
}

DISPID Extender::idOf(std::wstring_view name)
{
    if (Member<FormControl> const* const row = findMember<FormControl>(kExtenderMembers, name))
        return row->id;
    if (!connected().actsLikeButton())
        return DISPID_UNKNOWN;
    Member<FormControl> const* const row = findMember<FormControl>(kButtonMembers, name);
    return row ? row->id : DISPID_UNKNOWN;
}

Variant Extender::invoke(DISPID id, WORD flags, Arguments const& arguments)
{
    FormControl& control = connected();
    bool const isButtons = id >= kButtonMembers[0].id;
    if (isButtons && control.actsLikeButton())
        return invokeMember<FormControl>(kButtonMembers, control, id, flags, arguments);
    return invokeMember<FormControl>(kExtenderMembers, control, id, flags, arguments);
}

HRESULT STDMETHODCALLTYPE Extender::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                                  DISPID* ids)
{
    return comCall([&] {
        bool const isOwn = names && count > 0 && names[0] && idOf(names[0]) != DISPID_UNKNOWN;
        IDispatch* const inner = isOwn ? nullptr : connected().automation();
        if (!inner)
            return LateBoundObject::GetIDsOfNames(iid, names, count, locale, ids);
        return inner->GetIDsOfNames(iid, names, count, locale, ids);
    });
}

HRESULT STDMETHODCALLTYPE Extender::Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* params,
                                           VARIANT* result, EXCEPINFO* error, UINT* wrongArgument)
{
    return comCall([&] {
        // A call may end the control; its automation face is kept for as long as it runs.
        ComPtr<IDispatch> const inner = isOwnId(id) ? nullptr : connected().automation();
        if (!inner)
            return LateBoundObject::Invoke(id, iid, locale, flags, params, result, error, wrongArgument);
        return inner->Invoke(id, iid, locale, flags, params, result, error, wrongArgument);
    });
}

HRESULT STDMETHODCALLTYPE Extender::QueryInterface(REFIID iid, void** out)
{
    HRESULT const own = LateBoundObject::QueryInterface(iid, out);
    if (own != E_NOINTERFACE)
        return own;
    IUnknown* const object = m_control ? m_control->object() : nullptr;
    return object ? object->QueryInterface(iid, out) : E_NOINTERFACE;
}

} // namespace quillet::gallery
