// The properties of qvFlatCommand: types, initial values, and what assigning them does.
#include "FlatButton.h"
#include "kit/ByName.h"
#include "kit/Errors.h"
#include "kit/FakeBag.h"
#include "kit/Fonts.h"
#include "kit/Pump.h"

#include <algorithm>

namespace quillet::flat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    kit::FakeForm form;

    template <class T> void checkInitial(FlatButton& button, Row<T> const& row)
    {
        T value{};
        EXPECT_EQ((button.dual()->*row.get)(&value), S_OK) << kit::narrow(row.name);
        EXPECT_EQ(value, row.initial) << kit::narrow(row.name);
        EXPECT_EQ(kit::idOf(*button.dual(), row.name), row.id) << kit::narrow(row.name);
    }

    template <class T> void checkAssigned(FlatButton& button, Row<T> const& row)
    {
        SCOPED_TRACE(kit::narrow(row.name));
        kit::pumpPending();
        button.events().forget();
        button.changes().take();
        EXPECT_EQ((button.dual()->*row.put)(row.other), S_OK);
        EXPECT_EQ(button.events().count(kPaint), row.repaints == Repaints::Yes ? 1 : 0);
        EXPECT_THAT(button.changes().take(), ElementsAre(row.id));
        T value{};
        EXPECT_EQ((button.dual()->*row.get)(&value), S_OK);
        EXPECT_EQ(value, row.other);
    }

    template <class T> void checkNullRefused(FlatButton& button, Row<T> const& row)
    {
        EXPECT_EQ((button.dual()->*row.get)(nullptr), E_POINTER) << kit::narrow(row.name);
    }
};

TEST_F(FlatProperties, ofANewInstanceHaveTheirInitialValues)
{
    FlatButton button(library(), form);
    button.setSite();
    ASSERT_EQ(button.initNew(), S_OK);
    forEachRow([&](auto const& row) { checkInitial(button, row); });
    EXPECT_EQ(button.caption(), L"Button1");
    Bstr tip(L"poison");
    EXPECT_EQ(button->get_ToolTipText(tip.put()), S_OK);
    EXPECT_EQ(tip.view(), L"");
    ComPtr<IPictureDisp> icon;
    EXPECT_EQ(button->get_MouseIcon(icon.put()), S_OK);
    EXPECT_FALSE(icon);
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get())) << "not the form's font";
}

TEST_F(FlatProperties, haveTheirInitialValuesAlreadyBeforeAnybodyInitialises)
{
    FlatButton button(library(), form);
    forEachRow([&](auto const& row) { checkInitial(button, row); });
    EXPECT_TRUE(button.font());
}

TEST_F(FlatProperties, assignedKeepTheValueTellTheContainerAndRepaintOnlyForTheRestingLook)
{
    FlatButton button(library(), form);
    button.start();
    forEachRow([&](auto const& row) { checkAssigned(button, row); });
}

TEST_F(FlatProperties, assignedAreStoredThenToldThenShown)
{
    FlatButton button(library(), form);
    button.start();
    std::vector<std::string> order;
    OLE_COLOR told = 0;
    button.changes().action = [&](DISPID id) {
        order.push_back(id == id::BackColor ? "told" : "another property");
        button->get_BackColor(&told);
    };
    button.events().action = [&](kit::EventRecorder::Event const& event) {
        order.push_back(event.id == kPaint ? "painted" : "another event");
    };
    EXPECT_EQ(button->put_BackColor(kOther), S_OK);
    EXPECT_THAT(order, ElementsAre("told", "painted"));
    EXPECT_EQ(told, kOther);
    button.changes().action = nullptr;
    button.events().action = nullptr;
}

TEST_F(FlatProperties, assignedTheSameValueAgainStillTellAndRepaint)
{
    FlatButton button(library(), form);
    button.start();
    button.events().forget();
    button.changes().take();
    EXPECT_EQ(button->put_BackColor(0x8000000F), S_OK);
    EXPECT_EQ(button.events().count(kPaint), 1);
    EXPECT_THAT(button.changes().take(), ElementsAre(id::BackColor));
}

TEST_F(FlatProperties, readIntoNowhereAreRefused)
{
    FlatButton button(library(), form);
    button.setSite();
    forEachRow([&](auto const& row) { checkNullRefused(button, row); });
    EXPECT_EQ(button->get_Caption(nullptr), E_POINTER);
    EXPECT_EQ(button->get_ToolTipText(nullptr), E_POINTER);
    EXPECT_EQ(button->get_Font(nullptr), E_POINTER);
    EXPECT_EQ(button->get_MouseIcon(nullptr), E_POINTER);
    EXPECT_EQ(button->get_hwnd(nullptr), E_POINTER);
    EXPECT_EQ(button->get_hdc(nullptr), E_POINTER);
}

TEST_F(FlatProperties, toolTipTextIsKeptAndDoesNotRepaint)
{
    FlatButton button(library(), form);
    button.start();
    button.events().forget();
    button.changes().take();
    EXPECT_EQ(button->put_ToolTipText(Bstr(L"a tip").get()), S_OK);
    EXPECT_EQ(button.events().count(kPaint), 0);
    EXPECT_THAT(button.changes().take(), ElementsAre(id::ToolTipText));
    Bstr tip;
    button->get_ToolTipText(tip.put());
    EXPECT_EQ(tip.view(), L"a tip");
}

TEST_F(FlatProperties, captionIsKeptWithItsMarkersAndRepaints)
{
    FlatButton button(library(), form);
    button.start();
    button.events().forget();
    button.changes().take();
    button.setCaption(L"&Save && \x00E4nder");
    EXPECT_EQ(button.caption(), L"&Save && \x00E4nder");
    EXPECT_EQ(button.events().count(kPaint), 1);
    EXPECT_THAT(button.changes().take(), ElementsAre(id::Caption));
    EXPECT_EQ(button->put_Caption(nullptr), S_OK);
    EXPECT_EQ(button.caption(), L"");
}

TEST_F(FlatProperties, fontIsTakenByValueTellsAndRepaints)
{
    FlatButton button(library(), form);
    button.start();
    button.events().forget();
    button.changes().take();
    auto const large = kit::newFont(L"Tahoma", 18, true);
    button.setFont(large.get());
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *large.get()));
    EXPECT_EQ(button.events().count(kPaint), 1);
    EXPECT_THAT(button.changes().take(), ElementsAre(DISPID_FONT));
}

TEST_F(FlatProperties, fontRefusesNothingAndWhatIsNoFont)
{
    FlatButton button(library(), form);
    button.start();
    button.changes().take();
    EXPECT_TRUE(FAILED(button->putref_Font(nullptr)));
    auto const picture = kit::newIconPicture();
    EXPECT_TRUE(FAILED(button->putref_Font(reinterpret_cast<IFontDisp*>(picture.get()))));
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get())) << "the old font is gone";
    EXPECT_THAT(button.changes().take(), IsEmpty());
}

// Sizes are rounded to whole pixels.
TEST_F(FlatProperties, fontIsOf2160PointsAtMost)
{
    FlatButton button(library(), form);
    button.start();
    button.changes().take();
    EXPECT_EQ(button->putref_Font(query<IFontDisp>(kit::newFont(L"Tahoma", 2170).get()).get()),
              kInvalidPropertyValue);
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get())) << "the old font is gone";
    EXPECT_THAT(button.changes().take(), IsEmpty());
    EXPECT_EQ(button->putref_Font(query<IFontDisp>(kit::newFont(L"Tahoma", 2160).get()).get()), S_OK);
}

TEST_F(FlatProperties, mouseIconIsKeptTellsAndDoesNotRepaint)
{
    FlatButton button(library(), form);
    button.start();
    button.events().forget();
    button.changes().take();
    auto const icon = kit::newIconPicture();
    EXPECT_EQ(button->putref_MouseIcon(icon.get()), S_OK);
    EXPECT_EQ(button.events().count(kPaint), 0);
    EXPECT_THAT(button.changes().take(), ElementsAre(id::MouseIcon));
    ComPtr<IPictureDisp> kept;
    EXPECT_EQ(button->get_MouseIcon(kept.put()), S_OK);
    EXPECT_EQ(kept.get(), icon.get());
    EXPECT_EQ(button->putref_MouseIcon(nullptr), S_OK);
    EXPECT_EQ(button->get_MouseIcon(kept.put()), S_OK);
    EXPECT_FALSE(kept);
}

TEST_F(FlatProperties, enabledIsWhetherTheWindowTakesInput)
{
    FlatButton button(library(), form);
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
    FlatButton button(library(), form);
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
    FlatButton button(library(), form);
    button.start();
    EXPECT_TRUE(FAILED(kit::putByName(*button.dual(), L"hwnd", Variant::ofLong(1)).result));
    EXPECT_TRUE(FAILED(kit::putByName(*button.dual(), L"hdc", Variant::ofLong(1)).result));
    EXPECT_TRUE(::IsWindow(button.window()));
}

TEST_F(FlatProperties, valuesOutsideTheMeaningfulRangeAreStoredAsTheyAre)
{
    FlatButton button(library(), form);
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
    OLE_COLOR color = 0;
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x80FFFFFF);
}

TEST_F(FlatProperties, atDesignTimeAreAssignedWithoutAnyEvent)
{
    FlatButton button(library(), form);
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
    FlatButton button(library(), form);
    button.start();
    EXPECT_EQ(
        kit::putByName(*button.dual(), L"BackColor", Variant::ofLong(static_cast<long>(0x80000010U))).result,
        S_OK);
    OLE_COLOR color = 0;
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x80000010U);
    Variant unsignedColor;
    unsignedColor.address()->vt = VT_UI4;
    unsignedColor.address()->ulVal = 0x80000011U;
    EXPECT_EQ(kit::putByName(*button.dual(), L"BackColor", unsignedColor).result, S_OK);
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x80000011U);
}

} // namespace
} // namespace quillet::flat
