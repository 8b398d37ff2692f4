// The automation face of the form's own simple controls.
#pragma once

#include "gallery/host/LateBoundObject.h"

namespace quillet::gallery {

class IntrinsicControl;

/// Caption, Text, Value, Enabled, colours, font and hWnd. That of a command button also answers the
/// interface by which components know the environment's own command button.
class IntrinsicObject final : public LateBoundObject<> {
public:
    explicit IntrinsicObject(IntrinsicControl& control) noexcept : m_control(&control) {}
    void disconnect() noexcept { m_control = nullptr; }

protected:
    DISPID idOf(std::wstring_view name) override;
    Variant invoke(DISPID id, WORD flags, Arguments const& arguments) override;
    IUnknown* inheritedInterface(REFIID iid) noexcept override;

private:
    IntrinsicControl* m_control;
};

} // namespace quillet::gallery
