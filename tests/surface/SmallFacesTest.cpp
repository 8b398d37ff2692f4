// IObjectWithSite and IObjectSafety.
#include "Interfaces.h"
#include "SurfaceTest.h"

namespace quillet::hosting {
namespace {

class SmallFaces : public SurfaceTest {};

TEST_F(SmallFaces, aSecondSiteIsKeptAndDoesNotReplaceTheClientSite)
{
    ASSERT_EQ(control.setSite(), S_OK);
    auto const face = as<IObjectWithSite>();
    ASSERT_EQ(face->SetSite(form.frame().unknown()), S_OK);
    ComPtr<IOleClientSite> client;
    EXPECT_EQ(as<IOleObject>()->GetClientSite(client.put()), S_OK);
    EXPECT_EQ(client.get(), &control.site());
    ComPtr<IOleWindow> kept;
    EXPECT_EQ(face->GetSite(__uuidof(IOleWindow), reinterpret_cast<void**>(kept.put())), S_OK);
    EXPECT_TRUE(kept);
    auto* poison = reinterpret_cast<void*>(&form);
    EXPECT_EQ(face->GetSite(__uuidof(IDataObject), &poison), E_NOINTERFACE);
    EXPECT_EQ(poison, nullptr);
    EXPECT_EQ(face->GetSite(IID_IUnknown, nullptr), E_POINTER);
    ASSERT_EQ(face->SetSite(nullptr), S_OK);
    poison = reinterpret_cast<void*>(&form);
    EXPECT_TRUE(FAILED(face->GetSite(IID_IUnknown, &poison)));
    EXPECT_EQ(poison, nullptr);
}

TEST_F(SmallFaces, aSecondSiteIsLetGoWithTheControl)
{
    ULONG const before = form.frame().references();
    ASSERT_EQ(as<IObjectWithSite>()->SetSite(form.frame().unknown()), S_OK);
    EXPECT_GT(form.frame().references(), before);
    control.remove();
    EXPECT_EQ(form.frame().references(), before);
}

TEST_F(SmallFaces, untrustedDataIsAcceptedForLoading)
{
    auto const safety = as<IObjectSafety>();
    for (IID const& iid :
         {__uuidof(IPersistStreamInit), __uuidof(IPersistPropertyBag), __uuidof(IPersistStorage)}) {
        DWORD supported = 77;
        DWORD enabled = 77;
        EXPECT_EQ(safety->GetInterfaceSafetyOptions(iid, &supported, &enabled), S_OK);
        EXPECT_EQ(supported, static_cast<DWORD>(INTERFACESAFE_FOR_UNTRUSTED_DATA));
        EXPECT_EQ(safety->SetInterfaceSafetyOptions(iid, INTERFACESAFE_FOR_UNTRUSTED_DATA,
                                                    INTERFACESAFE_FOR_UNTRUSTED_DATA),
                  S_OK);
        EXPECT_EQ(safety->GetInterfaceSafetyOptions(iid, &supported, &enabled), S_OK);
        EXPECT_EQ(enabled, static_cast<DWORD>(INTERFACESAFE_FOR_UNTRUSTED_DATA));
    }
}

TEST_F(SmallFaces, untrustedCallersAreRefused)
{
    auto const safety = as<IObjectSafety>();
    for (IID const& iid : {IID_IDispatch, kQvFlatCommandInterface, kQvFlatCommandEvents,
                           __uuidof(IPersistStreamInit), __uuidof(IPersistPropertyBag)}) {
        EXPECT_TRUE(FAILED(safety->SetInterfaceSafetyOptions(iid, INTERFACESAFE_FOR_UNTRUSTED_CALLER,
                                                             INTERFACESAFE_FOR_UNTRUSTED_CALLER)));
        EXPECT_TRUE(FAILED(safety->SetInterfaceSafetyOptions(
            iid, INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA,
            INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA)));
        DWORD supported = 0;
        DWORD enabled = 0;
        if (SUCCEEDED(safety->GetInterfaceSafetyOptions(iid, &supported, &enabled))) {
            EXPECT_FALSE((supported | enabled) & INTERFACESAFE_FOR_UNTRUSTED_CALLER);
        }
    }
}

TEST_F(SmallFaces, safetyOfAnInterfaceThatItHasNotIsRefused)
{
    auto const safety = as<IObjectSafety>();
    DWORD supported = 0;
    DWORD enabled = 0;
    EXPECT_EQ(safety->GetInterfaceSafetyOptions(__uuidof(IPersistFile), &supported, &enabled), E_NOINTERFACE);
    EXPECT_TRUE(FAILED(safety->GetInterfaceSafetyOptions(IID_IDispatch, nullptr, nullptr)));
}

} // namespace
} // namespace quillet::hosting
