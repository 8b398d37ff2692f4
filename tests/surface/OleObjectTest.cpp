// IOleObject: site, names, extents, verbs, and who is told at the end.
#include "SurfaceTest.h"
#include "kit/Fonts.h"
#include "kit/Memory.h"
#include "kit/NotCopied.h"

#include <algorithm>
#include <string>

namespace quillet::hosting {
namespace {

struct TaskString : kit::NotCopied {
    LPOLESTR text = nullptr;
    ~TaskString() { ::CoTaskMemFree(text); }
};

class OleObject : public SurfaceTest {
protected:
    ComPtr<IOleObject> object = as<IOleObject>();

    void SetUp() override
    {
        SurfaceTest::SetUp();
        ASSERT_TRUE(object);
    }
    SIZEL extent()
    {
        SIZEL size{-1, -1};
        EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, &size), S_OK);
        return size;
    }
};

TEST_F(OleObject, keepsItsSiteAndGivesItUp)
{
    ComPtr<IOleClientSite> site;
    EXPECT_EQ(object->GetClientSite(site.put()), S_OK);
    EXPECT_FALSE(site);
    ULONG const before = control.site().references();
    EXPECT_EQ(object->SetClientSite(&control.site()), S_OK);
    EXPECT_EQ(object->GetClientSite(site.put()), S_OK);
    EXPECT_EQ(site.get(), &control.site());
    site.reset();
    EXPECT_EQ(object->GetClientSite(nullptr), E_POINTER);
    EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(object->GetClientSite(site.put()), S_OK);
    EXPECT_FALSE(site);
    EXPECT_EQ(control.site().references(), before);
    EXPECT_EQ(object->GetClientSite(nullptr), E_POINTER);
}

TEST_F(OleObject, takesTheSameSiteAgain)
{
    EXPECT_EQ(object->SetClientSite(&control.site()), S_OK);
    EXPECT_EQ(object->SetClientSite(&control.site()), S_OK);
    EXPECT_EQ(control.initNew(), S_OK);
    EXPECT_EQ(control.activate(), S_OK);
    EXPECT_TRUE(isShown());
}

TEST_F(OleObject, acceptsNamesOfItsHost)
{
    EXPECT_EQ(object->SetHostNames(L"Form", L"Button"), S_OK);
    EXPECT_EQ(object->SetHostNames(L"Form", nullptr), S_OK);
}

TEST_F(OleObject, hasNoMonikerAndNoClipboardDataAndSaysSo)
{
    auto* moniker = reinterpret_cast<IMoniker*>(&control);
    EXPECT_TRUE(FAILED(object->GetMoniker(OLEGETMONIKER_ONLYIFTHERE, OLEWHICHMK_OBJFULL, &moniker)));
    EXPECT_EQ(moniker, nullptr);
    auto* data = reinterpret_cast<IDataObject*>(&control);
    EXPECT_TRUE(FAILED(object->GetClipboardData(0, &data)));
    EXPECT_EQ(data, nullptr);
    EXPECT_NE(object->InitFromData(nullptr, FALSE, 0), S_OK);
}

TEST_F(OleObject, isAlwaysUpToDate)
{
    EXPECT_EQ(object->Update(), S_OK);
    EXPECT_EQ(object->IsUpToDate(), S_OK);
}

TEST_F(OleObject, namesItsClassAndType)
{
    CLSID classId{};
    EXPECT_EQ(object->GetUserClassID(&classId), S_OK);
    EXPECT_EQ(classId, kQvFlatCommandClass);
    EXPECT_EQ(object->GetUserClassID(nullptr), E_POINTER);
    for (DWORD const kind : {USERCLASSTYPE_FULL, USERCLASSTYPE_SHORT, USERCLASSTYPE_APPNAME}) {
        TaskString name;
        ASSERT_EQ(object->GetUserType(kind, &name.text), S_OK) << kind;
        ASSERT_NE(name.text, nullptr);
        EXPECT_FALSE(std::wstring(name.text).empty());
    }
    EXPECT_EQ(object->GetUserType(USERCLASSTYPE_FULL, nullptr), E_POINTER);
}

TEST_F(OleObject, acceptsAnyExtentAndEchoesItExactlyWithoutResizingItsWindow)
{
    control.start();
    for (SIZEL const& wanted : {SIZEL{1, 1}, SIZEL{0, 0}, SIZEL{304, 180}, SIZEL{123457, 7654321}}) {
        SIZEL given = wanted;
        EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &given), S_OK);
        EXPECT_EQ(extent().cx, wanted.cx);
        EXPECT_EQ(extent().cy, wanted.cy);
        SIZEL seen{-1, -1};
        EXPECT_EQ(as<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &seen), S_OK);
        EXPECT_EQ(seen.cx, wanted.cx);
        EXPECT_EQ(placeOf(control.window()), kPlace);
    }
}

TEST_F(OleObject, hasToBeSavedAgainWithAnotherExtentAndNotWithTheSame)
{
    ASSERT_EQ(control.initNew(), S_OK);
    auto const persistent = as<IPersistStreamInit>();
    auto const isDirtyAfter = [&](SIZEL extent) {
        EXPECT_EQ(persistent->Save(kit::streamOf().get(), TRUE), S_OK);
        EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
        return persistent->IsDirty();
    };
    EXPECT_EQ(isDirtyAfter({300, 200}), S_OK);
    EXPECT_EQ(isDirtyAfter({300, 200}), S_FALSE);
    EXPECT_EQ(isDirtyAfter({301, 200}), S_OK);
    EXPECT_EQ(isDirtyAfter({301, 201}), S_OK);
}

TEST_F(OleObject, hasAnExtentBeforeItIsGivenOne)
{
    EXPECT_GT(extent().cx, 0);
    EXPECT_GT(extent().cy, 0);
}

TEST_F(OleObject, refusesExtentsOfOtherAspectsAndNowhere)
{
    SIZEL size{100, 100};
    EXPECT_TRUE(FAILED(object->SetExtent(DVASPECT_ICON, &size)));
    EXPECT_TRUE(FAILED(object->GetExtent(DVASPECT_ICON, &size)));
    EXPECT_TRUE(FAILED(object->SetExtent(DVASPECT_CONTENT, nullptr)));
    EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
}

TEST_F(OleObject, hasTheStatusOfAnInsideOutButton)
{
    DWORD status = 0;
    EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, static_cast<DWORD>(OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                                         OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_RECOMPOSEONRESIZE |
                                         OLEMISC_CANTLINKINSIDE | OLEMISC_ACTSLIKEBUTTON));
    for (DWORD const aspect : {DVASPECT_THUMBNAIL, DVASPECT_ICON, DVASPECT_DOCPRINT}) {
        status = 77;
        EXPECT_EQ(object->GetMiscStatus(aspect, &status), S_OK) << aspect;
        EXPECT_EQ(status, 0U) << aspect;
    }
    EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, nullptr), E_POINTER);
}

TEST_F(OleObject, enumeratesItsVerbsOrLeavesThatToTheRegistry)
{
    ComPtr<IEnumOLEVERB> verbs;
    HRESULT const result = object->EnumVerbs(verbs.put());
    EXPECT_TRUE(result == OLE_S_USEREG || (result == S_OK && verbs));
}

TEST_F(OleObject, tellsItsAdviseSinksThatItClosed)
{
    auto const sink = kit::make<kit::ViewRecorder>();
    DWORD cookie = 0;
    ASSERT_EQ(object->Advise(sink.get(), &cookie), S_OK);
    EXPECT_NE(cookie, 0U);
    control.start();
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(sink->count("OnClose"), 1);
    EXPECT_EQ(object->Unadvise(cookie), S_OK);
    EXPECT_EQ(object->Unadvise(cookie), OLE_E_NOCONNECTION);
    EXPECT_EQ(object->Unadvise(4711), OLE_E_NOCONNECTION);
}

TEST_F(OleObject, enumeratesItsAdviseSinks)
{
    auto const sink = kit::make<kit::ViewRecorder>();
    DWORD cookie = 0;
    ASSERT_EQ(object->Advise(sink.get(), &cookie), S_OK);
    ComPtr<IEnumSTATDATA> sinks;
    ASSERT_EQ(object->EnumAdvise(sinks.put()), S_OK);
    ASSERT_TRUE(sinks);
    STATDATA found{};
    EXPECT_EQ(sinks->Next(1, &found, nullptr), S_OK);
    EXPECT_EQ(ComPtr<IAdviseSink>::adopt(found.pAdvSink).get(), sink.get());
    EXPECT_EQ(object->Unadvise(cookie), S_OK);
    EXPECT_TRUE(FAILED(object->Advise(nullptr, &cookie)) || cookie == 0);
}

TEST_F(OleObject, closingAsksForSavingOnlyWhenToldToAndChanged)
{
    control.start();
    auto const empty = object->Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(empty, S_OK);
    EXPECT_EQ(record().count("Site.SaveObject"), 0);
    EXPECT_EQ(control.activate(), S_OK);
    EXPECT_EQ(button()->put_Caption(Bstr(L"changed").get()), S_OK);
    EXPECT_EQ(object->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
    EXPECT_EQ(record().count("Site.SaveObject"), 1);
}

TEST_F(OleObject, closesMoreThanOnceAndBeforeItWasEverActive)
{
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    control.start();
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_FALSE(isShown());
}

TEST_F(OleObject, knowsTheVerbsOfAnInsideOutObject)
{
    control.start();
    for (LONG const verb : {LONG{OLEIVERB_PRIMARY}, LONG{OLEIVERB_SHOW}, LONG{OLEIVERB_UIACTIVATE},
                            LONG{OLEIVERB_INPLACEACTIVATE}, LONG{OLEIVERB_HIDE}, LONG{OLEIVERB_SHOW}})
        EXPECT_EQ(control.doVerb(verb), S_OK) << verb;
    EXPECT_TRUE(isShown());
}

TEST_F(OleObject, refusesVerbsThatItDoesNotKnow)
{
    control.start();
    EXPECT_TRUE(FAILED(control.doVerb(-77)));
    HRESULT const positive = control.doVerb(77);
    EXPECT_TRUE(FAILED(positive) || positive == OLEOBJ_S_INVALIDVERB);
    EXPECT_TRUE(isShown());
}

TEST_F(OleObject, takesAVerbWithAnyIndexOfItsOnlyPart)
{
    control.setSite();
    control.initNew();
    EXPECT_EQ(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &control.site(), -1, form.window(), &kPlace),
              S_OK);
    EXPECT_TRUE(isShown());
}

TEST_F(OleObject, answersSetColorSchemeWithoutHarm)
{
    HRESULT const result = object->SetColorScheme(nullptr);
    EXPECT_TRUE(result == S_OK || result == E_NOTIMPL);
}

} // namespace
} // namespace quillet::hosting
