// Connection points: the control's own events, and notice of changed properties.
#include "surface/faces/Events.h"

#include "base/Enumerator.h"
#include "base/RunTimeError.h"
#include "surface/Surface.h"

#include <olectl.h>

#include <algorithm>

namespace quillet {

namespace {

/// The interface by which a sink will be called. An event sink of a dispatch interface may know itself by
/// the interface's own identifier or as a plain IDispatch.
ComPtr<IUnknown> servingInterface(IUnknown* sink, IID const& sinkId)
{
    if (auto exact = query<IUnknown>(sink, sinkId))
        return exact;
    if (sinkId == IID_IPropertyNotifySink)
        return {};
    return query<IDispatch>(sink).as<IUnknown>(IID_IDispatch);
}

} // namespace

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid)
{
    return comCall([&] { deref(iid) = m_sinkId; });
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container)
{
    return comCall([&] {
        deref(container) = nullptr; // before anything can throw
        *container = ComPtr<IConnectionPointContainer>(&m_surface.events()).detach();
    });
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie)
{
    return comCall([&] {
        deref(sink);
        deref(cookie) = 0;
        auto serving = servingInterface(sink, m_sinkId);
        if (!serving)
            throw RunTimeError(CONNECT_E_CANNOTCONNECT);
        m_sinks.emplace_back(std::move(serving), ++m_lastCookie);
        *cookie = m_lastCookie;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie)
{
    return comCall([&] {
        auto const found = std::find_if(m_sinks.begin(), m_sinks.end(),
                                        [&](auto const& sink) { return sink.second == cookie; });
        if (found == m_sinks.end())
            throw RunTimeError(CONNECT_E_NOCONNECTION);
        ComPtr<IUnknown> const leaving = std::move(found->first); // released when the list is in order again
        m_sinks.erase(found);
    });
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** enumerator)
{
    return comCall([&] {
        deref(enumerator) = nullptr;
        *enumerator = makeCounted<Enumerator<IEnumConnections, CONNECTDATA>>(snapshot()).detach();
    });
}

Events::Events(Surface& surface) noexcept
    : Face(surface), m_eventPoint(surface, surface.controlClass().eventsId),
      m_notifyPoint(surface, IID_IPropertyNotifySink)
{}

HRESULT Events::EnumConnectionPoints(IEnumConnectionPoints** enumerator)
{
    return comCall([&] {
        deref(enumerator) = nullptr;
        std::vector<ComPtr<IConnectionPoint>> points = {&m_eventPoint, &m_notifyPoint};
        *enumerator =
            makeCounted<Enumerator<IEnumConnectionPoints, IConnectionPoint*>>(std::move(points)).detach();
    });
}

HRESULT Events::FindConnectionPoint(REFIID iid, IConnectionPoint** point)
{
    return comCall([&] {
        deref(point) = nullptr;
        for (ConnectionPoint* candidate : {&m_eventPoint, &m_notifyPoint})
            if (iid == candidate->sinkId())
                *point = ComPtr<IConnectionPoint>(candidate).detach();
        if (!*point)
            throw RunTimeError(CONNECT_E_NOCONNECTION);
    });
}

void Events::raise(DISPID event, std::initializer_list<Variant> arguments)
{
    if (!areHeard())
        return;
    auto const alive = m_surface.keepAlive();
    std::vector<VARIANT> reversed; // borrowed values, last argument first as automation wants them
    std::for_each(std::rbegin(arguments), std::rend(arguments),
                  [&](Variant const& argument) { reversed.push_back(argument.get()); });
    for (auto const& [sink, cookie] : m_eventPoint.snapshot()) {
        if (m_ended) // by a sink that was called before this one
            return;
        DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        Variant result;
        // Connected as the event interface, which is a dispatch interface and so begins like IDispatch.
        static_cast<IDispatch*>(sink.get())
            ->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, result.address(),
                     nullptr, nullptr);
    }
}

void Events::notifyChanged(DISPID property)
{
    if (m_notifyPoint.empty())
        return;
    auto const alive = m_surface.keepAlive();
    for (auto const& [sink, cookie] : m_notifyPoint.snapshot())
        static_cast<IPropertyNotifySink*>(sink.get())->OnChanged(property);
}

void Events::disconnect() noexcept
{
    m_eventPoint.clear();
    m_notifyPoint.clear();
}

} // namespace quillet
