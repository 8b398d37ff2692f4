// Arguments that refer to nothing, where the system follows every reference without looking.
#include "HostileTest.h"
#include "Values.h"
#include "kit/ByName.h"

namespace quillet::hostile {
namespace {

class HostileReference : public HostileControlTest {
protected:
    ComPtr<IUnknown> control = library().create(kind().classId);
    ComPtr<IDispatch> own = query<IDispatch>(control.get());

    void TearDown() override
    {
        own.reset();
        control.reset();
        HostileControlTest::TearDown();
        expectNothingLeft();
    }
};
QV_ALL_CONTROLS(HostileReference);

TEST_P(HostileReference, toNothingIsRefusedByEveryProperty)
{
    VARIANT inside{};
    inside.vt = VT_I4 | VT_BYREF;
    for (wchar_t const* const name : {L"Caption", L"BackColor", L"Enabled", L"BorderWidth", L"Font", L"Value",
                                      L"CaptionIndent", L"MousePointer", L"Image"}) {
        if (kit::idOf(*own.get(), name) == DISPID_UNKNOWN)
            continue;
        for (VARTYPE const type : {VT_I2, VT_I4, VT_BSTR, VT_BOOL, VT_VARIANT, VT_DISPATCH, VT_UNKNOWN})
            EXPECT_TRUE(FAILED(kit::putByName(*own.get(), name, referring(type, nullptr)).result))
                << kit::idOf(*own.get(), name) << ' ' << type;
        EXPECT_TRUE(FAILED(kit::putByName(*own.get(), name, referring(VT_VARIANT, &inside)).result));
    }
}

TEST_P(HostileReference, toSomethingIsFollowed)
{
    long colour = 0x123456;
    EXPECT_EQ(kit::putByName(*own.get(), L"BackColor", referring(VT_I4, &colour)).result, S_OK);
    EXPECT_EQ(kit::getByName(*own.get(), L"BackColor").value.toLong(), colour);
}

TEST_P(HostileReference, ofACallWithoutItsArgumentsIsRefused)
{
    DISPPARAMS none{nullptr, nullptr, 2, 0};
    DISPPARAMS unnamed{nullptr, nullptr, 0, 1};
    for (DISPPARAMS* const arguments : {&none, &unnamed})
        for (WORD const how :
             std::initializer_list<WORD>{DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT})
            EXPECT_EQ(own->Invoke(kit::idOf(*own.get(), L"Caption"), IID_NULL, LOCALE_USER_DEFAULT, how,
                                  arguments, nullptr, nullptr, nullptr),
                      E_INVALIDARG);
}

} // namespace
} // namespace quillet::hostile
