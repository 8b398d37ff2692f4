// Both classes in a stream: whole, with a damaged picture, and damaged throughout.
#include "ImageButton.h"
#include "Pictures.h"
#include "kit/Errors.h"
#include "kit/Memory.h"

#include <algorithm>
#include <random>

namespace quillet::image {
namespace {

using kit::Bytes;

/// A new button, and another for what it saves.
class ImageStream : public SitedTest {
protected:
    ImageStream() { EXPECT_EQ(button.initNew(), S_OK); }

    void assignAll()
    {
        for (SavedRow const& row : savedValues())
            if (std::wstring(row.name) != L"Active") {
                EXPECT_EQ(kit::putByName(*button.dual(), row.name, row.otherThanDefault(kind())).result,
                          S_OK);
            }
        button.setCheckedFont(kit::newFont(L"Tahoma", 31).get());
        EXPECT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
        EXPECT_EQ(button->putref_DisabledImage(pictureOf(kDisabled).get()), S_OK);
        EXPECT_EQ(button->putref_HotImage(kit::newIconPicture().get()), S_OK);
        EXPECT_EQ(button->putref_PressedImage(pictureOf(kPressed).get()), S_OK);
        EXPECT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    }
    std::string value(wchar_t const* name) const { return valueOf(button, name); }
    Bytes saved() { return button.saved(TRUE); }
};
QV_BOTH_CLASSES(ImageStream);

TEST_P(ImageStream, givesBackEverythingPicturesIncluded)
{
    assignAll();
    auto const before = stateOf(button);
    ImageButton other(library(), form, kind());
    ASSERT_EQ(other.setSite(), S_OK);
    ASSERT_EQ(other.load(saved()), S_OK);
    EXPECT_EQ(stateOf(other), before);
}

TEST_P(ImageStream, savedAgainIsTheSameByteForByte)
{
    assignAll();
    Bytes const first = saved();
    ASSERT_EQ(button.load(first), S_OK);
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
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    auto const stream = kit::streamOf();
    EXPECT_EQ(button.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_FALSE);
    ASSERT_EQ(button.load(kit::bytesOf(*stream.get())), S_OK);
    EXPECT_EQ(value(L"Image"), "none");
    EXPECT_NE(value(L"HotImage"), "none");
}

TEST_P(ImageStream, ofTheOtherClassIsReadWithTheOwnDefaults)
{
    Kind const& other = kind().isTool ? imageCommand() : toolButton();
    ImageButton reader(library(), form, other);
    ASSERT_EQ(reader.setSite(), S_OK);
    ASSERT_EQ(reader.load(saved()), S_OK);
    for (SavedRow const& row : savedValues())
        EXPECT_EQ(valueOf(reader, row.name), kit::textOf(row.defaultOf(other)));
}

class ImageDamage : public ImageStream {
protected:
    ImageDamage()
    {
        button.setCaption(L"&Print");
        EXPECT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
        EXPECT_EQ(button->putref_HotImage(pictureOf(kHot).get()), S_OK);
        button.makeCheckButton();
    }
    /// Told, and without one of the pictures.
    void expectLoadedWithoutImage(Bytes const& bytes)
    {
        EXPECT_EQ(button.load(bytes), S_FALSE);
        EXPECT_EQ(kit::takenError().description, L"Invalid picture");
        EXPECT_EQ(value(L"Image"), "none");
        EXPECT_NE(value(L"HotImage"), "none");
        EXPECT_EQ(button.caption(), L"&Print");
    }
    /// The place of the first picture's own bytes: they begin with its mark and its length.
    static Bytes::iterator firstPicture(Bytes& bytes)
    {
        Bytes const mark{'l', 't', 0, 0};
        return std::search(bytes.begin(), bytes.end(), mark.begin(), mark.end());
    }
};
QV_BOTH_CLASSES(ImageDamage);

TEST_P(ImageDamage, ofAPictureIsToldAndTheRestOfTheControlIsLoaded)
{
    Bytes bytes = saved();
    auto const picture = firstPicture(bytes);
    ASSERT_NE(picture, bytes.end());
    std::fill_n(picture, 24, BYTE{0xEE});
    ::SetErrorInfo(0, nullptr);
    expectLoadedWithoutImage(bytes);
    EXPECT_EQ(value(L"CheckButton"), "-1");
    EXPECT_EQ(button.as<IPersistStreamInit>()->IsDirty(), S_OK) << "what it would save is something else";
}

TEST_P(ImageDamage, ofAnIconsHeightLeavesTheIconOut)
{
    ASSERT_EQ(button->putref_Image(kit::newIconPicture().get()), S_OK);
    Bytes bytes = saved();
    auto const picture = firstPicture(bytes);
    ASSERT_NE(picture, bytes.end());
    constexpr ptrdiff_t kHeight = 8 + 6 + 16 + 8; // behind its frame, the directory, an entry, size and width
    ASSERT_EQ(picture[kHeight], 2 * picture[kHeight - 4]) << "rows of colours, and as many of the mask";
    picture[kHeight + 3] = 0x20; // more than 536,870,912 rows: systems that believe it read behind the data
    expectLoadedWithoutImage(bytes);
}

TEST_P(ImageDamage, atAnyLengthIsRefusedAndChangesNothing)
{
    Bytes const full = saved();
    auto const before = stateOf(button);
    for (size_t length = 0; length < full.size(); length += length < 200 ? 1 : 37) {
        ASSERT_TRUE(FAILED(button.load(Bytes(full.begin(), full.begin() + static_cast<ptrdiff_t>(length)))))
            << length;
        ASSERT_EQ(stateOf(button), before) << length;
    }
}

TEST_P(ImageDamage, atRandomIsLoadedOrRefused)
{
    Bytes const full = saved();
    std::mt19937 random(20260131);
    int loaded = 0;
    int refused = 0;
    for (int round = 0; round < 1500; ++round) {
        Bytes damaged = full;
        for (unsigned changes = 1 + random() % 4; changes > 0; --changes)
            damaged[random() % damaged.size()] = static_cast<BYTE>(random());
        ++(SUCCEEDED(button.load(damaged)) ? loaded : refused);
        button->DrawButton();
    }
    EXPECT_GT(loaded, 0);
    EXPECT_GT(refused, 0);
    EXPECT_EQ(button.load(full), S_OK);
    EXPECT_EQ(button.caption(), L"&Print");
}

} // namespace
} // namespace quillet::image
