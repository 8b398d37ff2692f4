// The space key, access keys and Enter on an image button.
#include "Mouse.h"
#include "kit/ByName.h"
#include "kit/MessageWatch.h"

#include <olectl.h>

namespace quillet::image {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    HRESULT accessKey(wchar_t key)
    {
        MSG message{};
        message.hwnd = form.window();
        message.message = WM_SYSCHAR;
        message.wParam = key;
        return query<IOleControl>(button().object())->OnMnemonic(&message);
    }
};
QV_BOTH_HOSTS(ImageKeys);

TEST_P(ImageKeys, spaceClicksAndNeitherPressesNorRepaintsNorToggles)
{
    ASSERT_EQ(button()->put_CheckButton(VARIANT_TRUE), S_OK);
    EXPECT_THAT(typed(VK_SPACE), ElementsAre("Click"));
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
    EXPECT_EQ(accessKey(L's'), S_OK);
    EXPECT_THAT(button().happened(), ElementsAre("Click"));
    EXPECT_FALSE(button().isChecked());
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    EXPECT_EQ(accessKey(L's'), S_OK);
    EXPECT_THAT(button().happened(), IsEmpty());
}

TEST_P(ImageKeys, theAccessKeyIsTheCharacterAfterTheFirstMarker)
{
    struct Row {
        wchar_t const* caption;
        WORD keys;
    };
    for (Row const& row :
         {Row{L"&Save", 2}, Row{L"Save", 0}, Row{L"", 0}, Row{L"Save&", 0}, Row{L"A&1&2", 1}}) {
        ASSERT_EQ(button()->put_Caption(Bstr(row.caption).get()), S_OK);
        CONTROLINFO info{};
        info.cb = sizeof info;
        ASSERT_EQ(query<IOleControl>(button().object())->GetControlInfo(&info), S_OK);
        EXPECT_EQ(info.cAccel, row.keys) << kit::narrow(row.caption);
    }
}

TEST_P(ImageKeys, aContainerPressesItAsItsDefaultButton)
{
    auto const dispatch = query<IDispatch>(button().object());
    EXPECT_EQ(kit::invoke(*dispatch.get(), DISPID_DOCLICK, DISPATCH_METHOD).result, S_OK);
    EXPECT_THAT(button().happened(), ElementsAre("Click"));
}

} // namespace
} // namespace quillet::image
