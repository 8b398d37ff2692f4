// The extended control: what the form adds to a control, late-bound and by name.
#pragma once

#include "gallery/host/LateBoundObject.h"

#include <oaidl.h>
#include <windows.h>

namespace quillet::gallery {

class FormControl;

/// Answers the form's own members itself (Name, Left, Default, Parent …) and hands every other name on to
/// the control's automation face.
///
/// Its identity is its own: it answers IUnknown and IDispatch, and forwards a question for any other
/// interface to the control, without aggregating it. So "is the active control one of these?" works on an
/// extender; but from an interface got that way there is no way back to the extender.
class Extender final : public LateBoundObject<> {
public:
    explicit Extender(FormControl& control) noexcept : m_control(&control) {}

    /// The control is going; from here on every call answers RPC_E_DISCONNECTED.
    void disconnect() noexcept { m_control = nullptr; }
    /// Null once it is disconnected.
    FormControl* control() const noexcept { return m_control; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* params,
                                     VARIANT* result, EXCEPINFO* error, UINT* wrongArgument) override;

protected:
    DISPID idOf(std::wstring_view name) override;
    Variant invoke(DISPID id, WORD flags, Arguments const& arguments) override;

private:
    FormControl& connected() const;

    FormControl* m_control;
};

} // namespace quillet::gallery
