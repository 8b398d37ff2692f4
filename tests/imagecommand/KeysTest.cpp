// The space key, access keys and Enter on an image button.
#include "Mouse.h"
#include "kit/MessageWatch.h"

namespace quillet::image {
namespace {

class ImageKeys : public ImageInputTest {
protected:
    Names typed(BYTE key)
    {
        kit::pumpPending();
        button().events().forget();
        bool seen = false;
        kit::MessageWatch const watch(
            kit::Passing::Posted, [&](MSG const& passing) { seen = seen || passing.message == WM_KEYUP; });
        kit::typeKey(key);
        EXPECT_TRUE(kit::pumpUntil([&] { return seen; }));
        kit::pumpPending();
        return button().happened();
    }
    void pressAccessKey() { EXPECT_EQ(kit::pressAccessKey(button().object(), L's'), S_OK); }
};
QV_BOTH_HOSTS(ImageKeys);

TEST_P(ImageKeys, spaceClicksAndNeitherPressesNorRepaintsNorToggles)
{
    ASSERT_EQ(button()->put_CheckButton(VARIANT_TRUE), S_OK);
    EXPECT_THAT(typed(VK_SPACE), ElementsAreArray({"Click"}));
    EXPECT_FALSE(button().isChecked());
}

TEST_P(ImageKeys, spaceDoesNothingWhileNotActive)
{
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    EXPECT_THAT(typed(VK_SPACE), IsEmpty());
}

TEST_P(ImageKeys, othersDoNothing)
{
    EXPECT_THAT(typed(VK_RETURN), IsEmpty());
    EXPECT_THAT(typed('A'), IsEmpty());
}

TEST_P(ImageKeys, theAccessKeyClicksWithoutTogglingWhileTheButtonIsActive)
{
    ASSERT_EQ(button()->put_Caption(Bstr(L"&Save").get()), S_OK);
    ASSERT_EQ(button()->put_CheckButton(VARIANT_TRUE), S_OK);
    button().events().forget();
    pressAccessKey();
    EXPECT_THAT(button().happened(), ElementsAreArray({"Click"}));
    EXPECT_FALSE(button().isChecked());
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    pressAccessKey();
    EXPECT_THAT(button().happened(), IsEmpty());
}

TEST_P(ImageKeys, theAccessKeyIsTheCharacterAfterTheFirstMarker)
{
    for (auto const& [caption, keys] :
         {std::pair{L"&Save", 2U}, {L"Save", 0U}, {L"", 0U}, {L"Save&", 0U}, {L"A&1&2", 1U}}) {
        ASSERT_EQ(button()->put_Caption(Bstr(caption).get()), S_OK);
        EXPECT_EQ(kit::accessKeys(button().object()).size(), keys) << kit::narrow(caption);
    }
}

TEST_P(ImageKeys, aContainerPressesItAsItsDefaultButton)
{
    auto const dispatch = query<IDispatch>(button().object());
    EXPECT_EQ(kit::invoke(*dispatch.get(), DISPID_DOCLICK, DISPATCH_METHOD).result, S_OK);
    EXPECT_THAT(button().happened(), ElementsAreArray({"Click"}));
}

} // namespace
} // namespace quillet::image
