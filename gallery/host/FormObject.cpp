// The form as its controls and their code see it: its members, and the objects that it contains.
#include "gallery/host/FormObject.h"

#include "base/Enumerator.h"
#include "gallery/host/Extender.h"
#include "gallery/host/Form.h"

namespace quillet::gallery {

namespace {

/// Controls by name have their index in the form above this.
constexpr DISPID kFirstControl = 0x10000;

RECT windowRect(Form const& form) noexcept
{
    RECT rect{};
    ::GetWindowRect(form.window(), &rect);
    return rect;
}

RECT clientRect(Form const& form) noexcept
{
    RECT rect{};
    ::GetClientRect(form.window(), &rect);
    return rect;
}

Variant twipsX(Form const& form, long pixels) { return Variant::ofLong(form.resolution().twipsX(pixels)); }
Variant twipsY(Form const& form, long pixels) { return Variant::ofLong(form.resolution().twipsY(pixels)); }

/// A window handle fits into 32 bits on either architecture.
Variant handle(HWND window) { return Variant::ofLong(static_cast<long>(reinterpret_cast<LONG_PTR>(window))); }

Variant activeControl(Form& form, Arguments const&)
{
    FormControl* const active = form.focus().active();
    return Variant::ofDispatch(active ? &active->extender() : nullptr);
}

Variant controls(Form& form, Arguments const& arguments)
{
    ComPtr<ControlsCollection> const collection = makeCounted<ControlsCollection>(form.object());
    if (arguments.count() == 0)
        return Variant::ofDispatch(collection.get());
    // Controls(0) and Controls("Save") read straight through to the item.
    Variant index = arguments.at(0);
    DISPPARAMS params{index.address(), nullptr, 1, 0};
    Variant item;
    check(collection->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &params,
                             item.put(), nullptr, nullptr));
    return item;
}

constexpr Member<Form> kFormMembers[] = {
    {L"Name", 1, [](Form& f, Arguments const&) { return Variant::ofString(f.name()); }, nullptr},
    {L"Caption", 2, [](Form& f, Arguments const&) { return Variant::ofString(f.caption()); },
     [](Form& f, Variant const& value) { f.setCaption(std::wstring(value.toString().view())); }},
    {L"Controls", 3, controls, nullptr},
    {L"ActiveControl", 4, activeControl, nullptr},
    {L"hWnd", 5, [](Form& f, Arguments const&) { return handle(f.window()); }, nullptr},
    {L"Left", 6, [](Form& f, Arguments const&) { return twipsX(f, windowRect(f).left); }, nullptr},
    {L"Top", 7, [](Form& f, Arguments const&) { return twipsY(f, windowRect(f).top); }, nullptr},
    {L"Width", 8,
     [](Form& f, Arguments const&) { return twipsX(f, windowRect(f).right - windowRect(f).left); }, nullptr},
    {L"Height", 9,
     [](Form& f, Arguments const&) { return twipsY(f, windowRect(f).bottom - windowRect(f).top); }, nullptr},
    {L"ScaleWidth", 10, [](Form& f, Arguments const&) { return twipsX(f, clientRect(f).right); }, nullptr},
    {L"ScaleHeight", 11, [](Form& f, Arguments const&) { return twipsY(f, clientRect(f).bottom); }, nullptr},
    {L"BackColor", 12,
     [](Form& f, Arguments const&) { return Variant::ofLong(static_cast<long>(f.backColor())); },
     [](Form& f, Variant const& value) { f.setBackColor(static_cast<OLE_COLOR>(value.toLong())); }},
    {L"Font", 13,
     [](Form& f, Arguments const&) { return Variant::ofDispatch(query<IDispatch>(f.font()).get()); },
     nullptr},
    {L"Visible", 14,
     [](Form& f, Arguments const&) { return Variant::ofBool(::IsWindowVisible(f.window()) != FALSE); },
     nullptr},
};

Variant itemAt(Form& form, Variant const& index)
{
    if (index.type() == VT_BSTR) {
        FormControl* const found = form.find(index.toString().view());
        if (!found)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        return Variant::ofDispatch(&found->extender());
    }
    long const position = index.toLong();
    if (position < 0 || position >= static_cast<long>(form.controls().size()))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return Variant::ofDispatch(&form.controls()[static_cast<std::size_t>(position)]->extender());
}

Variant extenderEnumerator(Form const& form)
{
    std::vector<Variant> items;
    for (auto const& control : form.controls())
        items.push_back(Variant::ofDispatch(&control->extender()));
    return Variant::ofUnknown(makeCounted<Enumerator<IEnumVARIANT, VARIANT>>(std::move(items)).get());
}

constexpr Member<Form> kCollectionMembers[] = {
    {L"Count", 1,
     [](Form& f, Arguments const&) { return Variant::ofLong(static_cast<long>(f.controls().size())); },
     nullptr},
    {L"Item", DISPID_VALUE, [](Form& f, Arguments const& arguments) { return itemAt(f, arguments.at(0)); },
     nullptr},
    {L"_NewEnum", DISPID_NEWENUM, [](Form& f, Arguments const&) { return extenderEnumerator(f); }, nullptr},
};

DISPID controlId(Form const& form, std::wstring_view name) noexcept
{
    FormControls const& all = form.controls();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (sameName(all[i]->state().name, name))
            return kFirstControl + static_cast<DISPID>(i);
    return DISPID_UNKNOWN;
}

} // namespace

Form& FormObject::form() const
{
    if (!m_form)
        throw RunTimeError(RPC_E_DISCONNECTED);
    return *m_form;
}

DISPID FormObject::idOf(std::wstring_view name)
{
    if (Member<Form> const* const row = findMember<Form>(kFormMembers, name))
        return row->id;
    return controlId(form(), name);
}

Variant FormObject::invoke(DISPID id, WORD flags, Arguments const& arguments)
{
    if (id >= kFirstControl && !isPut(flags))
        return itemAt(form(), Variant::ofLong(id - kFirstControl));
    return invokeMember<Form>(kFormMembers, form(), id, flags, arguments);
}

HRESULT STDMETHODCALLTYPE FormObject::EnumObjects(DWORD flags, IEnumUnknown** out)
{
    return comCall([&] {
        deref(out);
        std::vector<ComPtr<IUnknown>> objects;
        for (auto const& control : form().controls()) {
            DWORD const kind = control->isEmbedding() ? OLECONTF_EMBEDDINGS : OLECONTF_OTHERS;
            if ((flags & kind) && control->object())
                objects.emplace_back(control->object());
        }
        *out = makeCounted<Enumerator<IEnumUnknown, IUnknown*>>(std::move(objects)).detach();
    });
}

DISPID ControlsCollection::idOf(std::wstring_view name)
{
    Member<Form> const* const row = findMember<Form>(kCollectionMembers, name);
    return row ? row->id : DISPID_UNKNOWN;
}

Variant ControlsCollection::invoke(DISPID id, WORD flags, Arguments const& arguments)
{
    return invokeMember<Form>(kCollectionMembers, m_owner->form(), id, flags, arguments);
}

} // namespace quillet::gallery
