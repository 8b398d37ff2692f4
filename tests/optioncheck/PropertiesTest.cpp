// The properties: what a new control has, what setters store, tell and paint.
#include "Box.h"
#include "kit/Errors.h"
#include "kit/Fonts.h"
#include "kit/ModalDialog.h"

#include <ole2.h>

namespace quillet::box {
namespace {

namespace id = dispid::qvFlatOption; // and of the other

constexpr long kButtonText = static_cast<long>(0x80000012);
constexpr long kButtonFace = static_cast<long>(0x8000000F);

class Properties : public StartedBoxTest {
protected:
    HFONT innerFont() const { return reinterpret_cast<HFONT>(::SendMessageW(box.inner(), WM_GETFONT, 0, 0)); }
};

class NewBox : public EachBoxTest {
protected:
    Box box{kind(), library(), form, kPlace, L"optOne"};
};

TEST_P(NewBox, hasTheNameOfItsExtenderAndTheAmbientFont)
{
    auto const font = kit::newFont(L"Courier New", 14, true);
    box.hosted().offerFont(font.get());
    box.startNew();
    EXPECT_EQ(box.caption(), L"optOne");
    auto const own = box.font();
    ASSERT_TRUE(own);
    EXPECT_TRUE(kit::equalFonts(*own.get(), *font.get()));
    EXPECT_EQ(box.number(L"HotForeColor"), kButtonText);
    EXPECT_EQ(box.number(L"ForeColor"), kButtonText);
    EXPECT_EQ(box.number(L"BackColor"), kButtonFace);
    EXPECT_TRUE(box.get(L"Enabled").toBool());
    EXPECT_EQ(box.value(), 0);
}

TEST_P(NewBox, keepsItsLaidOutCaptionWhereThereIsNoName)
{
    box.extender().remove(L"Name");
    box.startNew();
    EXPECT_EQ(box.caption(), kind().laidOutCaption);
}

TEST_P(NewBox, initialisedAgainHasWhatANewOneHasButForWhatTheUserChose)
{
    box.startNew();
    box.put(L"Caption", L"Other");
    box.put(L"HotForeColor", 0x010203);
    box.put(L"ForeColor", 0x040506);
    box.put(L"BackColor", 0x070809);
    EXPECT_EQ(box.hosted().initNew(), S_OK);
    EXPECT_EQ(box.caption(), L"optOne");
    EXPECT_EQ(box.number(L"HotForeColor"), kButtonText);
    EXPECT_EQ(box.number(L"ForeColor"), isOption() ? 0x040506 : kButtonText);
    EXPECT_EQ(box.number(L"BackColor"), 0x070809);
}

TEST_P(NewBox, tellsOfTheFontThatItIsGiven)
{
    box.hosted().setSite();
    EXPECT_EQ(box.hosted().initNew(), S_OK);
    EXPECT_THAT(box.changes().take(), ElementsAreArray({DISPID_FONT}));
    EXPECT_EQ(box.hosted().load(*newBag().get()), S_OK);
    EXPECT_THAT(box.changes().take(), ElementsAreArray({DISPID_FONT}));
    EXPECT_EQ(box.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST_P(NewBox, worksWithoutLoadingOrInitialising)
{
    box.hosted().setSite();
    box.hosted().activate();
    EXPECT_EQ(box.caption(), kind().laidOutCaption);
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Properties, storeWhatTheyAreGivenAndTellOfIt)
{
    for (auto const& [name, told, value] : {std::tuple{L"Caption", id::Caption, Variant::ofString(L"&Yes")},
                                            {L"BackColor", id::BackColor, Variant::ofLong(0x123456)},
                                            {L"ForeColor", id::ForeColor, Variant::ofLong(0x654321)},
                                            {L"HotForeColor", id::HotForeColor, Variant::ofLong(0x010203)},
                                            {L"Enabled", id::Enabled, Variant::ofBool(false)}}) {
        EXPECT_EQ(box.put(name, value), S_OK);
        EXPECT_THAT(box.changes().take(), ElementsAreArray({told}));
        EXPECT_EQ(kit::textOf(box.get(name)), kit::textOf(value)) << kit::narrow(name);
    }
    EXPECT_EQ(box.setFont(kit::newFont(L"Arial", 10).get()), S_OK);
    EXPECT_THAT(box.changes().take(), ElementsAreArray({DISPID_FONT}));
}

TEST_P(Properties, makeTheControlDirtyAndItsViewChange)
{
    auto const view = kit::make<kit::ViewRecorder>();
    EXPECT_EQ(box.as<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, view.get()), S_OK);
    for (wchar_t const* name : {L"ForeColor", L"BackColor", L"HotForeColor"}) {
        box.hosted().save(*newBag().get());
        view->calls.clear();
        EXPECT_EQ(box.put(name, 0x334455), S_OK);
        EXPECT_EQ(box.as<IPersistStreamInit>()->IsDirty(), S_OK) << kit::narrow(name);
        EXPECT_EQ(view->count("OnViewChange(1,-1)"), 1) << kit::narrow(name);
    }
    box.as<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
}

TEST_P(Properties, thatDoNotConvertChangeNothing)
{
    EXPECT_NE(box.put(L"ForeColor", L"green"), S_OK);
    EXPECT_NE(box.put(L"Enabled", L"maybe"), S_OK);
    EXPECT_NE(box.put(L"Value", L"x"), S_OK);
    EXPECT_EQ(box.number(L"ForeColor"), kButtonText);
    EXPECT_TRUE(box.get(L"Enabled").toBool());
    EXPECT_EQ(box.setFont(nullptr), kObjectNotSet);
}

TEST_P(Properties, giveTheWindowOfTheInnerButton)
{
    EXPECT_EQ(::GetParent(box.hwnd()), box.outer());
    EXPECT_EQ(box.hwnd(), ::GetWindow(box.outer(), GW_CHILD));
    EXPECT_NE(kit::putByName(box.dispatch(), L"hwnd", Variant::ofLong(1)).result, S_OK);
}

TEST_P(Properties, showTheirColoursAtOnce)
{
    box.put(L"BackColor", RGB(1, 200, 100));
    EXPECT_EQ(box.pixel({118, 1}), RGB(1, 200, 100));
    box.put(L"ForeColor", RGB(200, 0, 0));
    EXPECT_TRUE(box.captionHas(RGB(200, 0, 0)));
}

TEST_P(Properties, ofTheFontAreTheControlsOwn)
{
    auto const font = kit::newFont(L"Arial", 10);
    box.setFont(font.get());
    font->put_Bold(TRUE);
    BOOL bold = TRUE;
    box.font()->get_Bold(&bold);
    EXPECT_FALSE(bold);
}

TEST_P(Properties, followAChangeInsideTheFont)
{
    auto const own = box.font();
    HFONT const before = innerFont();
    own->put_Bold(TRUE);
    EXPECT_EQ(innerFont(), kit::handleOf(*own.get()));
    EXPECT_NE(innerFont(), before);
}

TEST_P(Properties, takeAnyUnicodeCaption)
{
    std::wstring const caption = L"\x043F\x0440\x0438\x0432\x0435\x0442 \x4F60\x597D";
    EXPECT_EQ(box.put(L"Caption", caption.c_str()), S_OK);
    EXPECT_EQ(box.caption(), caption);
    wchar_t seen[40] = {};
    ::InternalGetWindowText(box.inner(), seen, 40); // what another program is told
    EXPECT_EQ(std::wstring(seen), caption);
}

TEST_P(Properties, refreshPaintsTheInnerButton)
{
    ::SetPixelV(WindowDc(box.inner()).get(), 110, 3, RGB(255, 0, 255));
    EXPECT_EQ(box.pixel({110, 3}), RGB(255, 0, 255));
    box.refresh();
    EXPECT_NE(box.pixel({110, 3}), RGB(255, 0, 255));
}

TEST_P(Properties, showAboutWaitsForItsBox)
{
    int seen = 0;
    kit::DialogWatch const watch([&](HWND dialog) {
        ++seen;
        ::PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(kit::callByName(box.dispatch(), L"ShowAbout").result, S_OK);
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(::IsWindowEnabled(form.window()));
}

TEST_P(Properties, resizeCoversTheControlAndRaisesResize)
{
    RECT inner = {};
    kit::Inside const any(box, "", [&] { ::GetClientRect(box.inner(), &inner); });
    box.hosted().place({20, 30, 200, 70});
    EXPECT_THAT(box.happened(), ElementsAreArray({"Resize"}));
    EXPECT_EQ(inner.right, 180) << "when Resize is raised";
    ::GetClientRect(box.inner(), &inner);
    EXPECT_EQ(inner.right, 180);
    EXPECT_EQ(inner.bottom, 40);
}

TEST_P(Properties, ambientChangeOfAnyKindRaisesResize)
{
    for (DISPID const ambient : {DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FONT, DISPID_UNKNOWN}) {
        EXPECT_EQ(box.as<IOleControl>()->OnAmbientPropertyChange(ambient), S_OK);
        EXPECT_THAT(box.happened(), ElementsAreArray({"Resize"}));
    }
}

TEST_P(Properties, ambientChangeMovesAStrayInnerButtonBack)
{
    ::MoveWindow(box.inner(), 5, 5, 10, 10, FALSE);
    box.as<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN);
    RECT inner;
    ::GetWindowRect(box.inner(), &inner);
    RECT outer;
    ::GetWindowRect(box.outer(), &outer);
    EXPECT_TRUE(::EqualRect(&inner, &outer));
}

TEST_P(Properties, saysNotToBeAPushButton)
{
    DWORD status = 0;
    EXPECT_EQ(box.as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, static_cast<DWORD>(OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                                         OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_RECOMPOSEONRESIZE |
                                         OLEMISC_CANTLINKINSIDE));
}

TEST_P(Properties, windowProcAnswersWhatTheButtonAnswers)
{
    std::vector<Variant> const question = {Variant::ofLong(HandleToLong(box.inner())),
                                           Variant::ofLong(BM_GETCHECK), Variant::ofLong(0),
                                           Variant::ofLong(0)};
    box.setValue(1);
    EXPECT_EQ(kit::callByName(box.dispatch(), L"WindowProc", question).value.toLong(), 1);
}

QV_EACH_BOX(NewBox);
QV_EACH_BOX(Properties);

} // namespace
} // namespace quillet::box
