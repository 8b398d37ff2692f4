// Recording counterparts of who listens to a control: its events, its changed properties, its changed look.
#include "kit/Sinks.h"

#include <algorithm>

namespace quillet::kit {

std::vector<DISPID> EventRecorder::ids() const
{
    std::vector<DISPID> result;
    for (Event const& event : events)
        result.push_back(event.id);
    return result;
}

int EventRecorder::count(DISPID id) const
{
    return static_cast<int>(std::ranges::count(events, id, &Event::id));
}

void* EventRecorder::faceOf(REFIID iid) noexcept
{
    return iid == m_eventsId ? static_cast<IDispatch*>(this) : Counterpart::faceOf(iid);
}

STDMETHODIMP EventRecorder::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                                   UINT*)
{
    Event event{id, {}, {}};
    for (UINT i = arguments ? arguments->cArgs : 0; i-- > 0;) { // the last argument comes first
        event.types.push_back(arguments->rgvarg[i].vt);
        event.values.push_back(Variant::copyOf(arguments->rgvarg[i]));
    }
    events.push_back(event);
    ComPtr<IUnknown> const alive(unknown()); // the action may cut the connection
    if (auto const run = action)
        run(event);
    return answer;
}

STDMETHODIMP ChangeRecorder::OnChanged(DISPID id)
{
    changed.push_back(id);
    ComPtr<IUnknown> const alive(unknown());
    if (auto const run = action)
        run(id);
    return S_OK;
}

STDMETHODIMP ChangeRecorder::OnRequestEdit(DISPID id)
{
    requested.push_back(id);
    return S_OK;
}

int ViewRecorder::count(std::string const& call) const
{
    return static_cast<int>(std::ranges::count(calls, call));
}

STDMETHODIMP_(void) ViewRecorder::OnViewChange(DWORD aspect, LONG index)
{
    note("OnViewChange(" + std::to_string(aspect) + ',' + std::to_string(index) + ')');
}

void ViewRecorder::note(std::string const& call)
{
    calls.push_back(call);
    ComPtr<IUnknown> const alive(unknown());
    if (auto const run = action)
        run(call);
}

Connection::Connection(IUnknown* object, REFIID pointId, IUnknown* sink)
{
    auto const container = query<IConnectionPointContainer>(object);
    if (container && SUCCEEDED(container->FindConnectionPoint(pointId, m_point.put())) && m_point)
        m_point->Advise(sink, &m_cookie);
}

HRESULT Connection::cut()
{
    if (!m_point || !m_cookie)
        return S_FALSE;
    HRESULT const result = m_point->Unadvise(std::exchange(m_cookie, 0));
    m_point.reset();
    return result;
}

} // namespace quillet::kit
