// Saving a qvFlatCommand to a property bag, and to a compound file.
#include "FlatButton.h"
#include "kit/FakeBag.h"
#include "kit/Memory.h"

namespace quillet::flat {
namespace {

class FlatBagWrite : public SitedTest {
protected:
    ComPtr<kit::FakeBag> bag = kit::make<kit::FakeBag>();
    ComPtr<kit::FakeBag> empty = kit::make<kit::FakeBag>();

    void loadDefaults() { ASSERT_EQ(button.load(*empty.get()), S_OK); }
    void initialise() { ASSERT_EQ(button.initNew(), S_OK); }
    /// What a save writes now.
    std::vector<std::wstring> written()
    {
        bag->writes.clear();
        EXPECT_EQ(button.save(*bag.get()), S_OK);
        return bag->namesWritten();
    }
    void expectRow(kit::FakeBag::Row const& written, SavedRow const& row)
    {
        SCOPED_TRACE(kit::narrow(row.name));
        if (row.isObject()) {
            EXPECT_THAT(written.type, AnyOf(VT_UNKNOWN, VT_DISPATCH));
            return;
        }
        EXPECT_EQ(written.type, row.other.type());
        EXPECT_EQ(kit::textOf(written.value), kit::textOf(row.other));
    }
};

TEST_F(FlatBagWrite, writesNothingForDefaults)
{
    loadDefaults();
    EXPECT_THAT(written(), IsEmpty());
}

TEST_F(FlatBagWrite, writesOnlyTheCaptionOfANewInstance)
{
    initialise();
    ASSERT_THAT(written(), ElementsAreArray({L"Caption"}));
    EXPECT_EQ(bag->writes[0].value.toString().view(), L"Button1");
}

TEST_F(FlatBagWrite, stillWritesOnlyTheCaptionAfterTheInstanceHasBeenPainted)
{
    button.start();
    ASSERT_EQ(button->Refresh(), S_OK);
    kit::pumpPending();
    EXPECT_THAT(written(), ElementsAreArray({L"Caption"}));
}

TEST_F(FlatBagWrite, writesNoDefaultsEvenWhenAllPropertiesAreAskedFor)
{
    loadDefaults();
    ASSERT_EQ(button.save(*bag.get(), true, true), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
}

TEST_F(FlatBagWrite, writesEverythingElseInOrderAndInItsSavedType)
{
    initialise();
    button.assignAll();
    ASSERT_THAT(written(), ElementsAreArray(savedNames()));
    for (size_t i = 0; i < savedRows().size(); ++i)
        expectRow(bag->writes[i], savedRows()[i]);
}

TEST_F(FlatBagWrite, writesTheObjectsThatTheControlHas)
{
    initialise();
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
        loadDefaults();
        button.assign(row);
        ASSERT_THAT(written(), ElementsAreArray({row.name}));
        expectRow(bag->writes[0], row);
    }
}

TEST_F(FlatBagWrite, writesABorderStyleBeyond16BitsWholeAndReadsItBack)
{
    loadDefaults();
    ASSERT_EQ(button->put_BorderStyle(static_cast<pdsButtonBorderStyleConstants>(70000)), S_OK);
    ASSERT_THAT(written(), ElementsAreArray({L"BorderStyle"}));
    EXPECT_EQ(bag->writes[0].value.toLong(), 70000);
    loadDefaults();
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    pdsButtonBorderStyleConstants style{};
    EXPECT_EQ(button->get_BorderStyle(&style), S_OK);
    EXPECT_EQ(static_cast<long>(style), 70000);
}

TEST_F(FlatBagWrite, doesNotWriteToolTipText)
{
    loadDefaults();
    ASSERT_EQ(button->put_ToolTipText(Bstr(L"tip").get()), S_OK);
    EXPECT_THAT(written(), IsEmpty());
}

TEST_F(FlatBagWrite, comparesTheFontByValueWithTheFormsPresentOne)
{
    initialise();
    button.setCaption(L"");
    button.setFont(formFont().get()); // another object, the same look
    EXPECT_THAT(written(), IsEmpty());
    auto const other = kit::newFont(L"Tahoma", 14);
    button.offerFont(other.get());
    EXPECT_THAT(written(), ElementsAreArray({L"Font"}));
}

TEST_F(FlatBagWrite, writesAFontThatWasChangedInPlace)
{
    loadDefaults();
    button.font()->put_Bold(TRUE);
    ASSERT_THAT(written(), ElementsAreArray({L"Font"}));
    BOOL bold = FALSE;
    query<IFont>(bag->value(L"Font").toObject().get())->get_Bold(&bold);
    EXPECT_TRUE(bold);
}

TEST_F(FlatBagWrite, givesBackWhatWasLoaded)
{
    initialise();
    button.assignAll();
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
    loadDefaults();
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
        loadDefaults();
        ASSERT_EQ(persistent->IsDirty(), S_FALSE) << kit::narrow(row.name);
        button.assign(row);
        EXPECT_EQ(persistent->IsDirty(), S_OK) << kit::narrow(row.name);
    }
}

TEST_F(FlatBagWrite, answersABagsErrorAndStaysDirty)
{
    initialise();
    button.assignAll();
    bag->fail(L"BorderColor", STG_E_MEDIUMFULL);
    EXPECT_EQ(button.save(*bag.get()), STG_E_MEDIUMFULL);
    EXPECT_EQ(button.as<IPersistStreamInit>()->IsDirty(), S_OK);
    EXPECT_TRUE(FAILED(button.as<IPersistPropertyBag>()->Save(nullptr, TRUE, FALSE)));
}

class FlatStorage : public SitedTest {
protected:
    ComPtr<IStorage> storage = kit::newStorage();

    static ComPtr<IPersistStorage> faceOf(FlatButton const& of) { return of.as<IPersistStorage>(); }
    void save(FlatButton const& from) const
    {
        ASSERT_EQ(faceOf(from)->Save(storage.get(), FALSE), S_OK);
        ASSERT_EQ(faceOf(from)->SaveCompleted(nullptr), S_OK);
    }
    void load(FlatButton const& into) const { ASSERT_EQ(faceOf(into)->Load(storage.get()), S_OK); }
};

TEST_F(FlatStorage, givesBackWhatWasSaved)
{
    ASSERT_EQ(button.initNew(), S_OK);
    button.setCaption(L"&Stored");
    ASSERT_EQ(button->put_CaptionIndent(17), S_OK);
    auto const before = stateOf(button);
    save(button);
    FlatButton other(library(), form);
    ASSERT_EQ(other.setSite(), S_OK);
    load(other);
    EXPECT_EQ(stateOf(other), before);
}

TEST_F(FlatStorage, newInOneIsInitialised)
{
    ASSERT_EQ(faceOf(button)->InitNew(storage.get()), S_OK);
    EXPECT_EQ(button.caption(), L"Button1");
}

TEST_F(FlatStorage, goesThroughTheWholeCycleOfTheSameStorage)
{
    auto const persistent = faceOf(button);
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
    load(other);
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
    EXPECT_TRUE(FAILED(faceOf(button)->Load(storage.get())));
    EXPECT_EQ(button.caption(), L"kept");
    EXPECT_TRUE(FAILED(faceOf(button)->Load(nullptr)));
    EXPECT_TRUE(FAILED(faceOf(button)->Save(nullptr, FALSE)));
}

TEST_F(FlatStorage, isLetGoAtTheEnd)
{
    ASSERT_EQ(faceOf(button)->InitNew(storage.get()), S_OK);
    button.remove();
    EXPECT_EQ(storage->AddRef(), 2U);
    EXPECT_EQ(storage->Release(), 1U);
}

TEST_F(FlatStorage, canBeSavedAfterBeingLoadedFromAnotherCarrier)
{
    ASSERT_EQ(button.initNew(), S_OK);
    button.setCaption(L"streamed");
    FlatButton other(library(), form);
    ASSERT_EQ(other.load(button.saved(TRUE)), S_OK);
    save(other);
    load(button);
    EXPECT_EQ(button.caption(), L"streamed");
}

} // namespace
} // namespace quillet::flat
