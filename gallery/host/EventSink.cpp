// Listens to a control's events and names them.
#include "gallery/host/EventSink.h"

#include "base/Borrowed.h"
#include "base/Bstr.h"
#include "base/ComCall.h"
#include "base/RunTimeError.h"

#include <string>
#include <utility>

namespace quillet::gallery {

namespace {

ComPtr<ITypeInfo> classInfoOf(IUnknown* control, ITypeInfo* known)
{
    ComPtr<ITypeInfo> info;
    auto const provider = query<IProvideClassInfo>(control);
    if (provider && SUCCEEDED(provider->GetClassInfo(info.put())) && info)
        return info;
    return known;
}

/// The description of the coclass's default source; empty when it has none.
ComPtr<ITypeInfo> defaultSource(ITypeInfo& coclass)
{
    constexpr int kWanted = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
    TypeRecord attributes(coclass);
    check(coclass.GetTypeAttr(attributes.put()));
    for (UINT i = 0; i < attributes->cImplTypes; ++i) {
        int flags = 0;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> source;
        if (FAILED(coclass.GetImplTypeFlags(i, &flags)) || (flags & kWanted) != kWanted)
            continue;
        if (SUCCEEDED(coclass.GetRefTypeOfImplType(i, &reference)) &&
            SUCCEEDED(coclass.GetRefTypeInfo(reference, source.put())))
            return source;
    }
    return {};
}

std::wstring eventName(ITypeInfo* info, DISPID id)
{
    Bstr name;
    UINT count = 0;
    if (info && SUCCEEDED(info->GetNames(id, name.put(), 1, &count)) && count == 1)
        return std::wstring(name.view());
    return L"Event " + std::to_wstring(id);
}

} // namespace

EventSource eventSourceOf(IUnknown* control, ITypeInfo* classInfo)
{
    EventSource source;
    if (ComPtr<ITypeInfo> const coclass = classInfoOf(control, classInfo))
        ignoringErrors([&] { source.typeInfo = defaultSource(*coclass.get()); });
    if (source.typeInfo)
        ignoringErrors([&] {
            TypeRecord attributes(*source.typeInfo.get());
            check(source.typeInfo->GetTypeAttr(attributes.put()));
            source.interfaceId = attributes->guid;
        });
    GUID asked{};
    auto const provider = query<IProvideClassInfo2>(control);
    if (provider && SUCCEEDED(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &asked)))
        source.interfaceId = asked;
    return source;
}

HRESULT STDMETHODCALLTYPE EventSink::GetTypeInfoCount(UINT* count)
{
    return comCall([&] { deref(count) = 0; });
}

HRESULT STDMETHODCALLTYPE EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*,
                                            EXCEPINFO*, UINT*)
{
    return comCall([&] {
        Handler const handler = m_handler; // the handler may end the control, and this with it
        if (handler)
            handler(eventName(m_source.typeInfo.get(), id), deref(arguments));
    });
}

Connection::Connection(IUnknown* source, REFIID iid, IUnknown* sink) noexcept
{
    auto const container = query<IConnectionPointContainer>(source);
    ComPtr<IConnectionPoint> point;
    if (container && SUCCEEDED(container->FindConnectionPoint(iid, point.put())) && point &&
        SUCCEEDED(point->Advise(sink, &m_cookie)))
        m_point = std::move(point);
}

Connection& Connection::operator=(Connection&& other) noexcept
{
    end();
    m_point = std::move(other.m_point);
    m_cookie = other.m_cookie;
    return *this;
}

void Connection::end() noexcept
{
    if (m_point)
        m_point->Unadvise(m_cookie);
    m_point.reset();
}

} // namespace quillet::gallery
