// qvFlatCommand in a compound file.
#include "FlatButton.h"
#include "kit/Memory.h"

namespace quillet::flat {
namespace {

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
