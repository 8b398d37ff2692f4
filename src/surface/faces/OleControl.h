// IOleControl: access keys, ambient changes, freezing of events.
#pragma once

#include "base/Handles.h"
#include "surface/faces/Face.h"

#include <ocidl.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace quillet {

class OleControl final : public Face<IOleControl> {
public:
    using Face::Face;

    STDMETHODIMP GetControlInfo(CONTROLINFO* info) override;
    STDMETHODIMP OnMnemonic(LPMSG message) override;
    STDMETHODIMP OnAmbientPropertyChange(DISPID property) override;
    STDMETHODIMP FreezeEvents(WINBOOL freeze) override;

    /// Takes the keys and, when they really changed, tells the container: painting sets them every time.
    void setAccessKeys(std::wstring_view keys);

private:
    std::wstring m_accessKeys;
    UniqueAccelerators m_accelerators;
    WORD m_acceleratorCount = 0;
};

} // namespace quillet
