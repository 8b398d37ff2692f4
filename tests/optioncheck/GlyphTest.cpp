// The circle and the square, pixel by pixel, against pictures drawn by hand.
#include "Box.h"
#include "kit/Fonts.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace quillet::box {
namespace {

constexpr COLORREF kAround = RGB(10, 200, 250);
constexpr COLORREF kGrey = RGB(128, 128, 128);

kit::Letters const kLetters = {{'.', kAround}, {'#', kBlack}, {' ', kWhite}, {'g', kLightGrey}, {'m', kGrey}};

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
    return kit::Canvas(box.inner()).picture(kLetters, 0, top, 13, top + 13);
}

std::span<std::uint32_t> pixelsOf(kit::Canvas const& canvas)
{
    DIBSECTION section{};
    ::GetObjectW(canvas.bitmap(), sizeof(section), &section);
    ::GdiFlush();
    return {static_cast<std::uint32_t*>(section.dsBm.bmBits),
            static_cast<size_t>(canvas.width() * canvas.height())};
}

/// Some systems do this to a picture that reaches the screen: its pixels get other bits above their colour.
/// They look the same and are not equal any more.
void changeBitsAboveTheColours(HWND window)
{
    kit::Canvas picture(window);
    for (std::uint32_t& pixel : pixelsOf(picture))
        pixel |= 0xFF000000U;
    WindowDc const dc(window);
    ::BitBlt(dc.get(), 0, 0, picture.width(), picture.height(), picture.dc(), 0, 0, SRCCOPY);
    kit::readWindow(window, picture);
    EXPECT_TRUE(std::ranges::all_of(pixelsOf(picture), [](std::uint32_t pixel) { return pixel >> 24; }))
        << "this system keeps colours alone";
}

class Glyph : public BoxTest {
protected:
    /// 20 pixels high: the fill's point is in row 20 / 2 - 2 = 8, the glyph begins 4 rows above it.
    static constexpr int kTop = 4;

    std::unique_ptr<Box> shown(Kind const& kind, long value, Mode mode = Mode::Run, int height = 20)
    {
        RECT const place{20, 30, 140, 30 + height};
        auto const bag = newBag({{L"BackColor", Variant::ofLong(kAround)},
                                 {L"Caption", Variant::ofString(L"")},
                                 {L"Value", Variant::ofLong(value)}});
        auto box = std::make_unique<Box>(kind, library(), form, place, L"Box1", mode);
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
    for (auto const& [kind, picture] : {std::pair{&kOption, kChosenCircle}, {&kCheck, kSetSquare}}) {
        auto const box = shown(*kind, 1);
        box->enter();
        EXPECT_EQ(glyphOf(*box, kTop), with(picture, ' ', 'g'));
        box->leave();
        EXPECT_EQ(glyphOf(*box, kTop), picture);
    }
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

TEST_F(Glyph, isShadedAloneWhateverHappenedToThePictureBefore)
{
    for (Kind const* kind : {&kOption, &kCheck})
        for (long value = 0; value <= (kind == &kCheck ? 2 : 1); ++value) {
            auto const box = shown(*kind, value);
            std::string const atRest = glyphOf(*box, kTop);
            auto const expect = [&](std::string const& picture) {
                EXPECT_EQ(glyphOf(*box, kTop), picture) << kind->name << ' ' << value;
                EXPECT_EQ(box->pixel({60, 10}), kAround)
                    << "the fill ran out: " << kind->name << ' ' << value;
            };
            auto const after = [&](std::string const& picture, auto const& act) {
                changeBitsAboveTheColours(box->inner());
                act();
                expect(picture);
            };
            std::string const shaded = with(atRest, ' ', 'g');
            after(shaded, [&] { box->enter(); });
            after(shaded, [&] { box->refresh(); });
            after(atRest, [&] { box->leave(); });
            after(atRest, [&] {
                ::RedrawWindow(form.window(), nullptr, nullptr,
                               RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            });
            after(atRest, [&] {
                ::RedrawWindow(box->outer(), nullptr, nullptr,
                               RDW_INVALIDATE | RDW_NOCHILDREN | RDW_UPDATENOW);
            });
            after(atRest, [&] { box->put(L"HotForeColor", 0x80000012); });
        }
}

TEST_F(Glyph, ofADisabledBoxIsShadedAloneWhateverRanBetween)
{
    for (Kind const* kind : {&kOption, &kCheck}) {
        auto const box = shown(*kind, 1);
        std::string const shaded = with(glyphOf(*box, kTop), ' ', 'g');
        PostedCall const change([&] { changeBitsAboveTheColours(box->inner()); });
        change.post();
        box->disable();
        EXPECT_EQ(glyphOf(*box, kTop), shaded) << kind->name;
        EXPECT_EQ(box->pixel({60, 10}), kAround) << "the fill ran out: " << kind->name;
    }
}

/// A picture may reach the screen between any two calls, and does so where much is painted at once.
TEST_F(Glyph, isFilledAloneInEachOfManyPaints)
{
    auto const option = shown(kOption, 0);
    constexpr ULONGLONG kDuration = 500; // milliseconds
    for (ULONGLONG const end = ::GetTickCount64() + kDuration; ::GetTickCount64() < end;) {
        ::RedrawWindow(option->outer(), nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN | RDW_UPDATENOW);
        ASSERT_EQ(option->pixel({60, 10}), kAround) << "the fill ran out";
        ASSERT_EQ(option->pixel({0, 8}), kBlack) << "the outline is gone";
    }
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

// The fill's point is in row 6 of 17, and not in 7; the glyph begins 4 rows above it.
TEST_F(Glyph, standsRoundThePointOfItsFillAtOddHeights)
{
    for (auto const& [height, top] : {std::pair{15, 2}, {17, 2}, {19, 4}, {21, 4}, {23, 6}}) {
        auto const check = shown(kCheck, 1, Mode::Run, height);
        EXPECT_EQ(glyphOf(*check, top), kSetSquare) << height;
        check->enter();
        EXPECT_EQ(glyphOf(*check, top), with(kSetSquare, ' ', 'g')) << height;
        check->leave();
    }
}

TEST_F(Glyph, isShadedAtEveryHeight)
{
    for (Kind const* kind : {&kOption, &kCheck})
        for (int height = 4; height <= 48; ++height) {
            Box box(*kind, library(), form, {20, 30, 140, 30 + height});
            SCOPED_TRACE(std::string(kind->name) + ' ' + std::to_string(height));
            box.start(*newBag({{L"BackColor", Variant::ofLong(kAround)},
                               {L"Enabled", Variant::ofBool(false)},
                               {L"Value", Variant::ofLong(1)}})
                           .get());
            kit::Canvas const canvas(box.inner());
            EXPECT_EQ(canvas.at(4, fillRow(height)), kLightGrey);
            if (height >= 13) { // in a lower one the mark cuts off corners
                EXPECT_EQ(canvas.count(kWhite), 0);
            }
            EXPECT_EQ(canvas.at(14, height / 2), kAround) << "the fill ran out";
            changeBitsAboveTheColours(box.inner());
            box.put(L"HotForeColor", 0); // fills once more
            EXPECT_EQ(kit::differences(canvas, kit::Canvas(box.inner())), "");
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
    EXPECT_EQ(box->setFont(kit::newFont(L"Tahoma", 48).get()), S_OK);
    kit::pumpPending();
    EXPECT_EQ(glyphOf(*box, kTop), kSetSquare);
}

} // namespace
} // namespace quillet::box
