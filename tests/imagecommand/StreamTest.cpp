// Both classes in a stream and in a storage.
#include "Pictures.h"
#include "SavedRows.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"
#include "kit/Memory.h"

namespace quillet::image {
namespace {

class ImageStream : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};

    void SetUp() override
    {
        ImageTest::SetUp();
        ASSERT_EQ(button.setSite(), S_OK);
        ASSERT_EQ(button.initNew(), S_OK);
    }
    void assignAll()
    {
        for (SavedRow const& row : savedRows())
            if (row.type != VT_UNKNOWN && std::wstring(row.name) != L"Active") {
                EXPECT_EQ(kit::putByName(*button.dual(), row.name, row.otherThanDefault(kind())).result,
                          S_OK);
            }
        EXPECT_EQ(button->putref_CheckedFont(query<IFontDisp>(kit::newFont(L"Tahoma", 31).get()).get()),
                  S_OK);
        EXPECT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
        EXPECT_EQ(button->putref_DisabledImage(pictureOf(kDisabled).get()), S_OK);
        EXPECT_EQ(button->putref_HotImage(kit::newIconPicture().get()), S_OK);
        EXPECT_EQ(button->putref_PressedImage(pictureOf(kPressed).get()), S_OK);
        EXPECT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    }
    kit::Bytes saved()
    {
        auto const stream = kit::streamOf();
        EXPECT_EQ(button.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
        return kit::bytesOf(*stream.get());
    }
};
QV_BOTH_CLASSES(ImageStream);

TEST_P(ImageStream, givesBackEverythingPicturesIncluded)
{
    assignAll();
    auto const before = stateOf(button);
    ImageButton other(library(), form, kind());
    ASSERT_EQ(other.setSite(), S_OK);
    ASSERT_EQ(other.as<IPersistStreamInit>()->Load(kit::streamOf(saved()).get()), S_OK);
    EXPECT_EQ(stateOf(other), before);
}

TEST_P(ImageStream, savedAgainIsTheSameByteForByte)
{
    assignAll();
    kit::Bytes const first = saved();
    ASSERT_EQ(button.as<IPersistStreamInit>()->Load(kit::streamOf(first).get()), S_OK);
    EXPECT_EQ(saved(), first);
}

TEST_P(ImageStream, holdsNothingOfANewButton)
{
    constexpr size_t kHeader = 12;
    EXPECT_EQ(saved().size(), kHeader);
}

TEST_P(ImageStream, inAStorageIsTheSame)
{
    assignAll();
    auto const before = stateOf(button);
    auto const storage = kit::newStorage();
    ASSERT_EQ(button.as<IPersistStorage>()->Save(storage.get(), FALSE), S_OK);
    ImageButton other(library(), form, kind());
    ASSERT_EQ(other.setSite(), S_OK);
    ASSERT_EQ(other.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(stateOf(other), before);
}

TEST_P(ImageStream, takesNoMetafileThatABagGaveAndSaysSo)
{
    auto const bag = kit::make<kit::FakeBag>();
    bag->put(L"Image", Variant::ofDispatch(metafilePicture().get()));
    bag->put(L"HotImage", Variant::ofDispatch(pictureOf(kHot).get()));
    ASSERT_EQ(button.Hosted::load(*bag.get()), S_OK);
    auto const stream = kit::streamOf();
    EXPECT_EQ(button.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_FALSE);
    ASSERT_EQ(button.as<IPersistStreamInit>()->Load(kit::streamOf(kit::bytesOf(*stream.get())).get()), S_OK);
    EXPECT_EQ(valueOf(button, L"Image"), "none");
    EXPECT_NE(valueOf(button, L"HotImage"), "none");
}

TEST_P(ImageStream, ofTheOtherClassIsReadWithTheOwnDefaults)
{
    kit::Bytes const nothing = saved();
    Kind const& other = kind().isTool ? imageCommand() : toolButton();
    ImageButton reader(library(), form, other);
    ASSERT_EQ(reader.setSite(), S_OK);
    ASSERT_EQ(reader.as<IPersistStreamInit>()->Load(kit::streamOf(nothing).get()), S_OK);
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN) {
            EXPECT_EQ(valueOf(reader, row.name), textOf(row.defaultOf(other)));
        }
}

} // namespace
} // namespace quillet::image
