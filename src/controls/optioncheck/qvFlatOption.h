// The flat option button: one choice among the option buttons of its container.
#pragma once

#include "controls/optioncheck/OptionCheckMembers.h"

#include <optional>

namespace quillet {

class qvFlatOption final : public OptionCheckMembers<_qvFlatOption> {
public:
    static ControlClass const kClass;

    explicit qvFlatOption(IUnknown* outer);

    // Handlers of the surface.
    void onReadProperties(PropertyBag& bag) override;
    void onMouseMove(MouseArguments const& mouse) override;
    void onClick() override;
    void onAccessKeyPress(short) override;
    LRESULT dialogCode() const override { return DLGC_BUTTON | DLGC_RADIOBUTTON; }

private:
    void putValue(OLE_TRISTATE value) override;
    void clearSiblings() noexcept;
    bool IsSameContainer(IUnknown* sibling) const noexcept;
    void giveTabStopBack() const noexcept;

    static PropertyTable const kProperties;

    std::optional<bool> m_savedTabStop; ///< the host's setting; nothing before it was read
    bool m_clearing = false;            ///< the siblings are being cleared
};

} // namespace quillet
