// Connection points: the control's own events, and notice of changed properties.
#pragma once

#include "base/ComPtr.h"
#include "base/Variant.h"
#include "surface/faces/Face.h"

#include <ocidl.h>
#include <windows.h>

#include <initializer_list>
#include <utility>
#include <vector>

namespace quillet {

/// One connection point and its sinks. A sink joins with any interface that can serve the point.
class ConnectionPoint final : public Face<IConnectionPoint> {
public:
    using Sinks = std::vector<std::pair<ComPtr<IUnknown>, DWORD>>;

    ConnectionPoint(Surface& surface, IID const& sinkId) noexcept : Face(surface), m_sinkId(sinkId) {}

    STDMETHODIMP GetConnectionInterface(IID* iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** enumerator) override;

    /// A copy of the list, as sinks may leave or join while they are called.
    Sinks snapshot() const { return m_sinks; }
    bool empty() const noexcept { return m_sinks.empty(); }
    IID const& sinkId() const noexcept { return m_sinkId; }
    void clear() noexcept { m_sinks.clear(); }

private:
    IID const& m_sinkId;
    Sinks m_sinks;
    DWORD m_lastCookie = 0;
};

/// IConnectionPointContainer, and the raising of events.
class Events final : public Face<IConnectionPointContainer> {
public:
    explicit Events(Surface& surface) noexcept;

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** enumerator) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

    /// Raises an event at every sink; arguments in their declared order. What a sink answers is ignored.
    void raise(DISPID event, std::initializer_list<Variant> arguments);
    /// Tells who listens that a property changed.
    void notifyChanged(DISPID property);

    /// Whether an event reaches anybody.
    bool areHeard() const noexcept { return !m_frozen && !m_ended && !m_eventPoint.empty(); }
    /// A flag, not a count: containers freeze twice and thaw once.
    void freeze(bool frozen) noexcept { m_frozen = frozen; }
    /// The container has closed the control. Nothing is raised from here on, not even the rest of what the
    /// message being handled would raise, until a site or an activation begins it anew.
    void end() noexcept { m_ended = true; }
    void begin() noexcept { m_ended = false; }
    void disconnect() noexcept;

    ConnectionPoint& eventPoint() noexcept { return m_eventPoint; }
    ConnectionPoint& notifyPoint() noexcept { return m_notifyPoint; }

private:
    ConnectionPoint m_eventPoint;
    ConnectionPoint m_notifyPoint;
    bool m_frozen = false;
    bool m_ended = false;
};

} // namespace quillet
