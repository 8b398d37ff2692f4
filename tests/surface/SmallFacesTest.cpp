// The small interfaces: class information, IObjectWithSite, IObjectSafety, and one-call activation.
#include "SurfaceTest.h"
#include "kit/Fonts.h"
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

class Quick : public SurfaceTest {
protected:
    QACONTAINER container{};
    QACONTROL answer{};
    ComPtr<kit::EventRecorder> events = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    ComPtr<kit::ChangeRecorder> changes = kit::make<kit::ChangeRecorder>();

    void SetUp() override
    {
        SurfaceTest::SetUp();
        container.cbSize = sizeof container;
        container.pClientSite = &control.site();
        container.dwAmbientFlags =
            QACONTAINER_USERMODE | QACONTAINER_SUPPORTSMNEMONICS | QACONTAINER_MESSAGEREFLECT;
        answer.cbSize = sizeof answer;
    }
    /// In one call, and then to the form.
    void show()
    {
        ASSERT_EQ(activate(), S_OK);
        ASSERT_EQ(control.initNew(), S_OK);
        ASSERT_EQ(control.activate(), S_OK);
    }
    HRESULT activate() { return as<IQuickActivate>()->QuickActivate(&container, &answer); }
    void cut(IID const& iid, DWORD cookie)
    {
        ComPtr<IConnectionPoint> point;
        ASSERT_EQ(as<IConnectionPointContainer>()->FindConnectionPoint(iid, point.put()), S_OK);
        EXPECT_EQ(point->Unadvise(cookie), S_OK);
    }
};

TEST_F(Quick, setsTheSiteAndAnswersTheStatus)
{
    ASSERT_EQ(activate(), S_OK);
    ComPtr<IOleClientSite> site;
    EXPECT_EQ(as<IOleObject>()->GetClientSite(site.put()), S_OK);
    EXPECT_EQ(site.get(), &control.site());
    DWORD status = 0;
    EXPECT_EQ(as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(answer.dwMiscStatus, status);
    EXPECT_TRUE(answer.dwViewStatus & VIEWSTATUS_OPAQUE);
    EXPECT_EQ(answer.dwPointerActivationPolicy, 0U);
}

TEST_F(Quick, joinsTheSinksThatItIsGiven)
{
    auto const sinkFace = query<IUnknown>(events->unknown());
    container.pUnkEventSink = sinkFace.get();
    container.pPropertyNotifySink = changes.get();
    show();
    EXPECT_NE(answer.dwEventCookie, 0U);
    EXPECT_NE(answer.dwPropNotifyCookie, 0U);
    changes->take();
    events->forget();
    EXPECT_EQ(button()->put_BackColor(1), S_OK);
    EXPECT_EQ(events->count(kPaint), 1);
    EXPECT_THAT(changes->take(), testing::ElementsAreArray({id::BackColor}));
    cut(kQvFlatCommandEvents, answer.dwEventCookie);
    cut(__uuidof(IPropertyNotifySink), answer.dwPropNotifyCookie);
}

TEST_F(Quick, takesTheAmbientValuesWhereTheSiteHasNone)
{
    control.site().hide(IID_IDispatch);
    auto const font = kit::newFont(L"Tahoma", 22);
    container.pFont = font.get();
    container.dwAmbientFlags = 0; // design mode
    show();
    kit::Connection const joined(control.object(), kQvFlatCommandEvents, events->unknown());
    repaint();
    EXPECT_EQ(events->count(kPaint), 0) << "it was told that the form is being designed";
    ComPtr<IFontDisp> own;
    ASSERT_EQ(button()->get_Font(own.put()), S_OK);
    EXPECT_EQ(kit::pointsOf(*query<IFont>(own.get()).get()), 22);
}

TEST_F(Quick, worksWithASiteAlone)
{
    show();
    EXPECT_TRUE(isShown());
}

TEST_F(Quick, refusesNothing)
{
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->QuickActivate(nullptr, &answer)));
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->QuickActivate(&container, nullptr)));
}

TEST_F(Quick, keepsTheContentExtent)
{
    SIZEL wanted{1234, 5678};
    EXPECT_EQ(as<IQuickActivate>()->SetContentExtent(&wanted), S_OK);
    SIZEL found{};
    EXPECT_EQ(as<IQuickActivate>()->GetContentExtent(&found), S_OK);
    EXPECT_EQ(found.cx, 1234);
    EXPECT_EQ(found.cy, 5678);
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->SetContentExtent(nullptr)));
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->GetContentExtent(nullptr)));
}

} // namespace
} // namespace quillet::hosting
