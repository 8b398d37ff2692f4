// The kit itself: a test that trusts its counterparts, pictures, input and counts must be able to.
#include "base/Module.h"
#include "kit/Canvas.h"
#include "kit/FakeBag.h"
#include "kit/FakeForm.h"
#include "kit/FakeSite.h"
#include "kit/Fonts.h"
#include "kit/HostWindow.h"
#include "kit/Input.h"
#include "kit/Memory.h"
#include "kit/Pump.h"
#include "kit/Sinks.h"
#include "kit/Usage.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace quillet::kit {
namespace {

using testing::ElementsAreArray;

class Counterparts : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(liveObjects(), 0); }
};

Variant propertyOf(IDispatch& object, wchar_t const* name, HRESULT& result)
{
    auto* text = const_cast<wchar_t*>(name);
    DISPID id = 0;
    Variant value;
    DISPPARAMS none{};
    result = object.GetIDsOfNames(IID_NULL, &text, 1, 0, &id);
    if (SUCCEEDED(result))
        result = object.Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, value.put(), nullptr, nullptr);
    return value;
}

TEST_F(Counterparts, anUnreleasedOneIsCountedAsAlive)
{
    auto bag = make<FakeBag>();
    EXPECT_EQ(liveObjects(), 1);
    EXPECT_EQ(bag->references(), 1U);
    bag.reset();
    EXPECT_EQ(liveObjects(), 0);
}

TEST_F(Counterparts, aHiddenInterfaceIsRefusedAndAShownOneGiven)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{0, 0, 10, 10}, L"A");
    EXPECT_FALSE(query<IOleInPlaceSiteEx>(site->unknown()));
    EXPECT_TRUE(query<IOleInPlaceSite>(site->unknown()));
    site->hide(__uuidof(IOleInPlaceSite));
    site->show(__uuidof(IOleInPlaceSiteEx));
    EXPECT_FALSE(query<IOleInPlaceSite>(site->unknown()));
    EXPECT_TRUE(query<IOleInPlaceSiteEx>(site->unknown()));
}

TEST_F(Counterparts, aSiteNotesItsCallsAndAnswersAsToldTo)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{1, 2, 11, 12}, L"A");
    form.record().answer("Site.OnInPlaceActivate", E_FAIL);
    form.record().answerNothing("Site.GetContainer");
    ComPtr<IOleContainer> container;
    EXPECT_EQ(site->GetContainer(container.put()), S_OK);
    EXPECT_FALSE(container);
    EXPECT_EQ(site->OnInPlaceActivate(), E_FAIL);
    EXPECT_EQ(site->OnFocus(TRUE), S_OK);
    EXPECT_THAT(form.record().take(),
                ElementsAreArray({"Site.GetContainer", "Site.OnInPlaceActivate", "Site.OnFocus(gained)"}));
    form.record().answerAsUsual("Site.GetContainer");
    EXPECT_EQ(site->GetContainer(container.put()), S_OK);
    EXPECT_TRUE(container);
}

TEST_F(Counterparts, ambientPropertiesAreFoundMissingOrFailing)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{}, L"A");
    auto const ambients = query<IDispatch>(site->unknown());
    auto const ask = [&](DISPID id, Variant& value) {
        DISPPARAMS none{};
        return ambients->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, value.put(), nullptr, nullptr);
    };
    Variant value;
    EXPECT_EQ(ask(DISPID_AMBIENT_USERMODE, value), S_OK);
    EXPECT_TRUE(value.toBool());
    EXPECT_EQ(ask(DISPID_AMBIENT_FONT, value), DISP_E_MEMBERNOTFOUND);
    form.record().answer("Ambient(-709)", E_UNEXPECTED);
    EXPECT_EQ(ask(DISPID_AMBIENT_USERMODE, value), E_UNEXPECTED);
    EXPECT_EQ(form.record().count("Ambient(-709)"), 2);
}

TEST_F(Counterparts, anExtenderIsReachedByNameWithoutRegardToCase)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{}, L"Command7");
    HRESULT result = S_OK;
    EXPECT_EQ(propertyOf(site->extender(), L"name", result).toString().view(), L"Command7");
    propertyOf(site->extender(), L"Colour", result);
    EXPECT_EQ(result, DISP_E_UNKNOWNNAME);
    site->extender().refuse(L"Default", E_ACCESSDENIED);
    propertyOf(site->extender(), L"Default", result);
    EXPECT_EQ(result, E_ACCESSDENIED);
    EXPECT_THAT(form.record().calls(),
                ElementsAreArray({"Extender.Name", "Extender.Colour (unknown)", "Extender.Default"}));
    site->dismantle();
}

TEST_F(Counterparts, aFormHandsOutTheExtendersOfItsControls)
{
    FakeForm form;
    auto const site = make<FakeSite>(form, RECT{}, L"A");
    HRESULT result = S_OK;
    EXPECT_EQ(propertyOf(form.controls(), L"Count", result).toLong(), 1);
    site->dismantle();
    EXPECT_EQ(propertyOf(form.controls(), L"Count", result).toLong(), 0);
}

TEST_F(Counterparts, aBagKeepsNamesTypesAndOrder)
{
    auto const bag = make<FakeBag>();
    bag->put(L"Width", Variant::ofString(L"12"));
    Variant value;
    EXPECT_EQ(bag->Read(L"Missing", value.address(), nullptr), E_INVALIDARG);
    EXPECT_EQ(bag->Read(L"width", value.address(), nullptr), S_OK);
    EXPECT_EQ(value.type(), VT_BSTR);
    bag->values = FakeBag::Values::Converted;
    value = Variant::ofShort(0);
    EXPECT_EQ(bag->Read(L"Width", value.address(), nullptr), S_OK);
    EXPECT_EQ(value.type(), VT_I2);
    EXPECT_THAT(bag->namesRead(), ElementsAreArray({L"Missing", L"width", L"Width"}));
    EXPECT_EQ(bag->reads[1].type, VT_EMPTY);
    EXPECT_EQ(bag->reads[2].type, VT_I2);
    bag->fail(L"Height", STG_E_ACCESSDENIED);
    EXPECT_EQ(bag->Write(L"Height", value.address()), STG_E_ACCESSDENIED);
    EXPECT_FALSE(bag->has(L"Height"));
}

TEST_F(Counterparts, anEventRecorderTurnsArgumentsIntoDeclaredOrder)
{
    auto const recorder = make<EventRecorder>(IID_IStream);
    VARIANT arguments[2] = {Variant::ofShort(2).get(), Variant::ofShort(1).get()};
    DISPPARAMS parameters{arguments, nullptr, 2, 0};
    recorder->Invoke(6, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    ASSERT_EQ(recorder->count(6), 1);
    EXPECT_EQ(recorder->events[0].values[0].toShort(), 1);
    EXPECT_EQ(recorder->events[0].values[1].toShort(), 2);
}

TEST_F(Counterparts, streamsAndStoragesInMemoryKeepTheirBytes)
{
    auto const stream = streamOf({1, 2, 3});
    BYTE first = 0;
    EXPECT_EQ(stream->Read(&first, 1, nullptr), S_OK);
    EXPECT_EQ(bytesOf(*stream.get()), (Bytes{1, 2, 3}));
    EXPECT_EQ(positionOf(*stream.get()), 1U);
    EXPECT_TRUE(bytesOf(*streamOf().get()).empty());
    auto const storage = newStorage();
    ComPtr<IStream> inside;
    EXPECT_EQ(storage->CreateStream(L"Contents", STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                    inside.put()),
              S_OK);
}

TEST_F(Counterparts, fontsOfTwoSizesDifferAndACopyMayBeUnderlined)
{
    auto const small = newFont(L"Tahoma", 8);
    auto const large = newFont(L"Tahoma", 16, true);
    EXPECT_EQ(pointsOf(*small.get()), 8);
    EXPECT_EQ(small->IsEqual(large.get()), S_FALSE);
    auto const line = copyOf(*small.get(), true);
    EXPECT_TRUE(isUnderlined(*line.get()));
    EXPECT_FALSE(isUnderlined(*small.get()));
}

constexpr COLORREF kRed = RGB(200, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 201);
Letters const kLetters{{'.', RGB(1, 2, 3)}, {'r', kRed}, {'b', kBlue}};

TEST(Canvas, showsWhatGdiDrewAndWhatNobodyNamed)
{
    Canvas canvas(5, 3, RGB(1, 2, 3));
    ::SetPixel(canvas.dc(), 0, 0, kRed);
    ::SetPixel(canvas.dc(), 4, 2, kBlue);
    ::SetPixel(canvas.dc(), 2, 1, RGB(9, 9, 9));
    EXPECT_EQ(canvas.picture(kLetters), "r....\n"
                                        "..?..\n"
                                        "....b\n");
    EXPECT_EQ(canvas.picture(kLetters, 3, 1, 5, 3), "..\n.b\n");
    EXPECT_EQ(canvas.at(0, 0), kRed);
    EXPECT_EQ(canvas.at(5, 0), CLR_INVALID);
    EXPECT_EQ(canvas.count(RGB(1, 2, 3)), 12);
}

TEST(Canvas, fillsARectangleAndCutsItAtTheEdges)
{
    Canvas canvas(4, 3, RGB(1, 2, 3));
    canvas.fill(1, 1, 3, 2, kRed);
    canvas.fill(3, -5, 99, 99, kBlue);
    canvas.fill(3, 0, 1, 3, kRed); // turned round: nothing
    EXPECT_EQ(canvas.picture(kLetters), "...b\n"
                                        ".rrb\n"
                                        "...b\n");
    EXPECT_EQ(::GetPixel(canvas.dc(), 1, 1), kRed);
}

TEST(Canvas, differencesNamePixelsAndAreEmptyForEqualPictures)
{
    Canvas expected(4, 3, kRed);
    Canvas actual(4, 3, kRed);
    EXPECT_EQ(differences(expected, actual), "");
    actual.fill(2, 1, 3, 2, kBlue);
    EXPECT_EQ(differences(expected, actual),
              "(2, 1): 0x0000C8 was expected, found 0xC90000\n1 pixels differ");
    EXPECT_EQ(differences(Canvas(4, 4), actual), "4 x 4 was expected, found 4 x 3");
}

TEST(Painter, writesTextInsideItsBoxOnly)
{
    Canvas canvas(60, 40, kBlue);
    auto const font = static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
    SIZE const size = textSize(font, L"Wide");
    paintText(canvas, {10, 5, 30, 35}, {12, 8}, L"Wide", font, kRed, RGB(255, 255, 255));
    EXPECT_GT(size.cx, 18) << "the text must be wider than its box";
    EXPECT_EQ(canvas.count(kBlue), 60 * 40 - 20 * 30);
    EXPECT_GT(canvas.count(kRed), 0);
}

std::wstring textOf(HWND window)
{
    wchar_t text[64];
    return std::wstring(text, static_cast<size_t>(::GetWindowTextW(window, text, 64)));
}

TEST(Input, theCursorReachesAForm)
{
    FakeForm const form;
    ASSERT_TRUE(moveCursorTo(form.window(), 20, 20));
    POINT cursor;
    ::GetCursorPos(&cursor);
    EXPECT_TRUE(pumpUntil([&] { return ::WindowFromPoint(cursor) == form.window(); }));
    ASSERT_TRUE(moveCursorAway());
}

TEST(Input, keysReachTheWindowThatHasTheFocus)
{
    FakeForm const form;
    auto const first = newEditBox(form.window(), {5, 5, 50, 25});
    auto const second = newEditBox(form.window(), {5, 35, 50, 55});
    ASSERT_TRUE(focus(first.get()));
    ASSERT_TRUE(focus(second.get()));
    typeKey('K');
    EXPECT_TRUE(pumpUntil([&] { return textOf(second.get()) == L"k"; }));
    EXPECT_EQ(textOf(first.get()), L"");
}

TEST(Input, aClickReachesTheWindowUnderTheCursor)
{
    FakeForm const form;
    auto const edit = newEditBox(form.window(), {5, 5, 50, 25});
    auto const other = newEditBox(form.window(), {5, 35, 50, 55});
    ASSERT_TRUE(focus(other.get()));
    ASSERT_TRUE(moveCursorTo(edit.get(), 4, 4));
    press(MouseButton::Left);
    EXPECT_TRUE(pumpUntil([&] { return ::GetFocus() == edit.get(); }));
    release(MouseButton::Left);
    EXPECT_TRUE(pumpUntil([] { return ::GetCapture() == nullptr; }));
    ASSERT_TRUE(moveCursorAway());
}

constexpr int kRounds = 300;

TEST(Usage, ofRoundsThatKeepNothingIsFlat)
{
    expectNothingIsLeft(kRounds, [](int round) { std::free(std::malloc(16 + round)); });
}

TEST(Usage, noticesTheSmallestBlockKeptInEachRound)
{
    EXPECT_NONFATAL_FAILURE(
        expectNothingIsLeft(kRounds, [](int) { EXPECT_NE(::HeapAlloc(::GetProcessHeap(), 0, 16), nullptr); }),
        "bytes in use before");
    EXPECT_NONFATAL_FAILURE(expectNothingIsLeft(kRounds, [](int) { EXPECT_NE(std::malloc(16), nullptr); }),
                            "bytes in use before");
}

TEST(Usage, noticesABrushKeptInEachRound)
{
    EXPECT_NONFATAL_FAILURE(
        expectNothingIsLeft(kRounds, [](int round) { EXPECT_NE(::CreateSolidBrush(round), nullptr); }),
        "gdi");
}

} // namespace
} // namespace quillet::kit
