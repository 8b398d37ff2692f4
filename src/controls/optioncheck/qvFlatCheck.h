// The flat check box: clear, set or in its third state.
#pragma once

#include "controls/optioncheck/OptionCheckMembers.h"

namespace quillet {

class qvFlatCheck final : public OptionCheckMembers<_qvFlatCheck> {
public:
    static ControlClass const kClass;

    explicit qvFlatCheck(IUnknown* outer);

    // Handlers of the surface.
    void onReadProperties(PropertyBag& bag) override { readProperties(bag); }
    void onMouseMove(MouseArguments const& mouse) override;
    void onClick() override;
    LRESULT dialogCode() const override { return DLGC_BUTTON; }

private:
    void putValue(OLE_TRISTATE value) override;

    static PropertyTable const kProperties;
};

} // namespace quillet
