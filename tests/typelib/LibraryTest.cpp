// The built type library equals its reference, written by hand, and the tables of members say the same.
#include "BuiltLibrary.h"
#include "DumpWords.h"
#include "LibraryDump.h"
#include "typelib/Guids.h"
#include "typelib/Members.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace quillet {
namespace {

TEST(TypeLibrary, equalsItsReferenceLineByLine)
{
    std::vector<std::string> const expected = referenceLines();
    std::vector<std::string> const actual = describe(*builtLibrary().get());
    ASSERT_GT(expected.size(), 600u);
    std::size_t differences = 0;
    for (std::size_t i = 0; i < std::min(expected.size(), actual.size()) && differences < 20; ++i) {
        EXPECT_EQ(actual[i], expected[i]) << "in line " << i + 1;
        differences += actual[i] != expected[i];
    }
    EXPECT_EQ(actual.size(), expected.size());
}

struct Listed {
    IID id;
    Members members;
};

Listed const kInterfaces[] = {{kQvFlatCommandInterface, kQvFlatCommandMembers},
                              {kQvImageCommandInterface, kImageButtonMembers},
                              {kFlatToolButtonInterface, kImageButtonMembers},
                              {kQvFlatOptionInterface, kQvFlatOptionMembers},
                              {kQvFlatCheckInterface, kQvFlatCheckMembers}};

/// The ways in which a kind of member is called, in vtable order.
std::vector<INVOKEKIND> callsOf(MemberKind kind)
{
    switch (kind) {
    case MemberKind::Value:
        return {INVOKE_PROPERTYGET, INVOKE_PROPERTYPUT};
    case MemberKind::Object:
        return {INVOKE_PROPERTYGET, INVOKE_PROPERTYPUTREF};
    case MemberKind::ReadOnly:
        return {INVOKE_PROPERTYGET};
    case MemberKind::Method:
    case MemberKind::Function:
    case MemberKind::WindowProcedure:
        return {INVOKE_FUNC};
    }
    return {};
}

/// The automation type behind a described one.
VARTYPE typeBehind(ITypeInfo& info, TYPEDESC const& type)
{
    if (type.vt == VT_PTR)
        return VT_DISPATCH; // objects are handled by pointer
    if (type.vt != VT_USERDEFINED)
        return type.vt;
    ComPtr<ITypeInfo> described;
    check(info.GetRefTypeInfo(type.hreftype, described.put()));
    TypeAttributes const attributes(*described.get());
    return attributes->typekind == TKIND_ALIAS ? attributes->tdescAlias.vt : VARTYPE{VT_I4};
}

TEST(Members, areNamedAndPlacedAsTheLibrarySays)
{
    for (Listed const& each : kInterfaces) {
        ComPtr<ITypeInfo> const info = builtVtable(each.id);
        UINT index = 0;
        for (Member const& member : each.members) {
            unsigned slot = slotOf(each.members, member);
            for (INVOKEKIND const call : callsOf(member.kind)) {
                FunctionDescription const function(*info.get(), index++);
                EXPECT_EQ(function->memid, member.id) << nameOf(*info.get(), member.id);
                EXPECT_EQ(function->invkind, call) << nameOf(*info.get(), member.id);
                EXPECT_EQ(function->oVft / sizeof(void*), slot++) << nameOf(*info.get(), member.id);
                EXPECT_EQ(nameOf(*info.get(), function->memid), narrow(member.name));
            }
        }
        EXPECT_EQ(index, TypeAttributes(*info.get())->cFuncs);
    }
}

TEST(Members, haveTheTypesThatTheLibrarySays)
{
    for (Listed const& each : kInterfaces) {
        ComPtr<ITypeInfo> const info = builtVtable(each.id);
        for (Member const& member : each.members) {
            if (member.kind == MemberKind::Method || member.kind == MemberKind::WindowProcedure)
                continue;
            FunctionDescription const first(*info.get(), slotOf(each.members, member) - 7);
            ASSERT_EQ(first->cParams, 1);
            TYPEDESC const& result = *first->lprgelemdescParam[0].tdesc.lptdesc;
            EXPECT_EQ(member.type, typeBehind(*info.get(), result)) << nameOf(*info.get(), member.id);
        }
    }
}

TEST(Members, nameTheParametersOfTheWindowProcedureAsTheLibraryDoes)
{
    for (Listed const& each : kInterfaces) {
        ComPtr<ITypeInfo> info;
        ASSERT_EQ(builtLibrary()->GetTypeInfoOfGuid(each.id, info.put()), S_OK);
        auto const member = std::ranges::find(each.members, MemberKind::WindowProcedure, &Member::kind);
        ASSERT_NE(member, each.members.end());
        BSTR names[8] = {};
        UINT count = 0;
        ASSERT_EQ(info->GetNames(member->id, names, 8, &count), S_OK);
        std::vector<std::wstring> told;
        for (UINT i = 0; i < count; ++i)
            told.emplace_back(Bstr::adopt(names[i]).view());
        EXPECT_EQ(told, (std::vector<std::wstring>{L"WindowProc", L"hwnd", L"uMsg", L"wParam", L"lParam"}));
        for (UINT i = 1; i < count; ++i)
            EXPECT_EQ(told[i], kMessageParameters[i - 1]);
    }
}

} // namespace
} // namespace quillet
