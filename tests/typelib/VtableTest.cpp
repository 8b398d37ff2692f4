// The C++ interfaces and the library agree on the place of every function in the vtable: each is called where
// the library says it is, and must be the one that the library names.
#include "BuiltLibrary.h"
#include "base/Bstr.h"
#include "kit/Counterpart.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <gtest/gtest.h>
#include <oleauto.h>

#include <string>

namespace quillet {
namespace {

/// Implements no late binding; every other method notes its name.
template <class Interface> class Recorder : public kit::DispatchCounterpart<Interface> {
public:
    std::wstring last;

protected:
    HRESULT note(wchar_t const* what)
    {
        last = what;
        return S_OK;
    }
};

// clang-format off
struct FlatCommand : Recorder<_qvFlatCommand> {
#include "RecordingRows.inc"
#include "typelib/members/qvFlatCommand.inc"
};
struct FlatOption : Recorder<_qvFlatOption> {
#include "RecordingRows.inc"
#include "typelib/members/qvFlatOption.inc"
};
struct FlatCheck : Recorder<_qvFlatCheck> {
#include "RecordingRows.inc"
#include "typelib/members/qvFlatCheck.inc"
};
struct ToolButton : Recorder<_FlatToolButton> {
#include "RecordingRows.inc"
#include "typelib/members/FlatToolButton.inc"
};
struct ImageCommand : Recorder<_qvImageCommand> {
#include "RecordingRows.inc"
#include "typelib/members/qvImageCommand.inc"
};
// clang-format on

wchar_t const* prefixOf(INVOKEKIND kind)
{
    switch (kind) {
    case INVOKE_PROPERTYGET:
        return L"get_";
    case INVOKE_PROPERTYPUT:
        return L"put_";
    case INVOKE_PROPERTYPUTREF:
        return L"putref_";
    case INVOKE_FUNC:
        return L"";
    }
    return L"?";
}

/// As DispCallFunc passes it: enumerations and colours are 32-bit integers, all pointers alike.
VARTYPE passedAs(TYPEDESC const& type)
{
    if (type.vt == VT_PTR)
        return sizeof(void*) == 8 ? VARTYPE{VT_I8} : VARTYPE{VT_I4};
    return type.vt == VT_USERDEFINED ? VARTYPE{VT_I4} : type.vt;
}

HRESULT callAt(void* object, FUNCDESC const& function)
{
    VARTYPE types[8] = {};
    VARIANTARG values[8] = {};
    VARIANTARG* arguments[8] = {};
    for (SHORT i = 0; i < function.cParams; ++i) {
        types[i] = passedAs(function.lprgelemdescParam[i].tdesc);
        values[i].vt = types[i];
        arguments[i] = &values[i];
    }
    VARIANT result{};
    HRESULT const called = ::DispCallFunc(object, static_cast<ULONG_PTR>(function.oVft), CC_STDCALL, VT_ERROR,
                                          static_cast<UINT>(function.cParams), types, arguments, &result);
    return FAILED(called) ? called : result.scode;
}

template <class Object> void expectSameSlots(GUID const& id, UINT functions)
{
    auto const object = kit::make<Object>();
    ComPtr<ITypeInfo> const info = builtVtable(id);
    ASSERT_EQ(TypeAttributes(*info.get())->cFuncs, functions);
    EXPECT_EQ(TypeAttributes(*info.get())->cbSizeVft, (functions + 7) * sizeof(void*));
    for (UINT i = 0; i < functions; ++i) {
        FunctionDescription const function(*info.get(), i);
        Bstr name;
        check(info->GetDocumentation(function->memid, name.put(), nullptr, nullptr, nullptr));
        object->last = L"nothing";
        EXPECT_EQ(callAt(static_cast<IDispatch*>(object.get()), *function), S_OK);
        EXPECT_EQ(object->last, prefixOf(function->invkind) + std::wstring(name.view()));
    }
}

TEST(Vtable, ofEveryDefaultInterfaceIsAsTheLibraryDescribesIt)
{
    expectSameSlots<FlatCommand>(__uuidof(_qvFlatCommand), 54);
    expectSameSlots<FlatOption>(__uuidof(_qvFlatOption), 18);
    expectSameSlots<FlatCheck>(__uuidof(_qvFlatCheck), 18);
    expectSameSlots<ToolButton>(__uuidof(_FlatToolButton), 92);
    expectSameSlots<ImageCommand>(__uuidof(_qvImageCommand), 92);
}

} // namespace
} // namespace quillet
