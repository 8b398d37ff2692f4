// A control's dual interface, for late binding.
#include "surface/faces/Automation.h"

#include "base/Module.h"
#include "base/RunTimeError.h"
#include "surface/Surface.h"
#include "surface/faces/MemberCall.h"

#include <olectl.h>

#include <algorithm>

namespace quillet {

namespace {

/// The system loads it once for all who hold it.
ComPtr<ITypeLib> ownTypeLibrary()
{
    std::wstring const path = modulePath();
    if (path.empty())
        throw RunTimeError(TYPE_E_CANTLOADLIBRARY);
    ComPtr<ITypeLib> library;
    check(::LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.put()));
    return library;
}

wchar_t lowerLetter(wchar_t c) noexcept { return c >= L'A' && c <= L'Z' ? c + (L'a' - L'A') : c; }

/// Without regard to case: published names are plain letters.
bool sameName(std::wstring_view a, std::wstring_view b) noexcept
{
    return std::ranges::equal(a, b, {}, lowerLetter, lowerLetter);
}

DISPID memberNamed(Members members, std::wstring_view name) noexcept
{
    for (Member const& member : members)
        if (sameName(member.name, name))
            return member.id;
    return DISPID_UNKNOWN;
}

DISPID parameterNamed(Members members, DISPID id, std::wstring_view name) noexcept
{
    for (Member const& member : members)
        if (member.id == id && member.kind == MemberKind::WindowProcedure)
            for (DISPID i = 0; std::wstring_view const parameter : kMessageParameters) {
                if (sameName(parameter, name))
                    return i;
                ++i;
            }
    return DISPID_UNKNOWN;
}

} // namespace

void requireReadable(DISPPARAMS const& arguments)
{
    if ((arguments.cArgs && !arguments.rgvarg) || (arguments.cNamedArgs && !arguments.rgdispidNamedArgs) ||
        arguments.cNamedArgs > arguments.cArgs)
        throw RunTimeError(E_INVALIDARG);
    for (UINT i = 0; i < arguments.cArgs; ++i)
        if (refersToNothing(arguments.rgvarg[i]))
            throw RunTimeError(DISP_E_TYPEMISMATCH);
}

ComPtr<ITypeInfo> ownTypeInfo(GUID const& id)
{
    ComPtr<ITypeInfo> info;
    check(ownTypeLibrary()->GetTypeInfoOfGuid(id, info.put()));
    return info;
}

HRESULT Automation::getTypeInfo(Surface& surface, UINT index, ITypeInfo** info) noexcept
{
    return comCall([&] {
        deref(info) = nullptr;
        if (index != 0)
            throw RunTimeError(DISP_E_BADINDEX);
        if (!m_info)
            m_info = ownTypeInfo(surface.controlClass().interfaceId);
        *info = m_info.copy();
    });
}

// Names and calls are answered from the table of members: that needs no type library, which may be missing,
// and is several times as quick as the system's search.

HRESULT Automation::getIdsOfNames(Surface& surface, LPOLESTR* names, UINT count, DISPID* ids) noexcept
{
    return comCall([&] {
        deref(names);
        deref(ids);
        Members const members = surface.controlClass().members;
        bool allKnown = true;
        for (UINT i = 0; i < count; ++i) {
            std::wstring_view const name = &deref(names[i]);
            ids[i] = i == 0 ? memberNamed(members, name) : parameterNamed(members, ids[0], name);
            allKnown = allKnown && ids[i] != DISPID_UNKNOWN;
        }
        return allKnown ? S_OK : DISP_E_UNKNOWNNAME;
    });
}

HRESULT Automation::invoke(Surface& surface, IDispatch* dual, DISPID id, WORD kind, DISPPARAMS* arguments,
                           VARIANT* result, EXCEPINFO* exception, UINT* badArgument) noexcept
{
    auto const alive = surface.keepAlive();
    return comCall([&] {
        requireReadable(deref(arguments));
        // A container presses a default or cancel button by this identifier, which no library publishes.
        if (id == DISPID_DOCLICK && (kind & DISPATCH_METHOD)) {
            surface.doClick();
            return S_OK;
        }
        ControlClass const& own = surface.controlClass();
        return callMember(deref(dual), own.members, {id, kind, *arguments, result, exception, badArgument},
                          own.errorSource());
    });
}

} // namespace quillet
