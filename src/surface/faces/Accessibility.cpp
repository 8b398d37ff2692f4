// A control's side towards screen readers and test tools: its accessible object, and notice of changes.
#include "surface/faces/Accessibility.h"

#include "surface/Surface.h"

namespace quillet {

std::optional<LRESULT> Accessibility::answer(HWND window, WPARAM request, LPARAM what)
{
    if (static_cast<LONG>(what) != OBJID_CLIENT || window != m_surface.accessibleWindow())
        return std::nullopt;
    if (!m_object)
        m_object = makeCounted<AccessibleObject>(m_surface);
    return m_object->handOver(request);
}

void Accessibility::propertyChanged(DISPID property) const noexcept
{
    ControlClass const& own = m_surface.controlClass();
    if (property == DISPID_UNKNOWN) // the control has no such property
        return;
    if (property == own.caption)
        tell(EVENT_OBJECT_NAMECHANGE);
    else if (property == own.enabled || property == own.checked)
        tell(EVENT_OBJECT_STATECHANGE);
}

void Accessibility::stateChanged() const noexcept { tell(EVENT_OBJECT_STATECHANGE); }

void Accessibility::tell(DWORD event) const noexcept
{
    HWND const window = m_surface.accessibleWindow();
    if (window && ::IsWinEventHookInstalled(event))
        ::NotifyWinEvent(event, window, OBJID_CLIENT, CHILDID_SELF);
}

void Accessibility::disconnect() noexcept
{
    if (m_object)
        m_object->leave();
    m_object.reset();
}

} // namespace quillet
