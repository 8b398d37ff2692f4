// The about box.
#include "FlatButton.h"
#include "base/Version.h"
#include "kit/ModalDialog.h"

namespace quillet::flat {
namespace {

TEST_F(FlatTest, theAboutBoxShowsTheVersionAndTheCallComesBackWhenItIsClosed)
{
    kit::FakeForm form;
    ShownButton button(library(), form);
    int seen = 0;
    std::vector<std::wstring> texts;
    kit::DialogWatch const watch([&](HWND dialog) {
        ++seen;
        texts = kit::textsIn(dialog);
        ::PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(button->ShowAbout(), S_OK);
    EXPECT_EQ(seen, 1);
    EXPECT_THAT(texts, testing::Contains(testing::HasSubstr(L"Version " QV_VERSION)));
    EXPECT_TRUE(::IsWindowEnabled(form.window()));
}

} // namespace
} // namespace quillet::flat
