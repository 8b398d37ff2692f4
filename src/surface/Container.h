// The container as the surface sees it: its site, ambient properties, extender and active control.
#pragma once

#include "base/ComPtr.h"
#include "base/Variant.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <vector>

namespace quillet {

/// An interface of a control that a container handed out: from the object itself, or from the control inside
/// an extender that does not answer for it but hands it out. Empty when neither has it.
ComPtr<IUnknown> controlInterface(IUnknown* object, REFIID iid) noexcept;

/// The object that a container put round a control that it handed out, as the control's own site tells it;
/// where it tells none, what was handed out.
ComPtr<IDispatch> extenderOf(IUnknown* control) noexcept;

/// Answers of a container that may offer anything or nothing; a missing feature has a plain answer.
class Container {
public:
    /// Takes the site (null for none). Everything learnt from the one before is forgotten.
    void setSite(IOleClientSite* site) noexcept;
    IOleClientSite* site() const noexcept { return m_site.get(); }

    /// Ambient values that a container hands over in one block, for when its site has no ambients.
    void setQuickAmbients(QACONTAINER const& block) noexcept;

    /// An ambient property; empty when the container does not offer it.
    Variant ambient(DISPID id) const noexcept;
    /// Whether the form runs. True where the container does not say.
    bool userMode() const noexcept;
    /// The container's own font object; null where it has none.
    ComPtr<IFont> sharedFont() const noexcept;
    /// A font of the control's own, equal to the ambient one, or to the system's where there is none.
    ComPtr<IFont> ambientFont() const;

    /// The object that the container puts round the control; empty where it has none.
    ComPtr<IDispatch> extender() const noexcept;
    /// A property of the extender; empty where there is no extender or no such property.
    Variant extenderProperty(wchar_t const* name) const noexcept;
    /// The same, but a failure is the extender's own; ObjectNotSet where there is no extender.
    Variant requiredExtenderProperty(wchar_t const* name) const;
    /// Assigns a property of the extender. False where there is no extender, no such property, or the value
    /// is refused.
    bool putExtenderProperty(wchar_t const* name, Variant value) const noexcept;
    /// The control of the same form that has the focus; empty where the container does not say.
    ComPtr<IUnknown> activeControl() const noexcept;

    /// The controls of the same form in the container's order, this one included, up to the first failure.
    std::vector<ComPtr<IUnknown>> parentControls() const;

    /// Tells the container that the access keys changed.
    void controlInfoChanged() const noexcept;
    /// Whether the container shows the property pages itself, in a frame that has more of them.
    bool showsPropertyFrame() const noexcept;
    void focusChanged(bool gained) const noexcept;
    /// Offers a key to the container; true when it took it.
    bool takesKey(MSG const& message) const noexcept;

private:
    ComPtr<IOleClientSite> m_site;
    ComPtr<IOleControlSite> m_controlSite;
    ComPtr<IDispatch> m_ambients;
    ComPtr<IFont> m_quickFont;
    Variant m_quickUserMode;
};

} // namespace quillet
