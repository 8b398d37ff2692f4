// The circle and the square, pixel by pixel, against pictures drawn by hand.
#include "Box.h"
#include "kit/Fonts.h"
#include "kit/Painter.h"

namespace quillet::box {
namespace {

constexpr COLORREF kFace = RGB(10, 200, 250);
constexpr COLORREF kGrey = RGB(128, 128, 128);

kit::Letters const kLetters = {{'.', kFace}, {'#', kBlack}, {' ', kWhite}, {'g', kLightGrey}, {'m', kGrey}};

constexpr char kClearCircle[] = "....####.....\n"
                                "..##    ##...\n"
                                ".#        #..\n"
                                ".#        #..\n"
                                "#          #.\n"
                                "#          #.\n"
                                "#          #.\n"
                                "#          #.\n"
                                ".#        #..\n"
                                ".#        #..\n"
                                "..##    ##...\n"
                                "....####.....\n"
                                ".............\n";

constexpr char kChosenCircle[] = "....####.....\n"
                                 "..##    ##...\n"
                                 ".#        #..\n"
                                 ".#        #..\n"
                                 "#    ##    #.\n"
                                 "#   ####   #.\n"
                                 "#   ####   #.\n"
                                 "#    ##    #.\n"
                                 ".#        #..\n"
                                 ".#        #..\n"
                                 "..##    ##...\n"
                                 "....####.....\n"
                                 ".............\n";

constexpr char kClearSquare[] = "#############\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#           #\n"
                                "#############\n";

constexpr char kSetSquare[] = "#############\n"
                              "#           #\n"
                              "#           #\n"
                              "#        #  #\n"
                              "#       ##  #\n"
                              "#  #   ###  #\n"
                              "#  ## ###   #\n"
                              "#  #####    #\n"
                              "#   ###     #\n"
                              "#    #      #\n"
                              "#           #\n"
                              "#           #\n"
                              "#############\n";

/// The picture with another letter for each of one kind.
std::string with(std::string picture, char from, char to)
{
    std::ranges::replace(picture, from, to);
    return picture;
}

/// The grey mark of the third state: every black pixel that is not of the outline.
std::string thirdState()
{
    std::string picture = kSetSquare;
    constexpr size_t kRow = 14;
    for (size_t y = 1; y < 12; ++y)
        for (size_t x = 1; x < 12; ++x)
            if (picture[y * kRow + x] == '#')
                picture[y * kRow + x] = 'm';
    return picture;
}

/// What stands in the control's left 13 columns, from the row on in which the glyph has to begin.
std::string glyphOf(Box const& box, int top)
{
    RECT client;
    ::GetClientRect(box.inner(), &client);
    kit::Canvas canvas(client.right, client.bottom);
    kit::readWindow(box.inner(), canvas);
    return canvas.picture(kLetters, 0, top, 13, top + 13);
}

class Glyph : public BoxTest {
protected:
    /// 20 pixels high: the fill's point is in row 20 / 2 - 2 = 8, the glyph begins 4 rows above it.
    static constexpr int kTop = 4;

    std::unique_ptr<Box> shown(Kind const& kind, long value, Mode mode = Mode::Run)
    {
        auto const bag = newBag();
        bag->put(L"BackColor", Variant::ofLong(static_cast<long>(kFace)));
        bag->put(L"Caption", Variant::ofString(L""));
        bag->put(L"Value", Variant::ofLong(value));
        auto box = std::make_unique<Box>(kind, library(), form, kPlace, L"Box1", mode);
        box->start(*bag.get());
        return box;
    }
};

TEST_F(Glyph, ofAnOptionIsABlackCircleWithWhiteInside)
{
    EXPECT_EQ(glyphOf(*shown(kOption, 0), kTop), kClearCircle);
}

TEST_F(Glyph, ofAChosenOptionHasABlackDot) { EXPECT_EQ(glyphOf(*shown(kOption, 1), kTop), kChosenCircle); }

TEST_F(Glyph, ofACheckBoxIsABlackSquareWithWhiteInside)
{
    EXPECT_EQ(glyphOf(*shown(kCheck, 0), kTop), kClearSquare);
}

TEST_F(Glyph, ofASetCheckBoxHasABlackMark) { EXPECT_EQ(glyphOf(*shown(kCheck, 1), kTop), kSetSquare); }

TEST_F(Glyph, ofTheThirdStateHasAGreyMark)
{
    EXPECT_EQ(glyphOf(*shown(kCheck, 2, Mode::Design), kTop), thirdState());
}

TEST_F(Glyph, keepsItsGreyMarkUnderAFill) { EXPECT_EQ(glyphOf(*shown(kCheck, 2), kTop), thirdState()); }

TEST_F(Glyph, isShadedInsideItsOutlineAloneAndItsMarkStaysBlack)
{
    auto option = shown(kOption, 1);
    option->enter();
    EXPECT_EQ(glyphOf(*option, kTop), with(kChosenCircle, ' ', 'g'));
    option->leave();
    EXPECT_EQ(glyphOf(*option, kTop), kChosenCircle);
    option.reset();
    auto const check = shown(kCheck, 1);
    check->enter();
    EXPECT_EQ(glyphOf(*check, kTop), with(kSetSquare, ' ', 'g'));
    check->leave();
    EXPECT_EQ(glyphOf(*check, kTop), kSetSquare);
}

TEST_F(Glyph, ofTheThirdStateIsShadedRoundItsGreyMark)
{
    auto const check = shown(kCheck, 2);
    check->enter();
    EXPECT_EQ(glyphOf(*check, kTop), with(thirdState(), ' ', 'g'));
}

TEST_F(Glyph, isRepaintedShadedWhileItIsHot)
{
    auto const check = shown(kCheck, 0);
    check->enter();
    ::InvalidateRect(check->inner(), nullptr, TRUE);
    ::UpdateWindow(check->inner());
    EXPECT_EQ(glyphOf(*check, kTop), with(kClearSquare, ' ', 'g'));
}

/// The documented point of the fill: half the height less two, halves to the even neighbour.
int fillRow(int height)
{
    int const twice = height - 4;
    if (twice % 2 == 0)
        return twice / 2;
    int const below = (twice - 1) / 2;
    return below % 2 == 0 ? below : below + 1;
}

TEST_F(Glyph, isShadedAtEveryHeight)
{
    for (Kind const* kind : {&kOption, &kCheck})
        for (int height = 4; height <= 48; ++height) {
            Box box(*kind, library(), form, {20, 30, 140, 30 + height});
            auto const bag = newBag();
            bag->put(L"BackColor", Variant::ofLong(static_cast<long>(kFace)));
            bag->put(L"Enabled", Variant::ofBool(false));
            bag->put(L"Value", Variant::ofLong(1));
            box.start(*bag.get());
            kit::Canvas canvas(120, height);
            kit::readWindow(box.inner(), canvas);
            EXPECT_EQ(canvas.at(4, fillRow(height)), kLightGrey) << kind->name << ' ' << height;
            if (height >= 13) { // in a lower one the mark cuts off corners
                EXPECT_EQ(canvas.count(kWhite), 0) << kind->name << ' ' << height;
            }
            EXPECT_EQ(canvas.at(14, height / 2), kFace)
                << "the fill ran out: " << kind->name << ' ' << height;
        }
}

TEST_F(Glyph, isShadedWithoutLeavingTheBrushBehind)
{
    for (Kind const* kind : {&kOption, &kCheck}) {
        auto const box = shown(*kind, 0);
        HDC const dc = ::GetDC(box->inner()); // the window's own: what is selected stays
        HGDIOBJ const before = ::GetCurrentObject(dc, OBJ_BRUSH);
        ASSERT_NE(before, ::GetStockObject(LTGRAY_BRUSH));
        box->enter();
        EXPECT_EQ(box->pixel(kInGlyph), kLightGrey);
        EXPECT_EQ(::GetCurrentObject(dc, OBJ_BRUSH), before) << kind->name;
    }
}

TEST_F(Glyph, standsAtTheSamePlaceForEveryFont)
{
    auto const box = shown(kCheck, 1);
    EXPECT_EQ(kit::setByName(box->dispatch(), L"Font", kit::newFont(L"Tahoma", 48).get()).result, S_OK);
    kit::pumpPending();
    EXPECT_EQ(glyphOf(*box, kTop), kSetSquare);
}

} // namespace
} // namespace quillet::box
