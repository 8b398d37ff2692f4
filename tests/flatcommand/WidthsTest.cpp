// The three border widths, and what they make: border, face and focus frame as rings of pixels.
#include "FlatButton.h"
#include "kit/ByName.h"
#include "kit/Errors.h"
#include "kit/Input.h"

#include <iterator>

namespace quillet::flat {
namespace {

using testing::IsEmpty;

struct Width {
    char const* name;
    DISPID id;
    bool repaints;
    HRESULT (STDMETHODCALLTYPE _qvFlatCommand::*get)(VARIANT*);
    HRESULT (STDMETHODCALLTYPE _qvFlatCommand::*put)(VARIANT);
};

Width const kWidths[] = {
    {"BorderWidth", id::BorderWidth, true, &_qvFlatCommand::get_BorderWidth,
     &_qvFlatCommand::put_BorderWidth},
    {"HotBorderWidth", id::HotBorderWidth, false, &_qvFlatCommand::get_HotBorderWidth,
     &_qvFlatCommand::put_HotBorderWidth},
    {"PressedBorderWidth", id::PressedBorderWidth, false, &_qvFlatCommand::get_PressedBorderWidth,
     &_qvFlatCommand::put_PressedBorderWidth},
};

Variant ofDouble(double value)
{
    Variant result;
    result.address()->vt = VT_R8;
    result.address()->dblVal = value;
    return result;
}

/// The description and source of the error that the last call left behind.
std::pair<std::wstring, std::wstring> takenError()
{
    ComPtr<IErrorInfo> info;
    Bstr description;
    Bstr source;
    if (::GetErrorInfo(0, info.put()) == S_OK && info) {
        info->GetDescription(description.put());
        info->GetSource(source.put());
    }
    return {std::wstring(description.view()), std::wstring(source.view())};
}

class FlatWidths : public FlatTest, public testing::WithParamInterface<Width> {
protected:
    void SetUp() override
    {
        FlatTest::SetUp();
        button.start();
        button.events().forget();
        button.changes().take();
    }

    HRESULT put(Variant const& value) { return (button.dual()->*GetParam().put)(value.get()); }
    short width()
    {
        Variant value = Variant::ofString(L"poison");
        ::VariantClear(value.address());
        EXPECT_EQ((button.dual()->*GetParam().get)(value.address()), S_OK);
        EXPECT_EQ(value.type(), VT_I2);
        return value.get().iVal;
    }
    void expectNothingHappened()
    {
        EXPECT_THAT(button.events().ids(), IsEmpty());
        EXPECT_THAT(button.changes().take(), IsEmpty());
    }

    kit::FakeForm form;
    FlatButton button{library(), form};
};

TEST_P(FlatWidths, isA16BitIntegerInAVariantAndOneAtFirst)
{
    EXPECT_EQ(width(), 1);
    EXPECT_EQ((button.dual()->*GetParam().get)(nullptr), E_POINTER);
}

TEST_P(FlatWidths, isKeptToldAndRepaintedOnlyForTheRestingLook)
{
    EXPECT_EQ(put(Variant::ofShort(7)), S_OK);
    EXPECT_EQ(width(), 7);
    EXPECT_EQ(button.events().count(kPaint), GetParam().repaints ? 1 : 0);
    EXPECT_THAT(button.changes().take(), testing::ElementsAre(GetParam().id));
}

TEST_P(FlatWidths, comesInAnyTypeThatConvertsAndGoesOutAs16Bits)
{
    EXPECT_EQ(put(Variant::ofString(L"12")), S_OK);
    EXPECT_EQ(width(), 12);
    EXPECT_EQ(put(Variant::ofLong(32767)), S_OK);
    EXPECT_EQ(width(), 32767);
    EXPECT_EQ(put(Variant::ofLong(-32768)), S_OK);
    EXPECT_EQ(width(), -32768);
    EXPECT_EQ(put(ofDouble(2.5)), S_OK);
    EXPECT_EQ(width(), 2) << "halves go to the even neighbour";
    EXPECT_EQ(put(ofDouble(3.5)), S_OK);
    EXPECT_EQ(width(), 4);
    EXPECT_EQ(put(Variant::ofBool(true)), S_OK);
    EXPECT_EQ(width(), -1);
    EXPECT_EQ(put(Variant()), S_OK);
    EXPECT_EQ(width(), 0);
}

TEST_P(FlatWidths, comesByReferenceToo)
{
    short target = 9;
    EXPECT_EQ(put(Variant::ofShortRef(&target)), S_OK);
    EXPECT_EQ(width(), 9);
    Variant inner = Variant::ofString(L"11");
    Variant reference;
    reference.address()->vt = VT_VARIANT | VT_BYREF;
    reference.address()->pvarVal = inner.address();
    EXPECT_EQ(put(reference), S_OK);
    EXPECT_EQ(width(), 11);
}

TEST_P(FlatWidths, beyond16BitsOverflowsAndLeavesTheOldWidth)
{
    for (Variant const& value :
         {Variant::ofLong(40000), Variant::ofLong(-32769), Variant::ofString(L"40000"), ofDouble(1e300)}) {
        EXPECT_EQ(put(value), kOverflow);
        EXPECT_EQ(takenError(), std::pair(std::wstring(L"Overflow"), std::wstring(L"Quillet.qvFlatCommand")));
        EXPECT_EQ(width(), 1);
        expectNothingHappened();
    }
}

TEST_P(FlatWidths, ofWhatIsNoNumberIsATypeMismatchAndLeavesTheOldWidth)
{
    EXPECT_EQ(put(Variant::ofString(L"abc")), kTypeMismatch);
    EXPECT_EQ(takenError(),
              std::pair(std::wstring(L"Type mismatch"), std::wstring(L"Quillet.qvFlatCommand")));
    EXPECT_EQ(width(), 1);
    Variant array;
    array.address()->vt = VT_ARRAY | VT_I2;
    array.address()->parray = ::SafeArrayCreateVector(VT_I2, 0, 2);
    EXPECT_TRUE(FAILED(put(array)));
    EXPECT_TRUE(FAILED(put(Variant::ofUnknown(form.frame().unknown()))));
    EXPECT_EQ(width(), 1);
    expectNothingHappened();
}

TEST_P(FlatWidths, ofNullIsAnInvalidUseOfNullAndLeavesTheOldWidth)
{
    Variant null;
    null.address()->vt = VT_NULL;
    EXPECT_EQ(put(null), kInvalidUseOfNull);
    EXPECT_EQ(takenError(),
              std::pair(std::wstring(L"Invalid use of Null"), std::wstring(L"Quillet.qvFlatCommand")));
    Variant reference;
    reference.address()->vt = VT_VARIANT | VT_BYREF;
    reference.address()->pvarVal = null.address();
    EXPECT_EQ(put(reference), kInvalidUseOfNull);
    EXPECT_EQ(width(), 1);
    expectNothingHappened();
}

TEST_P(FlatWidths, byNameRaisesTheSameErrorAsAnException)
{
    std::wstring const name(GetParam().name, GetParam().name + strlen(GetParam().name));
    kit::Called const called = kit::putByName(*button.dual(), name.c_str(), Variant::ofLong(40000));
    EXPECT_EQ(called.result, DISP_E_EXCEPTION);
    EXPECT_EQ(called.code, kOverflow);
    EXPECT_EQ(called.description, L"Overflow");
    EXPECT_EQ(called.source, L"Quillet.qvFlatCommand");
    EXPECT_EQ(kit::putByName(*button.dual(), name.c_str(), Variant::ofString(L"12")).result, S_OK);
    kit::Called const got = kit::getByName(*button.dual(), name.c_str());
    EXPECT_EQ(got.value.type(), VT_I2);
    EXPECT_EQ(got.value.toShort(), 12);
}

INSTANTIATE_TEST_SUITE_P(Each, FlatWidths, testing::ValuesIn(kWidths),
                         [](testing::TestParamInfo<Width> const& row) {
                             return std::string(row.param.name);
                         });

class FlatWidthEdges : public FlatTest {};

TEST_F(FlatWidthEdges, settingBorderWidthTo0WithBorderStyle1IsAcceptedAndStoredAs0)
{
    kit::FakeForm form;
    FlatButton button(library(), form);
    button.start();
    ASSERT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::Fixed), S_OK);
    EXPECT_EQ(button->put_BorderWidth(Variant::ofShort(0).get()), S_OK);
    Variant width;
    button->get_BorderWidth(width.address());
    EXPECT_EQ(width.toShort(), 0);
}

TEST_F(FlatWidthEdges, settingBorderWidthTo40000FailsWithAnOverflowErrorAndLeavesTheOldWidth)
{
    kit::FakeForm form;
    FlatButton button(library(), form);
    button.start();
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(3).get()), S_OK);
    EXPECT_EQ(button->put_BorderWidth(Variant::ofLong(40000).get()), kOverflow);
    Variant width;
    button->get_BorderWidth(width.address());
    EXPECT_EQ(width.toShort(), 3);
}

constexpr RECT kSmall{20, 30, 34, 38}; // 14 x 8

kit::Letters const kLetters{{'.', kBack}, {'#', kBorder}, {'f', kFore}, {'g', RGB(0x80, 0x80, 0x80)}};

class FlatRings : public FlatTest {
protected:
    kit::FakeForm form;
};

TEST_F(FlatRings, normalIsABorderOfOnePixelRoundTheLook)
{
    ShownButton button(library(), form, kSmall);
    button.setColors();
    EXPECT_EQ(button.picture(kLetters), "##############\n"
                                        "#............#\n"
                                        "#............#\n"
                                        "#............#\n"
                                        "#............#\n"
                                        "#............#\n"
                                        "#............#\n"
                                        "##############\n");
}

TEST_F(FlatRings, aBorderWidthOf3IsThreePixelsOnEverySide)
{
    ShownButton button(library(), form, kSmall);
    button.setColors();
    button.setWidth(3);
    EXPECT_EQ(button.picture(kLetters), "##############\n"
                                        "##############\n"
                                        "##############\n"
                                        "###........###\n"
                                        "###........###\n"
                                        "##############\n"
                                        "##############\n"
                                        "##############\n");
}

TEST_F(FlatRings, aBorderWidthOf0IsAllFace)
{
    ShownButton button(library(), form, kSmall);
    button.setColors();
    button.setWidth(0);
    kit::Canvas shown(14, 8);
    button.read(shown);
    EXPECT_EQ(shown.count(kBack), 14 * 8);
}

TEST_F(FlatRings, withTheFocusTheBorderIsOnePixelThickerAndAFrameStandsTwoPixelsInside)
{
    ShownButton button(library(), form, kSmall);
    button.setColors();
    ASSERT_TRUE(kit::focus(button.window()));
    ASSERT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.picture(kLetters), "##############\n"
                                        "##############\n"
                                        "##..........##\n"
                                        "##..........##\n"
                                        "##..........##\n"
                                        "##..........##\n"
                                        "##############\n"
                                        "##############\n")
        << "8 rows leave no room for a frame";
    button.site().position = {20, 30, 36, 42};
    ASSERT_EQ(button.as<IOleInPlaceObject>()->SetObjectRects(&button.site().position, &button.site().clip),
              S_OK);
    ASSERT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.picture(kLetters), "################\n"
                                        "################\n"
                                        "##............##\n"
                                        "##............##\n"
                                        "##..gggggggg..##\n"
                                        "##..g......g..##\n"
                                        "##..g......g..##\n"
                                        "##..gggggggg..##\n"
                                        "##............##\n"
                                        "##............##\n"
                                        "################\n"
                                        "################\n");
}

TEST_F(FlatRings, extremeWidthsAndIndentsEndThePaintSilently)
{
    ShownButton button(library(), form);
    button.setCaption(L"&Far");
    button.events().forget();
    int paints = 0;
    for (short const width : std::initializer_list<short>{SHRT_MIN, -1, 0, 60, SHRT_MAX})
        for (short const indent : std::initializer_list<short>{SHRT_MIN, -1, 0, 300, SHRT_MAX}) {
            EXPECT_EQ(button->put_CaptionIndent(indent), S_OK);
            button.setWidth(width);
            EXPECT_EQ(button->DrawButton(), S_OK);
            paints += 2;
        }
    EXPECT_EQ(button.events().count(kPaint), paints);
    button.setWidth(1);
    EXPECT_EQ(button->put_CaptionIndent(4), S_OK);
    Look look = normalLook();
    look.caption = L"&Far";
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatRings, aBorderWiderThanTheButtonIsAllBorder)
{
    ShownButton button(library(), form, kSmall);
    button.setColors();
    button.setWidth(4);
    kit::Canvas shown(14, 8);
    button.read(shown);
    EXPECT_EQ(shown.count(kBorder), 14 * 8);
    button.setWidth(SHRT_MAX);
    button.read(shown);
    EXPECT_EQ(shown.count(kBorder), 14 * 8);
}

} // namespace
} // namespace quillet::flat
