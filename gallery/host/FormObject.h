// The form as its controls and their code see it: an automation object, and the container of OLE objects.
#pragma once

#include "gallery/host/LateBoundObject.h"

#include <windows.h>

#include <oleidl.h>

namespace quillet::gallery {

class Form;

/// Answers Name, Caption, Controls, ActiveControl, hWnd …, and each control by its name. It may outlive the
/// form and answers RPC_E_DISCONNECTED from then on.
class FormObject final : public LateBoundObject<IOleContainer> {
public:
    explicit FormObject(Form& form) noexcept : m_form(&form) {}
    void disconnect() noexcept { m_form = nullptr; }
    /// Throws RPC_E_DISCONNECTED once the form is gone.
    Form& form() const;

    HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) override
    {
        return E_NOTIMPL;
    }
    /// ActiveX controls are embeddings, everything else on the form counts as others; in the form's order.
    HRESULT STDMETHODCALLTYPE EnumObjects(DWORD flags, IEnumUnknown** out) override;
    HRESULT STDMETHODCALLTYPE LockContainer(BOOL) override { return S_OK; }

protected:
    DISPID idOf(std::wstring_view name) override;
    Variant invoke(DISPID id, WORD flags, Arguments const& arguments) override;
    IUnknown* inheritedInterface(REFIID iid) noexcept override
    {
        return iid == __uuidof(IParseDisplayName) ? static_cast<IOleContainer*>(this) : nullptr;
    }

private:
    Form* m_form;
};

/// The form's Controls collection: Count, Item by index from 0 or by name, and For Each.
class ControlsCollection final : public LateBoundObject<> {
public:
    explicit ControlsCollection(FormObject& owner) noexcept : m_owner(&owner) {}

protected:
    DISPID idOf(std::wstring_view name) override;
    Variant invoke(DISPID id, WORD flags, Arguments const& arguments) override;

private:
    ComPtr<FormObject> m_owner;
};

} // namespace quillet::gallery
