// Saving a qvFlatCommand to a property bag, and to a compound file.
#include "FlatButton.h"
#include "SavedRows.h"
#include "kit/ByName.h"
#include "kit/FakeBag.h"
#include "kit/Fonts.h"
#include "kit/Memory.h"
#include "kit/Pump.h"

namespace quillet::flat {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class FlatBagWrite : public FlatTest {
protected:
    kit::FakeForm form;
    FlatButton button{library(), form};
    ComPtr<kit::FakeBag> bag = kit::make<kit::FakeBag>();
    ComPtr<kit::FakeBag> empty = kit::make<kit::FakeBag>();

    void SetUp() override
    {
        FlatTest::SetUp();
        ASSERT_EQ(button.setSite(), S_OK);
    }
    void assign(SavedRow const& row)
    {
        if (row.type == VT_UNKNOWN)
            assignObject(row.name);
        else
            EXPECT_EQ(kit::putByName(*button.dual(), row.name, row.other).result, S_OK)
                << kit::narrow(row.name);
    }
    void assignObject(std::wstring const& name)
    {
        if (name == L"Font")
            button.setFont(kit::newFont(L"Tahoma", 33).get());
        else
            EXPECT_EQ(button->putref_MouseIcon(kit::newIconPicture().get()), S_OK);
    }
    void assignAll()
    {
        for (SavedRow const& row : savedRows())
            assign(row);
    }
    void expectRow(kit::FakeBag::Row const& written, SavedRow const& row)
    {
        if (row.type == VT_UNKNOWN)
            EXPECT_THAT(written.type, AnyOf(VT_UNKNOWN, VT_DISPATCH)) << kit::narrow(row.name);
        else {
            EXPECT_EQ(written.type, row.type) << kit::narrow(row.name);
            EXPECT_EQ(written.value.toString().view(), row.other.toString().view()) << kit::narrow(row.name);
        }
    }
};

TEST_F(FlatBagWrite, writesNothingForDefaults)
{
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
}

TEST_F(FlatBagWrite, writesOnlyTheCaptionOfANewInstance)
{
    ASSERT_EQ(button.initNew(), S_OK);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    ASSERT_THAT(bag->namesWritten(), ElementsAre(L"Caption"));
    EXPECT_EQ(bag->writes[0].value.toString().view(), L"Button1");
}

TEST_F(FlatBagWrite, stillWritesOnlyTheCaptionAfterTheInstanceHasBeenPainted)
{
    button.start();
    ASSERT_EQ(button->Refresh(), S_OK);
    kit::pumpPending();
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), ElementsAre(L"Caption"));
}

TEST_F(FlatBagWrite, writesNoDefaultsEvenWhenAllPropertiesAreAskedFor)
{
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    ASSERT_EQ(button.save(*bag.get(), true, true), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
}

TEST_F(FlatBagWrite, writesEverythingElseInOrderAndInItsSavedType)
{
    ASSERT_EQ(button.initNew(), S_OK);
    assignAll();
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    ASSERT_THAT(bag->namesWritten(), ElementsAreArray(savedNames()));
    for (size_t i = 0; i < savedRows().size(); ++i)
        expectRow(bag->writes[i], savedRows()[i]);
}

TEST_F(FlatBagWrite, writesTheObjectsThatTheControlHas)
{
    ASSERT_EQ(button.initNew(), S_OK);
    auto const icon = kit::newIconPicture();
    button->putref_MouseIcon(icon.get());
    button.setFont(kit::newFont(L"Tahoma", 33).get());
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    auto const font = query<IFont>(bag->value(L"Font").toObject().get());
    ASSERT_TRUE(font);
    EXPECT_EQ(kit::pointsOf(*font.get()), 33);
    auto const written = query<IPictureDisp>(bag->value(L"MouseIcon").toObject().get());
    EXPECT_EQ(written.get(), icon.get());
}

TEST_F(FlatBagWrite, writesEachPropertyAloneWhenOnlyItDiffers)
{
    for (SavedRow const& row : savedRows()) {
        FlatButton alone(library(), form);
        ASSERT_EQ(alone.setSite(), S_OK);
        ASSERT_EQ(alone.load(*empty.get()), S_OK);
        auto const single = kit::make<kit::FakeBag>();
        if (row.type != VT_UNKNOWN)
            EXPECT_EQ(kit::putByName(*alone.dual(), row.name, row.other).result, S_OK)
                << kit::narrow(row.name);
        else if (std::wstring(row.name) == L"Font")
            alone.setFont(kit::newFont(L"Tahoma", 33).get());
        else
            EXPECT_EQ(alone->putref_MouseIcon(kit::newIconPicture().get()), S_OK);
        ASSERT_EQ(alone.save(*single.get()), S_OK);
        ASSERT_THAT(single->namesWritten(), ElementsAre(row.name));
        expectRow(single->writes[0], row);
    }
}

TEST_F(FlatBagWrite, writesABorderStyleBeyond16BitsWholeAndReadsItBack)
{
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    ASSERT_EQ(button->put_BorderStyle(static_cast<pdsButtonBorderStyleConstants>(70000)), S_OK);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    ASSERT_THAT(bag->namesWritten(), ElementsAre(L"BorderStyle"));
    EXPECT_EQ(bag->writes[0].value.toLong(), 70000);
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    pdsButtonBorderStyleConstants style{};
    EXPECT_EQ(button->get_BorderStyle(&style), S_OK);
    EXPECT_EQ(static_cast<long>(style), 70000);
}

TEST_F(FlatBagWrite, doesNotWriteToolTipText)
{
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    ASSERT_EQ(button->put_ToolTipText(Bstr(L"tip").get()), S_OK);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
}

TEST_F(FlatBagWrite, comparesTheFontByValueWithTheFormsPresentOne)
{
    ASSERT_EQ(button.initNew(), S_OK);
    button.setCaption(L"");
    button.setFont(formFont().get()); // another object, the same look
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
    auto const other = kit::newFont(L"Tahoma", 14);
    button.site().setAmbient(DISPID_AMBIENT_FONT, Variant::ofDispatch(query<IDispatch>(other.get()).get()));
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), ElementsAre(L"Font"));
}

TEST_F(FlatBagWrite, writesAFontThatWasChangedInPlace)
{
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    button.font()->put_Bold(TRUE);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    ASSERT_THAT(bag->namesWritten(), ElementsAre(L"Font"));
    BOOL bold = FALSE;
    query<IFont>(bag->value(L"Font").toObject().get())->get_Bold(&bold);
    EXPECT_TRUE(bold);
}

TEST_F(FlatBagWrite, givesBackWhatWasLoaded)
{
    ASSERT_EQ(button.initNew(), S_OK);
    assignAll();
    auto const before = stateOf(button);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    FlatButton other(library(), form);
    ASSERT_EQ(other.setSite(), S_OK);
    ASSERT_EQ(other.load(*bag.get()), S_OK);
    EXPECT_EQ(stateOf(other), before);
}

TEST_F(FlatBagWrite, clearsTheDirtyFlagOnlyWhenAskedTo)
{
    auto const persistent = button.as<IPersistStreamInit>();
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    ASSERT_EQ(persistent->IsDirty(), S_FALSE);
    button.setCaption(L"changed");
    EXPECT_EQ(persistent->IsDirty(), S_OK);
    ASSERT_EQ(button.save(*bag.get(), false), S_OK);
    EXPECT_EQ(persistent->IsDirty(), S_OK);
    ASSERT_EQ(button.save(*bag.get(), true), S_OK);
    EXPECT_EQ(persistent->IsDirty(), S_FALSE);
}

TEST_F(FlatBagWrite, everySetterMakesTheControlDirty)
{
    auto const persistent = button.as<IPersistStreamInit>();
    for (SavedRow const& row : savedRows()) {
        ASSERT_EQ(button.load(*empty.get()), S_OK);
        ASSERT_EQ(persistent->IsDirty(), S_FALSE) << kit::narrow(row.name);
        assign(row);
        EXPECT_EQ(persistent->IsDirty(), S_OK) << kit::narrow(row.name);
    }
}

TEST_F(FlatBagWrite, answersABagsErrorAndStaysDirty)
{
    ASSERT_EQ(button.initNew(), S_OK);
    assignAll();
    bag->fail(L"BorderColor", STG_E_MEDIUMFULL);
    EXPECT_EQ(button.save(*bag.get()), STG_E_MEDIUMFULL);
    EXPECT_EQ(button.as<IPersistStreamInit>()->IsDirty(), S_OK);
    EXPECT_TRUE(FAILED(button.as<IPersistPropertyBag>()->Save(nullptr, TRUE, FALSE)));
}

class FlatStorage : public FlatTest {
protected:
    kit::FakeForm form;
    FlatButton button{library(), form};
    ComPtr<IStorage> storage = kit::newStorage();

    void SetUp() override
    {
        FlatTest::SetUp();
        ASSERT_EQ(button.setSite(), S_OK);
    }
};

TEST_F(FlatStorage, givesBackWhatWasSaved)
{
    ASSERT_EQ(button.initNew(), S_OK);
    button.setCaption(L"&Stored");
    ASSERT_EQ(button->put_CaptionIndent(17), S_OK);
    auto const before = stateOf(button);
    auto const persistent = button.as<IPersistStorage>();
    ASSERT_EQ(persistent->Save(storage.get(), FALSE), S_OK);
    ASSERT_EQ(persistent->SaveCompleted(nullptr), S_OK);
    FlatButton other(library(), form);
    ASSERT_EQ(other.setSite(), S_OK);
    ASSERT_EQ(other.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(stateOf(other), before);
}

TEST_F(FlatStorage, newInOneIsInitialised)
{
    ASSERT_EQ(button.as<IPersistStorage>()->InitNew(storage.get()), S_OK);
    EXPECT_EQ(button.caption(), L"Button1");
}

TEST_F(FlatStorage, goesThroughTheWholeCycleOfTheSameStorage)
{
    auto const persistent = button.as<IPersistStorage>();
    ASSERT_EQ(persistent->InitNew(storage.get()), S_OK);
    button.setCaption(L"first");
    EXPECT_EQ(persistent->IsDirty(), S_OK);
    ASSERT_EQ(persistent->Save(storage.get(), TRUE), S_OK);
    ASSERT_EQ(persistent->SaveCompleted(nullptr), S_OK);
    EXPECT_EQ(persistent->IsDirty(), S_FALSE);
    button.setCaption(L"second");
    ASSERT_EQ(persistent->Save(storage.get(), TRUE), S_OK);
    ASSERT_EQ(persistent->HandsOffStorage(), S_OK);
    ASSERT_EQ(persistent->SaveCompleted(storage.get()), S_OK);
    FlatButton other(library(), form);
    ASSERT_EQ(other.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(other.caption(), L"second");
}

TEST_F(FlatStorage, namesItsClassThroughEveryPersistenceInterface)
{
    for (IID const& iid :
         {__uuidof(IPersistStorage), __uuidof(IPersistStreamInit), __uuidof(IPersistPropertyBag)}) {
        auto const persistent = query<IPersist>(button.object(), iid);
        ASSERT_TRUE(persistent);
        CLSID classId{};
        EXPECT_EQ(persistent->GetClassID(&classId), S_OK);
        EXPECT_EQ(classId, kQvFlatCommandClass);
    }
}

TEST_F(FlatStorage, emptyIsRefusedAndChangesNothing)
{
    ASSERT_EQ(button.initNew(), S_OK);
    button.setCaption(L"kept");
    EXPECT_TRUE(FAILED(button.as<IPersistStorage>()->Load(storage.get())));
    EXPECT_EQ(button.caption(), L"kept");
    EXPECT_TRUE(FAILED(button.as<IPersistStorage>()->Load(nullptr)));
    EXPECT_TRUE(FAILED(button.as<IPersistStorage>()->Save(nullptr, FALSE)));
}

TEST_F(FlatStorage, isLetGoAtTheEnd)
{
    ASSERT_EQ(button.as<IPersistStorage>()->InitNew(storage.get()), S_OK);
    button.remove();
    EXPECT_EQ(storage->AddRef(), 2U);
    EXPECT_EQ(storage->Release(), 1U);
}

TEST_F(FlatStorage, canBeSavedAfterBeingLoadedFromAnotherCarrier)
{
    ASSERT_EQ(button.initNew(), S_OK);
    button.setCaption(L"streamed");
    auto const stream = kit::streamOf();
    ASSERT_EQ(button.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    FlatButton other(library(), form);
    ASSERT_EQ(other.as<IPersistStreamInit>()->Load(kit::streamOf(kit::bytesOf(*stream.get())).get()), S_OK);
    ASSERT_EQ(other.as<IPersistStorage>()->Save(storage.get(), FALSE), S_OK);
    ASSERT_EQ(other.as<IPersistStorage>()->SaveCompleted(nullptr), S_OK);
    ASSERT_EQ(button.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(button.caption(), L"streamed");
}

} // namespace
} // namespace quillet::flat
