// Listens to a control's events and names them.
#pragma once

#include "base/ComPtr.h"
#include "base/Counted.h"

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>

#include <functional>
#include <string_view>

namespace quillet::gallery {

/// The default source interface of a control.
struct EventSource {
    IID interfaceId = IID_NULL; ///< IID_NULL when the control has none
    ComPtr<ITypeInfo> typeInfo; ///< its description; empty when the control has none to give
};

/// Asks the control itself, then the coclass it was made from, which may be null.
EventSource eventSourceOf(IUnknown* control, ITypeInfo* classInfo);

/// A dispatch sink for one source interface. Every event goes to the handler by its name.
class EventSink final : public Counted<IDispatch> {
public:
    using Handler = std::function<void(std::wstring_view name, DISPPARAMS const& arguments)>;

    EventSink(EventSource source, Handler handler)
        : m_source(std::move(source)), m_handler(std::move(handler))
    {}

    /// No event comes through any more.
    void disconnect() noexcept { m_handler = nullptr; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*,
                                     EXCEPINFO*, UINT*) override;

protected:
    IUnknown* inheritedInterface(REFIID iid) noexcept override
    {
        return iid == m_source.interfaceId ? static_cast<IDispatch*>(this) : nullptr;
    }

private:
    EventSource m_source;
    Handler m_handler;
};

/// A sink that is advised at one connection point, until its end.
class Connection {
public:
    Connection() noexcept = default;
    /// Nothing is connected when the control has no such point or refuses.
    Connection(IUnknown* source, REFIID iid, IUnknown* sink) noexcept;
    Connection(Connection&&) noexcept = default;
    Connection& operator=(Connection&& other) noexcept;
    ~Connection() { end(); }

    void end() noexcept;

private:
    ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
};

} // namespace quillet::gallery
