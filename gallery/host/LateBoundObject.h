// Members that are called by name: a table of rows makes an IDispatch.
#pragma once

#include "base/ComCall.h"
#include "base/Counted.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"
#include "gallery/form/Names.h"

#include <oaidl.h>
#include <windows.h>

#include <oleauto.h>

#include <span>
#include <string_view>

namespace quillet::gallery {

/// The arguments of one call by name, in the order in which the caller wrote them.
class Arguments {
public:
    explicit Arguments(DISPPARAMS const* borrowed) noexcept : m_params(borrowed) {}

    unsigned count() const noexcept { return m_params ? m_params->cArgs : 0; }
    /// A copy of one argument; DISP_E_PARAMNOTOPTIONAL when the caller gave too few.
    Variant at(unsigned index) const;

private:
    DISPPARAMS const* m_params;
};

/// One member. get serves reading and calling; a null put makes it read-only.
template <class Owner> struct Member {
    wchar_t const* name;
    DISPID id;
    Variant (*get)(Owner&, Arguments const&);
    void (*put)(Owner&, Variant const&);
};

template <class Owner>
Member<Owner> const* findMember(std::span<Member<Owner> const> rows, std::wstring_view name)
{
    for (Member<Owner> const& row : rows)
        if (sameName(row.name, name))
            return &row;
    return nullptr;
}

inline bool isPut(WORD flags) noexcept
{
    return (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
}

/// Reads, writes or calls the member with that identifier; DISP_E_MEMBERNOTFOUND when there is none.
template <class Owner>
Variant invokeMember(std::span<Member<Owner> const> rows, Owner& owner, DISPID id, WORD flags,
                     Arguments const& arguments)
{
    for (Member<Owner> const& row : rows) {
        if (row.id != id)
            continue;
        if (!isPut(flags) && row.get)
            return row.get(owner, arguments);
        if (!isPut(flags) || !row.put)
            break;
        row.put(owner, arguments.at(0));
        return {};
    }
    throw RunTimeError(DISP_E_MEMBERNOTFOUND);
}

/// Calls IDispatch::GetIDsOfNames' work for each name: the member first, and no named arguments.
HRESULT answerNames(LPOLESTR* names, UINT count, DISPID* ids, DISPID (*find)(void*, std::wstring_view),
                    void* owner);

/// An IDispatch without type information, for objects whose callers bind late.
template <class... MoreFaces> class LateBoundObject : public Counted<IDispatch, MoreFaces...> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        return comCall([&] { deref(count) = 0; });
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override
    {
        return comCall([&] {
            return answerNames(
                names, count, ids,
                [](void* self, std::wstring_view name) {
                    return static_cast<LateBoundObject*>(self)->idOf(name);
                },
                this);
        });
    }

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                                     EXCEPINFO*, UINT*) override
    {
        return comCall([&] {
            Variant answer = invoke(id, flags, Arguments(params));
            if (result)
                *result = answer.detach();
        });
    }

protected:
    /// The identifier of a member; DISPID_UNKNOWN when there is none of that name.
    virtual DISPID idOf(std::wstring_view name) = 0;
    virtual Variant invoke(DISPID id, WORD flags, Arguments const& arguments) = 0;
};

} // namespace quillet::gallery
