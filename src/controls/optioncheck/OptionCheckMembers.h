// The published members of the flat option button and the flat check box, which are the same.
#pragma once

#include "controls/optioncheck/OptionCheckButton.h"
#include "surface/MessageBoxes.h"
#include "typelib/Interfaces.h"

namespace quillet {

/// Implements _qvFlatOption or _qvFlatCheck, whose members are equal in order and type.
template <class Interface> class OptionCheckMembers : public Dual<Interface>, public OptionCheckButton {
public:
    STDMETHODIMP WindowProc(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam, LONG* result) override
    {
        return runWindowProc(hwnd, uMsg, wParam, lParam, result);
    }
    STDMETHODIMP Refresh() override
    {
        return call([&] { refresh(); });
    }
    STDMETHODIMP ShowAbout() override
    {
        return call([&] { showAboutBox(hWnd()); });
    }
    STDMETHODIMP get_hwnd(LONG* value) override { return getWindow(value); }
    STDMETHODIMP get_Value(OLE_TRISTATE* value) override { return getValue(value); }
    STDMETHODIMP put_Value(OLE_TRISTATE value) override
    {
        return call([&] { putValue(value); });
    }

    // Every other property reads and writes through its row.
#define QV_DEFAULT_VALUE(...)
#define QV_TABLE properties()
#include "surface/PropertyMembers.inc"
#include "typelib/members/qvFlatOption.inc"
#undef QV_TABLE

protected:
    OptionCheckMembers(ControlClass const& controlClass, IUnknown* outer, InnerKind kind,
                       std::wstring_view caption, PropertyTable const& rows)
        : Dual<Interface>(static_cast<Surface&>(*this)),
          OptionCheckButton(controlClass, outer, kind, caption, rows)
    {}
    IDispatch* dual() noexcept override { return this; }
};

} // namespace quillet
