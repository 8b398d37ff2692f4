// The gallery's window: changing between forms, choosing in them, dialogs, designing and saving.
#include "gallery/app/GalleryWindow.h"

#include "gallery/FormKit.h"
#include "gallery/form/FileBytes.h"
#include "gallery/host/Extender.h"
#include "kit/ModalDialog.h"

namespace quillet::gallery::test {
namespace {

std::wstring textOf(HWND window)
{
    wchar_t text[128] = L"";
    ::GetWindowTextW(window, text, 128);
    return text;
}

class GalleryWindowTest : public testing::Test {
protected:
    void start(wchar_t const* form, UserMode mode = UserMode::Run)
    {
        gallery.open(formFile(form), mode);
        gallery.show();
        pump();
    }

    void pump() { pumpThrough(gallery); }
    template <class Check> bool waitUntil(Check const& check) { return waitThrough(gallery, check); }

    FormControl& control(wchar_t const* name) { return *gallery.form().find(name); }
    void expectDialog(bool open)
    {
        ASSERT_TRUE(waitUntil([&] { return (gallery.dialog() != nullptr) == open; }));
        EXPECT_NE(::IsWindowEnabled(gallery.window()) != FALSE, open);
    }
    /// The button of the bar that opens the form.
    static FormControl& opener(Form& bar, wchar_t const* file)
    {
        for (auto const& control : bar.controls())
            if (control->state().tag == file)
                return *control;
        throw RunTimeError(E_INVALIDARG);
    }
    bool isPressed(wchar_t const* file)
    {
        return getByName(opener(gallery.bar(), file).extender(), L"Checked").toBool();
    }
    /// A click of the real mouse into a control's middle, again for a double one.
    void click(FormControl& control, int times = 1)
    {
        RECT place{};
        ::GetWindowRect(control.window(), &place);
        ::SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        pump();
        for (int i = 0; i < times; ++i) {
            ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
            ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        }
        pump();
    }

    bool opens(wchar_t const* caption)
    {
        return waitUntil([&] { return gallery.form().caption() == caption; });
    }

    GalleryWindow gallery{programFolder(), nullptr};
};

TEST_F(GalleryWindowTest, theBarOpensTheOtherForms)
{
    start(L"buttons.frm");
    EXPECT_TRUE(isPressed(L"buttons.frm"));
    HWND const before = gallery.form().window();
    click(opener(gallery.bar(), L"options.frm"));
    EXPECT_TRUE(opens(L"Quillet - flat options"));
    EXPECT_FALSE(::IsWindow(before));
    EXPECT_FALSE(isPressed(L"buttons.frm"));
    EXPECT_TRUE(isPressed(L"options.frm"));
    EXPECT_EQ(textOf(gallery.window()), L"Quillet - flat options");
}

TEST(GalleryBar, opensFormsThatAreThereAndWhole)
{
    std::vector<std::wstring> files;
    {
        GalleryWindow gallery(programFolder(), nullptr);
        for (auto const& button : gallery.bar().controls())
            if (button->state().name == L"tbForm")
                files.push_back(button->state().tag);
    }
    EXPECT_FALSE(files.empty());
    for (std::wstring const& file : files) {
        Demo const whole(formFile(file.c_str()), UserMode::Run);
        EXPECT_THAT(whole.warnings, testing::IsEmpty()) << narrow(file);
    }
}

TEST_F(GalleryWindowTest, aPressedButtonOfTheBarStaysPressed)
{
    start(L"options.frm");
    click(opener(gallery.bar(), L"options.frm"));
    EXPECT_TRUE(waitUntil([&] { return isPressed(L"options.frm"); }));
    EXPECT_TRUE(opens(L"Quillet - flat options"));
}

TEST_F(GalleryWindowTest, ctrlTabGoesRoundTheForms)
{
    start(L"options.frm");
    typeKey(VK_TAB, VK_CONTROL);
    EXPECT_TRUE(opens(L"Quillet - mail"));
    typeKey(VK_TAB, VK_CONTROL);
    EXPECT_TRUE(opens(L"Quillet - flat buttons"));
}

TEST_F(GalleryWindowTest, aFormOfAnotherFolderKeepsTheBarWithoutAPressedButton)
{
    std::wstring const folder = programFolder() + L"\\elsewhere";
    ::CreateDirectoryW(folder.c_str(), nullptr);
    writeFileBytes(folder + L"\\mine.frm",
                   "VERSION 5.00\r\nBegin VB.Form frmMine \r\n   Caption = \"Mine\"\r\nEnd\r\n");
    gallery.open(folder + L"\\mine.frm", UserMode::Run);
    EXPECT_EQ(gallery.form().caption(), L"Mine");
    EXPECT_FALSE(isPressed(L"buttons.frm"));
}

TEST_F(GalleryWindowTest, aFormThatCannotBeOpenedLeavesTheOldOne)
{
    start(L"options.frm");
    EXPECT_THROW(gallery.open(formFile(L"gone.frm"), UserMode::Run), FormError);
    EXPECT_EQ(gallery.form().caption(), L"Quillet - flat options");
}

TEST_F(GalleryWindowTest, theEventsStandBesideTheForm)
{
    start(L"buttons.frm");
    click(control(L"cmdPlain"));
    EXPECT_TRUE(waitUntil([&] {
        return ::SendMessageW(gallery.events(), LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                              reinterpret_cast<LPARAM>(L"cmdPlain.Click")) != LB_ERR;
    }));
    RECT form{};
    RECT events{};
    RECT common{};
    ::GetWindowRect(gallery.form().window(), &form);
    ::GetWindowRect(gallery.events(), &events);
    EXPECT_FALSE(::IntersectRect(&common, &form, &events));
    EXPECT_GT(events.right, events.left);
}

FormControl& ofArray(Form& form, wchar_t const* name, long index)
{
    for (auto const& control : form.controls())
        if (control->state().name == name && control->state().index == index)
            return *control;
    throw RunTimeError(E_INVALIDARG);
}

TEST_F(GalleryWindowTest, oneOfAnArrayOfCheckButtonsIsChosenAndShowsWhatItsTagNames)
{
    start(L"mail.frm");
    Form& form = gallery.form();
    FormControl& first = ofArray(form, L"imgMessage", 0);
    FormControl& third = ofArray(form, L"imgMessage", 2);
    auto const isChecked = [](FormControl& control) {
        return getByName(control.extender(), L"Checked").toBool();
    };
    click(third);
    EXPECT_TRUE(waitUntil([&] { return form.find(L"fraMessage2")->isShown() && isChecked(third); }));
    EXPECT_FALSE(form.find(L"fraMessage0")->isShown());
    EXPECT_FALSE(isChecked(first));
    click(third); // a double click's second one: without keeping the choice, nothing would be chosen
    EXPECT_TRUE(waitUntil([&] { return isChecked(third); }));
    EXPECT_TRUE(form.find(L"fraMessage2")->isShown());
}

TEST_F(GalleryWindowTest, aButtonWhoseTagNamesAFormOpensItAsADialog)
{
    start(L"mail.frm");
    click(control(L"tbOptions"));
    expectDialog(true);
    EXPECT_EQ(gallery.dialog()->caption(), L"Send options");
    click(*gallery.dialog()->find(L"optHigh"));
    EXPECT_TRUE(gallery.dialog()) << "only its default and cancel buttons end it";
    click(*gallery.dialog()->find(L"imgOk"));
    expectDialog(false);
}

TEST_F(GalleryWindowTest, aDialogsOwnCloseButtonEndsIt)
{
    start(L"mail.frm");
    click(control(L"tbOptions"));
    expectDialog(true);
    ::PostMessageW(gallery.dialog()->window(), WM_CLOSE, 0, 0);
    expectDialog(false);
}

TEST_F(GalleryWindowTest, aDoubleClickAtDesignTimeOpensThePropertyPages)
{
    start(L"buttons.frm", UserMode::Design);
    EXPECT_EQ(textOf(gallery.window()), L"Quillet - flat buttons [design]");
    std::vector<std::wstring> pages;
    kit::DialogWatch const watch([&](HWND frame) {
        pages = kit::pageTitles(frame);
        ::PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
    });
    click(control(L"cmdPlain"), 2);
    EXPECT_TRUE(waitUntil([&] { return !pages.empty(); }));
    EXPECT_THAT(pages, testing::ElementsAreArray({L"General", L"Colors", L"Fonts", L"Pictures"}));
}

TEST_F(GalleryWindowTest, aDesignedOptionHearsNothingOfTheMouse)
{
    start(L"options.frm", UserMode::Design);
    FormControl& small = control(L"optSmall");
    long const before = getByName(small.extender(), L"Value").toLong();
    FormControl& other = control(before ? L"optLarge" : L"optSmall");
    click(other);
    EXPECT_EQ(getByName(small.extender(), L"Value").toLong(), before);
    EXPECT_EQ(::SendMessageW(gallery.events(), LB_GETCOUNT, 0, 0), 0);
}

/// A copy of a form that may be changed.
std::wstring copyOf(wchar_t const* name)
{
    std::wstring const folder = programFolder() + L"\\designed";
    ::CreateDirectoryW(folder.c_str(), nullptr);
    writeFileBytes(folder + L"\\" + name, fileBytes(formFile(name)));
    return folder + L"\\" + name;
}

TEST_F(GalleryWindowTest, whatWasDesignedRunsAndIsSaved)
{
    std::wstring const path = copyOf(L"looks.frm");
    gallery.open(path, UserMode::Design);
    gallery.show();
    EXPECT_TRUE(gallery.bar().find(L"tbSave")->isShown());
    putByName(control(L"cmdNormal").extender(), L"Caption", Variant::ofString(L"Another"));
    click(*gallery.bar().find(L"tbDesign"));
    ASSERT_TRUE(waitUntil([&] { return !gallery.form().isDesign(); }));
    EXPECT_EQ(getByName(control(L"cmdNormal").extender(), L"Caption").toString().view(), L"Another");
    EXPECT_FALSE(gallery.bar().find(L"tbSave")->isShown());
    EXPECT_THAT(fileBytes(path), testing::Not(HasSubstr("Another"))) << "nothing was saved yet";

    click(control(L"cmdNormal")); // or the next click would be a double click's second one
    click(*gallery.bar().find(L"tbDesign"));
    ASSERT_TRUE(waitUntil([&] { return gallery.form().isDesign(); }));
    click(*gallery.bar().find(L"tbSave"));
    EXPECT_TRUE(waitUntil([&] { return fileBytes(path).find("Another") != std::string::npos; }));
}

} // namespace
} // namespace quillet::gallery::test
