// Recording counterparts of who listens to a control: its events, its changed properties, its changed look.
#pragma once

#include "base/Variant.h"
#include "kit/Counterpart.h"
#include "kit/NotCopied.h"

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>

#include <objidl.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace quillet::kit {

/// Keeps each event with its arguments in declared order. An action may run inside an event.
class EventRecorder final : public DispatchCounterpart<IDispatch> {
public:
    struct Event {
        DISPID id;
        std::vector<VARTYPE> types; ///< as they came, by reference or not
        std::vector<Variant> values;
    };

    explicit EventRecorder(REFIID eventsId) : m_eventsId(eventsId) {}

    std::vector<Event> events;
    std::function<void(Event const&)> action;
    HRESULT answer = S_OK;

    std::vector<DISPID> ids() const
    {
        std::vector<DISPID> result;
        for (Event const& event : events)
            result.push_back(event.id);
        return result;
    }
    int count(DISPID id) const { return static_cast<int>(std::ranges::count(events, id, &Event::id)); }
    void forget() { events.clear(); }

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                        UINT*) override
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

private:
    void* faceOf(REFIID iid) noexcept override
    {
        return iid == m_eventsId ? static_cast<IDispatch*>(this) : Counterpart::faceOf(iid);
    }

    IID m_eventsId;
};

/// Keeps the identifiers of changed properties.
class ChangeRecorder final : public Counterpart<IPropertyNotifySink> {
public:
    std::vector<DISPID> changed;
    std::vector<DISPID> requested;
    std::function<void(DISPID)> action;

    std::vector<DISPID> take() { return std::exchange(changed, {}); }

    STDMETHODIMP OnChanged(DISPID id) override
    {
        changed.push_back(id);
        ComPtr<IUnknown> const alive(unknown());
        if (auto const run = action)
            run(id);
        return S_OK;
    }
    STDMETHODIMP OnRequestEdit(DISPID id) override
    {
        requested.push_back(id);
        return S_OK;
    }
};

/// Keeps what an advise sink is told, as "OnViewChange(1,-1)".
class ViewRecorder final : public Counterpart<IAdviseSink> {
public:
    std::vector<std::string> calls;
    std::function<void(std::string const&)> action;

    int count(std::string const& call) const { return static_cast<int>(std::ranges::count(calls, call)); }

    STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM*) override { note("OnDataChange"); }
    STDMETHODIMP_(void) OnViewChange(DWORD aspect, LONG index) override
    {
        note("OnViewChange(" + std::to_string(aspect) + ',' + std::to_string(index) + ')');
    }
    STDMETHODIMP_(void) OnRename(IMoniker*) override { note("OnRename"); }
    STDMETHODIMP_(void) OnSave() override { note("OnSave"); }
    STDMETHODIMP_(void) OnClose() override { note("OnClose"); }

private:
    void note(std::string const& call)
    {
        calls.push_back(call);
        ComPtr<IUnknown> const alive(unknown());
        if (auto const run = action)
            run(call);
    }
};

/// A sink joined to one connection point of an object, for one scope.
class Connection : NotCopied {
public:
    Connection(IUnknown* object, REFIID pointId, IUnknown* sink)
    {
        auto const container = query<IConnectionPointContainer>(object);
        if (container && SUCCEEDED(container->FindConnectionPoint(pointId, m_point.put())) && m_point)
            m_point->Advise(sink, &m_cookie);
    }
    ~Connection() { cut(); }

    bool joined() const noexcept { return m_cookie != 0; }
    HRESULT cut()
    {
        if (!m_point || !m_cookie)
            return S_FALSE;
        HRESULT const result = m_point->Unadvise(std::exchange(m_cookie, 0));
        m_point.reset();
        return result;
    }
    /// Leaves the sink where it is, and gives up the reference.
    void abandon() noexcept
    {
        m_cookie = 0;
        m_point.reset();
    }

private:
    ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
};

/// A recorder of an object's events, joined for one scope.
class Listening {
public:
    Listening(IUnknown* object, REFIID eventsId)
        : m_events(make<EventRecorder>(eventsId)), m_connection(object, eventsId, m_events->unknown())
    {}
    EventRecorder* operator->() const noexcept { return m_events.get(); }
    Connection& connection() noexcept { return m_connection; }

private:
    ComPtr<EventRecorder> m_events;
    Connection m_connection;
};

} // namespace quillet::kit
