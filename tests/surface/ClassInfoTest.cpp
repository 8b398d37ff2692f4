// What a control says about itself: its class, its events, whose errors it explains.
#include "SurfaceTest.h"
#include "typelib/Borrowed.h"

namespace quillet::hosting {
namespace {

class ClassInfo : public SurfaceTest {};

TEST_F(ClassInfo, isTheDescriptionOfItsClass)
{
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(as<IProvideClassInfo>()->GetClassInfo(info.put()), S_OK);
    ASSERT_TRUE(info);
    TypeAttributes const attributes(*info.get());
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    EXPECT_EQ(attributes->guid, kQvFlatCommandClass);
    EXPECT_EQ(as<IProvideClassInfo>()->GetClassInfo(nullptr), E_POINTER);
}

TEST_F(ClassInfo, leadsToADefaultSourceThatIsADispatchInterface)
{
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(as<IProvideClassInfo2>()->GetClassInfo(info.put()), S_OK);
    TypeAttributes const attributes(*info.get());
    int sources = 0;
    for (UINT i = 0; i < attributes->cImplTypes; ++i) {
        INT flags = 0;
        ASSERT_EQ(info->GetImplTypeFlags(i, &flags), S_OK);
        if ((flags & (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE)) !=
            (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE))
            continue;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> source;
        ASSERT_EQ(info->GetRefTypeOfImplType(i, &reference), S_OK);
        ASSERT_EQ(info->GetRefTypeInfo(reference, source.put()), S_OK);
        TypeAttributes const of(*source.get());
        EXPECT_EQ(of->typekind, TKIND_DISPATCH);
        EXPECT_EQ(of->guid, kQvFlatCommandEvents);
        ++sources;
    }
    EXPECT_EQ(sources, 1);
}

TEST_F(ClassInfo, namesItsEventInterface)
{
    auto const info = as<IProvideClassInfo2>();
    GUID events{};
    EXPECT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_EQ(events, kQvFlatCommandEvents);
    EXPECT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr), E_POINTER);
    EXPECT_TRUE(FAILED(info->GetGUID(99, &events)));
}

TEST_F(ClassInfo, explainsTheErrorsOfItsOwnInterfaceOnly)
{
    auto const support = as<ISupportErrorInfo>();
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(kQvFlatCommandInterface), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(IOleObject)), S_FALSE);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(IDataObject)), S_FALSE);
}

} // namespace
} // namespace quillet::hosting
