// Border, face and focus frame of qvFlatCommand as rings of pixels, in pictures small enough to read.
#include "ShownButton.h"
#include "kit/Input.h"

namespace quillet::flat {
namespace {

constexpr RECT kSmall{20, 30, 34, 38}; // 14 x 8

kit::Letters const kLetters{{'.', kBack}, {'#', kBorder}, {'f', kFore}, {'g', RGB(0x80, 0x80, 0x80)}};

class FlatRings : public FlatTest {
protected:
    kit::FakeForm form;
};

TEST_F(FlatRings, normalIsABorderOfOnePixelRoundTheFace)
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
    Face face = normalFace();
    face.caption = L"&Far";
    EXPECT_EQ(button.differencesFrom(face), "");
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
