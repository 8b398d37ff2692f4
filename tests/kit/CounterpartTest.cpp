// The counterparts themselves: a test that trusts them must be able to.
#include "base/Module.h"
#include "kit/FakeBag.h"
#include "kit/FakeForm.h"
#include "kit/FakeSite.h"
#include "kit/Fonts.h"
#include "kit/Memory.h"
#include "kit/Sinks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::kit {
namespace {

using testing::ElementsAre;

class Counterparts : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(liveObjects(), 0); }
};

Variant propertyOf(IDispatch& object, wchar_t const* name, HRESULT& result)
{
    auto* text = const_cast<wchar_t*>(name);
    DISPID id = 0;
    Variant value;
    DISPPARAMS none{};
    result = object.GetIDsOfNames(IID_NULL, &text, 1, 0, &id);
    if (SUCCEEDED(result))
        result = object.Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, value.put(), nullptr, nullptr);
    return value;
}

TEST_F(Counterparts, anUnreleasedOneIsCountedAsAlive)
{
    auto bag = make<FakeBag>();
    EXPECT_EQ(liveObjects(), 1);
    EXPECT_EQ(bag->references(), 1U);
    bag.reset();
    EXPECT_EQ(liveObjects(), 0);
}

TEST_F(Counterparts, aHiddenInterfaceIsRefusedAndAShownOneGiven)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{0, 0, 10, 10}, L"A");
    EXPECT_FALSE(query<IOleInPlaceSiteEx>(site->unknown()));
    EXPECT_TRUE(query<IOleInPlaceSite>(site->unknown()));
    site->hide(__uuidof(IOleInPlaceSite));
    site->show(__uuidof(IOleInPlaceSiteEx));
    EXPECT_FALSE(query<IOleInPlaceSite>(site->unknown()));
    EXPECT_TRUE(query<IOleInPlaceSiteEx>(site->unknown()));
}

TEST_F(Counterparts, aSiteNotesItsCallsAndAnswersAsToldTo)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{1, 2, 11, 12}, L"A");
    form.record().answer("Site.OnInPlaceActivate", E_FAIL);
    form.record().answerNothing("Site.GetContainer");
    ComPtr<IOleContainer> container;
    EXPECT_EQ(site->GetContainer(container.put()), S_OK);
    EXPECT_FALSE(container);
    EXPECT_EQ(site->OnInPlaceActivate(), E_FAIL);
    EXPECT_EQ(site->OnFocus(TRUE), S_OK);
    EXPECT_THAT(form.record().take(),
                ElementsAre("Site.GetContainer", "Site.OnInPlaceActivate", "Site.OnFocus(gained)"));
    form.record().answerAsUsual("Site.GetContainer");
    EXPECT_EQ(site->GetContainer(container.put()), S_OK);
    EXPECT_TRUE(container);
}

TEST_F(Counterparts, ambientPropertiesAreFoundMissingOrFailing)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{}, L"A");
    auto const ambients = query<IDispatch>(site->unknown());
    auto const ask = [&](DISPID id, Variant& value) {
        DISPPARAMS none{};
        return ambients->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, value.put(), nullptr, nullptr);
    };
    Variant value;
    EXPECT_EQ(ask(DISPID_AMBIENT_USERMODE, value), S_OK);
    EXPECT_TRUE(value.toBool());
    EXPECT_EQ(ask(DISPID_AMBIENT_FONT, value), DISP_E_MEMBERNOTFOUND);
    form.record().answer("Ambient(-709)", E_UNEXPECTED);
    EXPECT_EQ(ask(DISPID_AMBIENT_USERMODE, value), E_UNEXPECTED);
    EXPECT_EQ(form.record().count("Ambient(-709)"), 2);
}

TEST_F(Counterparts, anExtenderIsReachedByNameWithoutRegardToCase)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{}, L"Command7");
    HRESULT result = S_OK;
    EXPECT_EQ(propertyOf(site->extender(), L"name", result).toString().view(), L"Command7");
    propertyOf(site->extender(), L"Colour", result);
    EXPECT_EQ(result, DISP_E_UNKNOWNNAME);
    site->extender().refuse(L"Default", E_ACCESSDENIED);
    propertyOf(site->extender(), L"Default", result);
    EXPECT_EQ(result, E_ACCESSDENIED);
    EXPECT_THAT(form.record().calls(),
                ElementsAre("Extender.Name", "Extender.Colour (unknown)", "Extender.Default"));
    site->dismantle();
}

TEST_F(Counterparts, aFormHandsOutTheExtendersOfItsControls)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{}, L"A");
    HRESULT result = S_OK;
    EXPECT_EQ(propertyOf(form.controls(), L"Count", result).toLong(), 1);
    site->dismantle();
    EXPECT_EQ(propertyOf(form.controls(), L"Count", result).toLong(), 0);
}

TEST_F(Counterparts, aBagKeepsNamesTypesAndOrder)
{
    auto const bag = make<FakeBag>();
    bag->put(L"Width", Variant::ofString(L"12"));
    Variant value;
    EXPECT_EQ(bag->Read(L"Missing", value.address(), nullptr), E_INVALIDARG);
    EXPECT_EQ(bag->Read(L"width", value.address(), nullptr), S_OK);
    EXPECT_EQ(value.type(), VT_BSTR);
    bag->values = FakeBag::Values::Converted;
    value = Variant::ofShort(0);
    EXPECT_EQ(bag->Read(L"Width", value.address(), nullptr), S_OK);
    EXPECT_EQ(value.type(), VT_I2);
    EXPECT_THAT(bag->namesRead(), ElementsAre(L"Missing", L"width", L"Width"));
    EXPECT_EQ(bag->reads[1].type, VT_EMPTY);
    EXPECT_EQ(bag->reads[2].type, VT_I2);
    bag->fail(L"Height", STG_E_ACCESSDENIED);
    EXPECT_EQ(bag->Write(L"Height", value.address()), STG_E_ACCESSDENIED);
    EXPECT_FALSE(bag->has(L"Height"));
}

TEST_F(Counterparts, anEventRecorderTurnsArgumentsIntoDeclaredOrder)
{
    auto const recorder = make<EventRecorder>(IID_IStream);
    VARIANT arguments[2] = {Variant::ofShort(2).get(), Variant::ofShort(1).get()};
    DISPPARAMS parameters{arguments, nullptr, 2, 0};
    recorder->Invoke(6, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    ASSERT_EQ(recorder->count(6), 1);
    EXPECT_EQ(recorder->events[0].values[0].toShort(), 1);
    EXPECT_EQ(recorder->events[0].values[1].toShort(), 2);
}

TEST_F(Counterparts, streamsAndStoragesInMemoryKeepTheirBytes)
{
    auto const stream = streamOf({1, 2, 3});
    BYTE first = 0;
    EXPECT_EQ(stream->Read(&first, 1, nullptr), S_OK);
    EXPECT_EQ(bytesOf(*stream.get()), (Bytes{1, 2, 3}));
    EXPECT_EQ(positionOf(*stream.get()), 1U);
    EXPECT_TRUE(bytesOf(*streamOf().get()).empty());
    auto const storage = newStorage();
    ComPtr<IStream> inside;
    EXPECT_EQ(storage->CreateStream(L"Contents", STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                    inside.put()),
              S_OK);
}

TEST_F(Counterparts, fontsOfTwoSizesDifferAndACopyMayBeUnderlined)
{
    auto const small = newFont(L"Tahoma", 8);
    auto const large = newFont(L"Tahoma", 16, true);
    EXPECT_EQ(pointsOf(*small.get()), 8);
    EXPECT_EQ(small->IsEqual(large.get()), S_FALSE);
    auto const line = copyOf(*small.get(), true);
    EXPECT_TRUE(isUnderlined(*line.get()));
    EXPECT_FALSE(isUnderlined(*small.get()));
}

} // namespace
} // namespace quillet::kit
