// The properties of qvFlatCommand: types, initial values, and what assigning them does; the mouse pointer
// that they make; the about box.
#include "FlatButton.h"
#include "base/Version.h"
#include "kit/Errors.h"
#include "kit/FakeBag.h"
#include "kit/ModalDialog.h"

#include <algorithm>

namespace quillet::flat {
namespace {

enum class Repaints { No, Yes };

/// One property that is read and assigned by value.
template <class T> struct Row {
    wchar_t const* name;
    DISPID id;
    HRESULT (STDMETHODCALLTYPE _qvFlatCommand::*get)(T*);
    HRESULT (STDMETHODCALLTYPE _qvFlatCommand::*put)(T);
    T initial;
    T other;
    Repaints repaints;
};

#define QV_PROPERTY(name) L"" #name, id::name, &_qvFlatCommand::get_##name, &_qvFlatCommand::put_##name

constexpr OLE_COLOR kOther = 0x00123456;

Row<OLE_COLOR> const kColors[] = {
    {QV_PROPERTY(BackColor), 0x8000000F, kOther, Repaints::Yes},
    {QV_PROPERTY(ForeColor), 0x80000012, kOther, Repaints::Yes},
    {QV_PROPERTY(BorderColor), 0x80000015, kOther, Repaints::Yes},
    {QV_PROPERTY(HotForeColor), 0x80000014, kOther, Repaints::No},
    {QV_PROPERTY(PressedForeColor), 0x80000014, kOther, Repaints::No},
    {QV_PROPERTY(HotBackColor), 0x80000010, kOther, Repaints::No},
    {QV_PROPERTY(PressedBackColor), 0x80000015, kOther, Repaints::No},
    {QV_PROPERTY(HotBorderColor), 0x80000015, kOther, Repaints::No},
    {QV_PROPERTY(PressedBorderColor), 0x80000015, kOther, Repaints::No},
    {QV_PROPERTY(DisabledForeColor), 0x80000011, kOther, Repaints::Yes},
};

Row<VARIANT_BOOL> const kBooleans[] = {
    {QV_PROPERTY(Enabled), VARIANT_TRUE, VARIANT_FALSE, Repaints::Yes},
    {QV_PROPERTY(CentreCaption), VARIANT_FALSE, VARIANT_TRUE, Repaints::Yes},
    {QV_PROPERTY(ShowFocusRectangle), VARIANT_TRUE, VARIANT_FALSE, Repaints::Yes},
    {QV_PROPERTY(OfficeXPColors), VARIANT_FALSE, VARIANT_TRUE, Repaints::Yes},
};

Row<SHORT> const kShorts[] = {
    {QV_PROPERTY(CaptionIndent), 4, -300, Repaints::Yes},
    {QV_PROPERTY(MousePointer), 0, 2, Repaints::No},
};

using Style = pdsButtonBorderStyleConstants;
Row<Style> const kStyles[] = {
    {QV_PROPERTY(BorderStyle), Style::Fixed, Style::None, Repaints::Yes},
};

/// Those of truth last: a button that is not enabled any more looks otherwise.
template <class Use> void forEachRow(Use const& use)
{
    std::ranges::for_each(kColors, use);
    std::ranges::for_each(kShorts, use);
    std::ranges::for_each(kStyles, use);
    std::ranges::for_each(kBooleans, use);
}

class FlatProperties : public FlatTest {
protected:
    FlatButton button{library(), form};

    void start()
    {
        button.start();
        button.forget();
    }
    void checkInitial()
    {
        forEachRow([&]<class T>(Row<T> const& row) {
            SCOPED_TRACE(kit::narrow(row.name));
            T value{};
            EXPECT_EQ((button.dual()->*row.get)(&value), S_OK);
            EXPECT_EQ(value, row.initial);
            EXPECT_EQ(kit::idOf(*button.dual(), row.name), row.id);
        });
    }
    /// Since the button started, or since the last time.
    void expectToldAndPainted(DISPID told, int paints)
    {
        EXPECT_EQ(button.paints(), paints);
        EXPECT_THAT(button.changes().take(), ElementsAreArray({told}));
        button.forget();
    }
    OLE_COLOR backColor() const
    {
        OLE_COLOR color = 0;
        EXPECT_EQ(button->get_BackColor(&color), S_OK);
        return color;
    }
    void expectTheFormsFont() const
    {
        EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get())) << "not the form's font";
    }
};

TEST_F(FlatProperties, ofANewInstanceHaveTheirInitialValues)
{
    button.setSite();
    ASSERT_EQ(button.initNew(), S_OK);
    checkInitial();
    EXPECT_EQ(button.caption(), L"Button1");
    Bstr tip(L"poison");
    EXPECT_EQ(button->get_ToolTipText(tip.put()), S_OK);
    EXPECT_EQ(tip.view(), L"");
    EXPECT_FALSE(button.mouseIcon());
    expectTheFormsFont();
}

TEST_F(FlatProperties, haveTheirInitialValuesAlreadyBeforeAnybodyInitialises)
{
    checkInitial();
    EXPECT_TRUE(button.font());
}

TEST_F(FlatProperties, assignedKeepTheValueTellTheContainerAndRepaintOnlyForTheRestingLook)
{
    start();
    forEachRow([&]<class T>(Row<T> const& row) {
        SCOPED_TRACE(kit::narrow(row.name));
        EXPECT_EQ((button.dual()->*row.put)(row.other), S_OK);
        expectToldAndPainted(row.id, row.repaints == Repaints::Yes ? 1 : 0);
        T value{};
        EXPECT_EQ((button.dual()->*row.get)(&value), S_OK);
        EXPECT_EQ(value, row.other);
    });
}

TEST_F(FlatProperties, assignedAreStoredThenToldThenShown)
{
    button.start();
    std::vector<std::string> order;
    OLE_COLOR told = 0;
    button.changes().action = [&](DISPID id) {
        order.push_back(id == id::BackColor ? "told" : "another property");
        told = backColor();
    };
    button.events().action = [&](kit::EventRecorder::Event const& event) {
        order.push_back(event.id == kPaint ? "painted" : "another event");
    };
    EXPECT_EQ(button->put_BackColor(kOther), S_OK);
    EXPECT_THAT(order, ElementsAreArray({"told", "painted"}));
    EXPECT_EQ(told, kOther);
    button.changes().action = nullptr;
    button.events().action = nullptr;
}

TEST_F(FlatProperties, assignedTheSameValueAgainStillTellAndRepaint)
{
    start();
    EXPECT_EQ(button->put_BackColor(0x8000000F), S_OK);
    expectToldAndPainted(id::BackColor, 1);
}

TEST_F(FlatProperties, readIntoNowhereAreRefused)
{
    button.setSite();
    forEachRow([&](auto const& row) {
        EXPECT_EQ((button.dual()->*row.get)(nullptr), E_POINTER) << kit::narrow(row.name);
    });
    EXPECT_EQ(button->get_Caption(nullptr), E_POINTER);
    EXPECT_EQ(button->get_ToolTipText(nullptr), E_POINTER);
    EXPECT_EQ(button->get_Font(nullptr), E_POINTER);
    EXPECT_EQ(button->get_MouseIcon(nullptr), E_POINTER);
    EXPECT_EQ(button->get_hwnd(nullptr), E_POINTER);
    EXPECT_EQ(button->get_hdc(nullptr), E_POINTER);
}

TEST_F(FlatProperties, toolTipTextIsKeptAndDoesNotRepaint)
{
    start();
    EXPECT_EQ(button->put_ToolTipText(Bstr(L"a tip").get()), S_OK);
    expectToldAndPainted(id::ToolTipText, 0);
    Bstr tip;
    button->get_ToolTipText(tip.put());
    EXPECT_EQ(tip.view(), L"a tip");
}

TEST_F(FlatProperties, captionIsKeptWithItsMarkersAndRepaints)
{
    start();
    button.setCaption(L"&Save && \x00E4nder");
    EXPECT_EQ(button.caption(), L"&Save && \x00E4nder");
    expectToldAndPainted(id::Caption, 1);
    EXPECT_EQ(button->put_Caption(nullptr), S_OK);
    EXPECT_EQ(button.caption(), L"");
}

TEST_F(FlatProperties, fontIsTakenByValueTellsAndRepaints)
{
    start();
    auto const large = kit::newFont(L"Tahoma", 18, true);
    button.setFont(large.get());
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *large.get()));
    expectToldAndPainted(DISPID_FONT, 1);
}

TEST_F(FlatProperties, fontRefusesNothingAndWhatIsNoFont)
{
    start();
    EXPECT_TRUE(FAILED(button->putref_Font(nullptr)));
    auto const picture = kit::newIconPicture();
    EXPECT_TRUE(FAILED(button->putref_Font(reinterpret_cast<IFontDisp*>(picture.get()))));
    expectTheFormsFont();
    EXPECT_THAT(button.changes().take(), IsEmpty());
}

// Sizes are rounded to whole pixels.
TEST_F(FlatProperties, fontIsOf2160PointsAtMost)
{
    start();
    EXPECT_EQ(button->putref_Font(query<IFontDisp>(kit::newFont(L"Tahoma", 2170).get()).get()),
              kInvalidPropertyValue);
    expectTheFormsFont();
    EXPECT_THAT(button.changes().take(), IsEmpty());
    EXPECT_EQ(button->putref_Font(query<IFontDisp>(kit::newFont(L"Tahoma", 2160).get()).get()), S_OK);
}

TEST_F(FlatProperties, mouseIconIsKeptTellsAndDoesNotRepaint)
{
    start();
    auto const icon = kit::newIconPicture();
    EXPECT_EQ(button->putref_MouseIcon(icon.get()), S_OK);
    expectToldAndPainted(id::MouseIcon, 0);
    EXPECT_EQ(button.mouseIcon().get(), icon.get());
    EXPECT_EQ(button->putref_MouseIcon(nullptr), S_OK);
    EXPECT_FALSE(button.mouseIcon());
}

TEST_F(FlatProperties, enabledIsWhetherTheWindowTakesInput)
{
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    button.start();
    EXPECT_FALSE(::IsWindowEnabled(button.window()));
    EXPECT_EQ(button->put_Enabled(VARIANT_TRUE), S_OK);
    EXPECT_TRUE(::IsWindowEnabled(button.window()));
    auto const bag = kit::make<kit::FakeBag>();
    bag->put(L"Enabled", Variant::ofBool(false));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_FALSE(::IsWindowEnabled(button.window()));
}

TEST_F(FlatProperties, hwndAndHdcAreTheWindowAndItsDeviceContext)
{
    button.start();
    LONG window = 0;
    LONG dc = 0;
    EXPECT_EQ(button->get_hwnd(&window), S_OK);
    EXPECT_EQ(button->get_hdc(&dc), S_OK);
    EXPECT_EQ(reinterpret_cast<HWND>(static_cast<LONG_PTR>(window)), button.window());
    EXPECT_TRUE(::IsWindow(button.window()));
    EXPECT_EQ(::WindowFromDC(reinterpret_cast<HDC>(static_cast<LONG_PTR>(dc))), button.window());
}

TEST_F(FlatProperties, hwndAndHdcCannotBeAssigned)
{
    button.start();
    EXPECT_TRUE(FAILED(kit::putByName(*button.dual(), L"hwnd", Variant::ofLong(1)).result));
    EXPECT_TRUE(FAILED(kit::putByName(*button.dual(), L"hdc", Variant::ofLong(1)).result));
    EXPECT_TRUE(::IsWindow(button.window()));
}

TEST_F(FlatProperties, valuesOutsideTheMeaningfulRangeAreStoredAsTheyAre)
{
    button.start();
    EXPECT_EQ(button->put_BorderStyle(static_cast<Style>(77)), S_OK);
    Style style{};
    button->get_BorderStyle(&style);
    EXPECT_EQ(static_cast<long>(style), 77);
    EXPECT_EQ(button->put_MousePointer(-5), S_OK);
    SHORT pointer = 0;
    button->get_MousePointer(&pointer);
    EXPECT_EQ(pointer, -5);
    EXPECT_EQ(button->put_BackColor(0x80FFFFFF), S_OK);
    EXPECT_EQ(backColor(), 0x80FFFFFF);
}

TEST_F(FlatProperties, atDesignTimeAreAssignedWithoutAnyEvent)
{
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    button.start();
    EXPECT_EQ(button->put_BackColor(kOther), S_OK);
    button.setCaption(L"designed");
    EXPECT_EQ(button->Refresh(), S_OK);
    kit::pumpPending();
    EXPECT_THAT(button.events().ids(), IsEmpty());
    EXPECT_THAT(button.changes().take(), testing::IsSupersetOf({id::BackColor, id::Caption}));
}

// A colour arrives from scripts as a signed long; system colours are negative then.
TEST_F(FlatProperties, systemColoursCanBeAssignedByNameAsSignedAndAsUnsignedLong)
{
    button.start();
    EXPECT_EQ(
        kit::putByName(*button.dual(), L"BackColor", Variant::ofLong(static_cast<long>(0x80000010U))).result,
        S_OK);
    EXPECT_EQ(backColor(), 0x80000010U);
    Variant unsignedColor;
    unsignedColor.address()->vt = VT_UI4;
    unsignedColor.address()->ulVal = 0x80000011U;
    EXPECT_EQ(kit::putByName(*button.dual(), L"BackColor", unsignedColor).result, S_OK);
    EXPECT_EQ(backColor(), 0x80000011U);
}

class FlatPointer : public ShownTest {
protected:
    /// The pointer after the window was asked for one.
    HCURSOR shown()
    {
        ::SetCursor(nullptr);
        ::SendMessageW(button.window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(button.window()),
                       MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    }
    static HCURSOR system(auto name) { return ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(name)); }
};

TEST_F(FlatPointer, isTheArrowAtFirst) { EXPECT_EQ(shown(), system(IDC_ARROW)); }

TEST_F(FlatPointer, isTheSystemsOfThatNumber)
{
    auto const pointers = {IDC_ARROW,    IDC_ARROW,       IDC_CROSS,    IDC_IBEAM,  IDC_ARROW,   IDC_SIZEALL,
                           IDC_SIZENESW, IDC_SIZENS,      IDC_SIZENWSE, IDC_SIZEWE, IDC_UPARROW, IDC_WAIT,
                           IDC_NO,       IDC_APPSTARTING, IDC_HELP,     IDC_SIZEALL};
    for (SHORT number = 0; auto const identifier : pointers) {
        EXPECT_EQ(button->put_MousePointer(number), S_OK);
        EXPECT_EQ(shown(), system(identifier)) << number;
        ++number;
    }
}

TEST_F(FlatPointer, isTheArrowForNumbersThatNameNone)
{
    for (SHORT const number : std::initializer_list<SHORT>{-1, 16, 98, 32767}) {
        EXPECT_EQ(button->put_MousePointer(number), S_OK);
        EXPECT_EQ(shown(), system(IDC_ARROW)) << number;
    }
}

TEST_F(FlatPointer, isTheMouseIconForNumber99AndOnlyThen)
{
    auto const icon = kit::newIconPicture();
    EXPECT_EQ(button->putref_MouseIcon(icon.get()), S_OK);
    EXPECT_EQ(shown(), system(IDC_ARROW));
    EXPECT_EQ(button->put_MousePointer(99), S_OK);
    OLE_HANDLE handle = 0;
    query<IPicture>(icon.get())->get_Handle(&handle);
    EXPECT_EQ(shown(), reinterpret_cast<HCURSOR>(static_cast<LONG_PTR>(static_cast<LONG>(handle))));
    EXPECT_EQ(button->putref_MouseIcon(nullptr), S_OK);
    EXPECT_EQ(shown(), system(IDC_ARROW));
}

TEST_F(FlatTest, theAboutBoxShowsTheVersionAndTheCallComesBackWhenItIsClosed)
{
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
