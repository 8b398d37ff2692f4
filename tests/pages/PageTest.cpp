// Pages opened, changed and applied under a real window, and in the system's own frame, which finds them by
// their classes.
#include "OpenPage.h"
#include "base/Variant.h"
#include "browse/PageIds.h"
#include "kit/Fonts.h"
#include "kit/Hosted.h"
#include "kit/Input.h"
#include "kit/ModalDialog.h"
#include "kit/Pump.h"
#include "typelib/DispatchIds.h"

namespace quillet::pages {
namespace {

namespace id = dispid::qvFlatCommand;

class Pages : public kit::ControlTest {};

std::wstring captionOf(_qvFlatCommand& button)
{
    Bstr caption;
    EXPECT_EQ(button.get_Caption(caption.put()), S_OK);
    return std::wstring(caption.view());
}

short borderWidthOf(_qvFlatCommand& button)
{
    Variant width;
    EXPECT_EQ(button.get_BorderWidth(width.put()), S_OK);
    return width.toShort();
}

/// What a page tells of itself.
struct PageInfo {
    std::wstring title;
    std::wstring helpFile;
    DWORD topic;
    SIZE size;
};

std::wstring taken(wchar_t* owned)
{
    std::wstring const text(owned);
    ::CoTaskMemFree(owned);
    return text;
}

PageInfo infoOf(OpenPage const& page)
{
    PROPPAGEINFO info{};
    info.cb = sizeof(info);
    EXPECT_EQ(page->GetPageInfo(&info), S_OK);
    return {taken(info.pszTitle), taken(info.pszHelpFile), info.dwHelpContext, info.size};
}

/// Closes the message box that is about to open; what it said is in text.
class BoxCloser {
public:
    std::wstring const& text() const { return m_text; }

private:
    void close(HWND box)
    {
        if (textOf(box) != L"General")
            return;
        for (std::wstring const& each : kit::textsIn(box))
            if (each.find(L':') != std::wstring::npos)
                m_text = each;
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    }

    std::wstring m_text;
    kit::DialogWatch m_watch{[this](HWND dialog) { close(dialog); }};
};

std::wstring helpFile() { return kit::Library::folder() + L"quillet.chm"; }

TEST_F(Pages, tellTheirTitleSizeAndHelpFile)
{
    for (auto const& [classId, title] : {std::pair{kGeneralPageClass, L"General"},
                                         {kColoursPageClass, L"Colors"},
                                         {kFontsPageClass, L"Fonts"},
                                         {kPicturesPageClass, L"Pictures"}}) {
        OpenPage page(library(), classId);
        PageInfo const info = infoOf(page);
        EXPECT_EQ(info.title, title);
        EXPECT_EQ(info.helpFile, helpFile());
        EXPECT_EQ(info.topic, 1U) << "the manual, while there is no control";
        EXPECT_GT(info.size.cx, 250);
        EXPECT_GT(info.size.cy, 110);
        EXPECT_EQ(page->GetPageInfo(nullptr), E_POINTER);
    }
}

TEST_F(Pages, openTheTopicOfTheirControl)
{
    FakeHelp help(library().module());
    for (auto const& [classId, topic] : {std::pair{kQvFlatCommandClass, 10U}, {kQvFlatCheckClass, 50U}}) {
        OpenPage page(library(), kGeneralPageClass);
        auto const control = library().create(classId);
        ASSERT_EQ(page.open(control.get()), S_OK);
        EXPECT_EQ(infoOf(page).topic, topic);
        EXPECT_EQ(page->Help(L"C:\\Elsewhere"), S_OK);
        EXPECT_EQ(help.last.caller, page.parent());
        EXPECT_EQ(help.last.file, helpFile());
        EXPECT_EQ(help.last.command, 0xFU) << "a topic by its number";
        EXPECT_EQ(help.last.topic, topic);
    }
}

TEST_F(Pages, letTheFrameHelpWhereTheHelpFileDoesNotOpen)
{
    FakeHelp help(library().module());
    help.shows = false;
    OpenPage page(library(), kGeneralPageClass);
    EXPECT_TRUE(FAILED(page->Help(nullptr)));
    EXPECT_EQ(help.last.topic, 1U) << "the manual, while there is no control";
}

TEST_F(Pages, openInTheirPlaceAndCloseAgain)
{
    OpenPage page(library(), kGeneralPageClass);
    RECT const place{1, 2, 30, 40};
    EXPECT_EQ(page->Activate(page.parent(), nullptr, FALSE), E_POINTER);
    EXPECT_EQ(page->Move(&place), E_UNEXPECTED) << "there is no window yet";
    EXPECT_EQ(page->Show(SW_SHOW), E_UNEXPECTED);
    ASSERT_EQ(page.open(), S_OK);
    EXPECT_EQ(page->Activate(page.parent(), &place, FALSE), E_UNEXPECTED) << "once is enough";
    RECT at{};
    ::GetWindowRect(page.window(), &at);
    ::MapWindowPoints(nullptr, page.parent(), reinterpret_cast<POINT*>(&at), 2);
    RECT const expected{10, 20, 450, 260};
    EXPECT_TRUE(::EqualRect(&at, &expected));
    EXPECT_TRUE(::IsWindowVisible(page.window()));
    EXPECT_EQ(page->Deactivate(), S_OK);
    EXPECT_EQ(page.window(), nullptr);
    EXPECT_EQ(page->Deactivate(), E_UNEXPECTED);
}

TEST_F(Pages, areNoPartOfAnotherObject)
{
    void* object = nullptr;
    auto const factory = library().factory(kGeneralPageClass);
    ASSERT_TRUE(factory);
    auto const outer = kit::make<PageSite>();
    EXPECT_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
}

TEST_F(Pages, theGeneralPageShowsTextsNumbersChoicesAndFlags)
{
    OpenPage page(library(), kGeneralPageClass);
    page.button().put_Caption(Bstr(L"&Save").get());
    page.button().put_CaptionIndent(7);
    page.button().put_CentreCaption(VARIANT_TRUE);
    ASSERT_EQ(page.open(), S_OK);
    EXPECT_EQ(textOf(page.fieldOf(L"Caption")), L"&Save");
    EXPECT_EQ(textOf(page.fieldOf(L"CaptionIndent")), L"7");
    EXPECT_EQ(textOf(page.fieldOf(L"BorderStyle")), L"1 - Fixed");
    EXPECT_EQ(::SendMessageW(page.fieldOf(L"CentreCaption"), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(::SendMessageW(page.fieldOf(L"OfficeXPColors"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(page->IsPageDirty(), S_FALSE) << "showing is not changing";
    EXPECT_EQ(page.site().dirty, 0);
}

TEST_F(Pages, theGeneralPageAppliesWhatWasChangedAndNothingElse)
{
    OpenPage page(library(), kGeneralPageClass);
    page.button().put_Caption(Bstr(L"Before").get());
    ASSERT_EQ(page.open(), S_OK);
    ::SetWindowTextW(page.fieldOf(L"Caption"), L"After");
    ::SendMessageW(page.fieldOf(L"CentreCaption"), BM_CLICK, 0, 0);
    choose(page.fieldOf(L"BorderStyle"), L"0 - None");
    EXPECT_EQ(captionOf(page.button()), L"Before") << "not applied yet";
    EXPECT_EQ(page->IsPageDirty(), S_OK);
    EXPECT_GE(page.site().dirty, 3);
    EXPECT_EQ(page->Apply(), S_OK);
    EXPECT_EQ(page->IsPageDirty(), S_FALSE);
    EXPECT_EQ(captionOf(page.button()), L"After");
    VARIANT_BOOL centred = VARIANT_FALSE;
    page.button().get_CentreCaption(&centred);
    EXPECT_EQ(centred, VARIANT_TRUE);
    auto style = pdsButtonBorderStyleConstants::Fixed;
    page.button().get_BorderStyle(&style);
    EXPECT_EQ(style, pdsButtonBorderStyleConstants::None);
}

TEST_F(Pages, aRefusedValueIsToldAndStaysToBeMended)
{
    OpenPage page(library(), kGeneralPageClass);
    ASSERT_EQ(page.open(), S_OK);
    ::SetWindowTextW(page.fieldOf(L"BorderWidth"), L"40000");
    {
        BoxCloser closer;
        EXPECT_EQ(page->Apply(), E_FAIL);
        EXPECT_EQ(closer.text(), L"BorderWidth: Overflow");
    }
    EXPECT_EQ(page->IsPageDirty(), S_OK);
    EXPECT_EQ(textOf(page.fieldOf(L"BorderWidth")), L"40000");
    EXPECT_EQ(borderWidthOf(page.button()), 1);
    ::SetWindowTextW(page.fieldOf(L"BorderWidth"), L"4");
    EXPECT_EQ(page->Apply(), S_OK);
    EXPECT_EQ(borderWidthOf(page.button()), 4);
}

TEST_F(Pages, editSeveralControlsAtOnce)
{
    OpenPage page(library(), kGeneralPageClass, 3);
    page.button(0).put_Caption(Bstr(L"First").get());
    page.button(1).put_CaptionIndent(9);
    ASSERT_EQ(page.open(), S_OK);
    EXPECT_EQ(textOf(page.fieldOf(L"Caption")), L"First");
    ::SetWindowTextW(page.fieldOf(L"Caption"), L"All");
    EXPECT_EQ(page->Apply(), S_OK);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(captionOf(page.button(i)), L"All");
    short indent = 0;
    page.button(1).get_CaptionIndent(&indent);
    EXPECT_EQ(indent, 9) << "what was not changed stays different";
}

TEST_F(Pages, refuseWhatCannotBeEditedByName)
{
    OpenPage page(library(), kGeneralPageClass);
    IUnknown* object = page.site().unknown();
    EXPECT_TRUE(FAILED(page->SetObjects(1, &object)));
    EXPECT_EQ(page->SetObjects(1, nullptr), E_POINTER);
    IUnknown* none = nullptr;
    EXPECT_TRUE(FAILED(page->SetObjects(1, &none)));
}

TEST_F(Pages, areOfOneFrameAtATime)
{
    OpenPage page(library(), kGeneralPageClass);
    auto const other = kit::make<PageSite>();
    EXPECT_EQ(page->SetPageSite(other.get()), E_UNEXPECTED);
    EXPECT_EQ(page->SetPageSite(nullptr), S_OK);
    EXPECT_EQ(page->SetPageSite(other.get()), S_OK);
    EXPECT_EQ(page->SetPageSite(nullptr), S_OK);
}

TEST_F(Pages, openOnNoControlAtAll)
{
    for (CLSID const& each : {kGeneralPageClass, kColoursPageClass, kFontsPageClass, kPicturesPageClass}) {
        OpenPage page(library(), each, 0);
        ASSERT_EQ(page.open(), S_OK);
        kit::pumpPending();
        EXPECT_EQ(page->Apply(), S_OK);
    }
}

TEST_F(Pages, goToTheFieldOfAProperty)
{
    OpenPage page(library(), kGeneralPageClass);
    EXPECT_EQ(page->EditProperty(id::Caption), E_UNEXPECTED) << "there is no window yet";
    ASSERT_EQ(page.open(), S_OK);
    ASSERT_TRUE(kit::focus(page.parent()));
    EXPECT_EQ(page->EditProperty(id::Caption), S_OK);
    EXPECT_EQ(::GetFocus(), page.fieldOf(L"Caption"));
    EXPECT_EQ(page->EditProperty(id::HotBackColor), E_INVALIDARG) << "another page's";
}

TEST_F(Pages, moveOnWithTabAndLeaveOtherKeysAlone)
{
    OpenPage page(library(), kGeneralPageClass);
    ASSERT_EQ(page.open(), S_OK);
    ASSERT_TRUE(kit::focus(page.fieldOf(L"Caption")));
    MSG tab{};
    tab.hwnd = page.fieldOf(L"Caption");
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    EXPECT_EQ(page->TranslateAccelerator(&tab), S_OK);
    EXPECT_NE(::GetFocus(), page.fieldOf(L"Caption"));
    MSG mouse{};
    mouse.hwnd = page.window();
    mouse.message = WM_MOUSEMOVE;
    EXPECT_EQ(page->TranslateAccelerator(&mouse), S_FALSE);
    EXPECT_EQ(page->TranslateAccelerator(nullptr), E_POINTER);
}

TEST_F(Pages, theColoursPageAssignsADesktopColourToTheChosenProperty)
{
    OpenPage page(library(), kColoursPageClass);
    ASSERT_EQ(page.open(), S_OK);
    HWND const properties = page.firstOf(L"ListBox");
    EXPECT_EQ(::SendMessageW(properties, LB_GETCOUNT, 0, 0), 10);
    choose(properties, L"HotBackColor");
    HWND const colours = page.firstOf(L"ComboBox");
    EXPECT_EQ(textOf(colours), L"Button Shadow");
    choose(colours, L"Highlight");
    EXPECT_EQ(page.site().dirty, 1);
    EXPECT_EQ(page->Apply(), S_OK);
    OLE_COLOR colour = 0;
    page.button().get_HotBackColor(&colour);
    EXPECT_EQ(colour, 0x8000000DU);
    OLE_COLOR other = 0;
    page.button().get_BackColor(&other);
    EXPECT_EQ(other, 0x8000000FU);
}

TEST_F(Pages, theColoursPageNamesNoDesktopColourForAnother)
{
    OpenPage page(library(), kColoursPageClass);
    page.button().put_BackColor(RGB(1, 2, 3));
    ASSERT_EQ(page.open(), S_OK);
    EXPECT_EQ(page->EditProperty(id::BackColor), S_OK);
    EXPECT_EQ(textOf(page.firstOf(L"ComboBox")), L"");
}

TEST_F(Pages, theFontsPageTellsTheFont)
{
    OpenPage page(library(), kFontsPageClass);
    auto const font = query<IFontDisp>(kit::newFont(L"Arial", 12).get()); // a whole number of pixels
    ASSERT_EQ(page.button().putref_Font(font.get()), S_OK);
    ASSERT_EQ(page.open(), S_OK);
    // The font has the name of what the system has in its place.
    ComPtr<IFontDisp> own;
    ASSERT_EQ(page.button().get_Font(own.put()), S_OK);
    EXPECT_NE(page.named(kit::nameOf(*own.as<IFont>(IID_IFont).get()) + L", 12 pt"), nullptr);
}

TEST_F(Pages, thePicturesPageTakesAPictureAway)
{
    OpenPage page(library(), kPicturesPageClass);
    ASSERT_EQ(page.button().putref_MouseIcon(kit::newIconPicture().get()), S_OK);
    ASSERT_EQ(page.open(), S_OK);
    kit::pumpPending(); // the preview is drawn
    ::SendMessageW(page.named(L"Cl&ear"), BM_CLICK, 0, 0);
    EXPECT_EQ(page->Apply(), S_OK);
    ComPtr<IPictureDisp> left;
    page.button().get_MouseIcon(left.put());
    EXPECT_FALSE(left);
}

TEST_F(Pages, thePicturesPageClearsOnlyWhatTheControlCanLose)
{
    OpenPage page(library(), kPicturesPageClass, 0);
    auto const button = library().create(kQvImageCommandClass);
    ASSERT_EQ(page.open(button.get()), S_OK);
    HWND const clear = page.named(L"Cl&ear");
    EXPECT_TRUE(::IsWindowEnabled(clear)) << "the first is MouseIcon";
    for (wchar_t const* const fixed : {L"Image", L"DisabledImage", L"HotImage", L"PressedImage"}) {
        choose(page.firstOf(L"ListBox"), fixed);
        EXPECT_FALSE(::IsWindowEnabled(clear)) << fixed;
        choose(page.firstOf(L"ListBox"), L"MouseIcon");
        EXPECT_TRUE(::IsWindowEnabled(clear));
    }
    EXPECT_EQ(page->EditProperty(dispid::imageButton::HotImage), S_OK);
    EXPECT_FALSE(::IsWindowEnabled(clear));
}

/// Makes a class known to this process alone.
class KnownClass : kit::NotCopied {
public:
    KnownClass(kit::Library const& library, CLSID const& classId)
    {
        EXPECT_EQ(::CoRegisterClassObject(classId, library.factory(classId).get(), CLSCTX_INPROC_SERVER,
                                          REGCLS_MULTIPLEUSE, &m_cookie),
                  S_OK);
    }
    ~KnownClass() { ::CoRevokeClassObject(m_cookie); }

private:
    DWORD m_cookie = 0;
};

class Frame : public kit::ControlTest {};

TEST_F(Frame, ofTheSystemsShowsTheFourPagesWhenTheContainerHasNoneOfItsOwn)
{
    KnownClass const known[] = {{library(), kGeneralPageClass},
                                {library(), kColoursPageClass},
                                {library(), kFontsPageClass},
                                {library(), kPicturesPageClass}};
    kit::FakeForm form;
    form.record().answer("Site.ShowPropertyFrame", E_NOTIMPL);
    kit::Hosted control(library(), kQvFlatCommandClass, form, {20, 20, 140, 60});
    control.start();
    std::vector<std::wstring> titles;
    kit::DialogWatch const watch([&](HWND frame) {
        titles = kit::pageTitles(frame);
        ::PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(control.doVerb(OLEIVERB_PROPERTIES), S_OK);
    EXPECT_THAT(titles, testing::ElementsAreArray({L"General", L"Colors", L"Fonts", L"Pictures"}));
}

} // namespace
} // namespace quillet::pages
