// Saved properties: names, types, defaults, order, three carriers.
#include "Box.h"
#include "drawing/SystemColours.h"
#include "kit/Fonts.h"
#include "kit/Memory.h"

namespace quillet::box {
namespace {

using Wide = std::vector<std::wstring>;

constexpr long kButtonShadow = static_cast<long>(colour::kButtonShadow);

ComPtr<kit::FakeBag> fullBag(long value)
{
    return newBag({{L"ForeColor", Variant::ofLong(0x010203)},
                   {L"Enabled", Variant::ofBool(false)},
                   {L"Font", Variant::ofUnknown(kit::newFont(L"Courier New", 12).get())},
                   {L"Caption", Variant::ofString(L"Saved")},
                   {L"Value", Variant::ofLong(value)},
                   {L"HotForeColor", Variant::ofLong(0x020304)},
                   {L"BackColor", Variant::ofLong(0x030405)}});
}

class Saving : public EachBoxTest {
protected:
    Box box{kind(), library(), form};
    Box other{kind(), library(), form, kPlace, L"Other"}; ///< for what the first one saved

    ComPtr<kit::FakeBag> saved()
    {
        auto bag = newBag();
        EXPECT_EQ(box.hosted().save(*bag.get()), S_OK);
        return bag;
    }
    void start(Saved const& values) { box.start(*newBag(values).get()); }
    /// By the stream form.
    void saveAndLoad()
    {
        other.hosted().setSite();
        ASSERT_EQ(other.hosted().load(box.hosted().saved(TRUE)), S_OK);
    }
};

TEST_P(Saving, readsInOrder)
{
    auto const bag = newBag();
    box.start(*bag.get());
    Wide expected = {L"ForeColor", L"Enabled", L"Font", L"Caption", L"Value", L"HotForeColor", L"BackColor"};
    if (isOption())
        expected.push_back(L"ForeColor"); // once for what is shown, once for what the user chose
    EXPECT_EQ(bag->namesRead(), expected);
}

/// An empty bag that looks at the control's picture at the first question.
class LookingBag final : public kit::Counterpart<IPropertyBag> {
public:
    explicit LookingBag(Box const& box) : m_box(box) {}
    COLORREF seen = CLR_INVALID;

    STDMETHODIMP Read(LPCOLESTR, VARIANT*, IErrorLog*) override
    {
        if (seen == CLR_INVALID)
            seen = m_box.pixel({110, 3});
        return E_INVALIDARG;
    }
    STDMETHODIMP Write(LPCOLESTR, VARIANT*) override { return E_NOTIMPL; }

private:
    Box const& m_box;
};

TEST_P(Saving, refreshesAnOptionBeforeItReadsAndNoCheckBox)
{
    box.start();
    ::SetPixelV(WindowDc(box.inner()).get(), 110, 3, RGB(255, 0, 255));
    auto const bag = kit::make<LookingBag>(box);
    EXPECT_EQ(box.hosted().load(*bag.get()), S_OK);
    EXPECT_EQ(bag->seen, isOption() ? ::GetSysColor(COLOR_BTNFACE) : RGB(255, 0, 255));
}

TEST_P(Saving, writesInOrderAndTheColourTwice)
{
    box.start(*fullBag(1).get());
    auto const bag = saved();
    EXPECT_THAT(bag->namesWritten(),
                ElementsAreArray({L"ForeColor", L"Enabled", L"Font", L"Caption", L"Value", L"HotForeColor",
                                  L"BackColor", L"ForeColor"}));
    EXPECT_EQ(bag->value(L"ForeColor").toLong(), 0x010203);
    ASSERT_EQ(bag->writes.size(), 8U);
    EXPECT_EQ(bag->writes[0].value.toLong(), kButtonShadow); // as the disabled caption shows
    EXPECT_EQ(bag->writes[7].value.toLong(), 0x010203);
}

TEST_P(Saving, writesNoDefaults)
{
    box.start();
    EXPECT_THAT(saved()->namesWritten(), IsEmpty());
}

TEST_P(Saving, writesItsTypes)
{
    box.start(*fullBag(1).get());
    auto const bag = saved();
    for (auto const& [name, type] : {std::pair{L"ForeColor", VT_I4},
                                     {L"Enabled", VT_BOOL},
                                     {L"Font", VT_UNKNOWN},
                                     {L"Caption", VT_BSTR},
                                     {L"Value", isOption() ? VT_I4 : VT_I2},
                                     {L"HotForeColor", VT_I4},
                                     {L"BackColor", VT_I4}})
        EXPECT_EQ(bag->value(name).type(), type) << kit::narrow(name);
}

TEST_P(Saving, restoresWhatItSaved)
{
    box.start(*fullBag(1).get());
    auto const bag = saved();
    other.start(*bag.get());
    EXPECT_EQ(other.number(L"ForeColor"), 0x010203);
    EXPECT_FALSE(other.get(L"Enabled").toBool());
    EXPECT_EQ(other.caption(), L"Saved");
    EXPECT_EQ(other.value(), 1);
    EXPECT_EQ(other.number(L"HotForeColor"), 0x020304);
    EXPECT_EQ(other.number(L"BackColor"), 0x030405);
    EXPECT_TRUE(kit::equalFonts(*other.font().get(), *kit::newFont(L"Courier New", 12).get()));
}

TEST_P(Saving, keepsAnEmptyCaption)
{
    start({{L"Caption", Variant::ofString(L"")}});
    EXPECT_EQ(box.caption(), L"");
    EXPECT_THAT(saved()->namesWritten(), ElementsAreArray({L"Caption"}));
}

TEST_P(Saving, hasTheLaidOutCaptionForDefault)
{
    box.start();
    EXPECT_EQ(box.caption(), kind().laidOutCaption);
}

TEST_P(Saving, keepsTheUsersColourOfADisabledOneThatIsTheDefault)
{
    start({{L"Enabled", Variant::ofBool(false)}});
    // What is shown is no default, so it is written; the user's colour has to take its place.
    auto const again = saved();
    EXPECT_THAT(again->namesWritten(), ElementsAreArray({L"ForeColor", L"Enabled", L"ForeColor"}));
    other.start(*again.get());
    EXPECT_EQ(other.number(L"ForeColor"), static_cast<long>(colour::kButtonText));
}

TEST_P(Saving, showsTheColourThatIsLoadedWhileItIsShown)
{
    box.start();
    box.setColours(RGB(200, 0, 0), RGB(200, 0, 0));
    EXPECT_EQ(box.hosted().load(*newBag({{L"ForeColor", Variant::ofLong(RGB(0, 0, 200))}}).get()), S_OK);
    EXPECT_EQ(box.number(L"ForeColor"), static_cast<long>(RGB(0, 0, 200)));
    box.expectCaption(RGB(0, 0, 200), RGB(200, 0, 0));
    EXPECT_THAT(saved()->namesWritten(), ElementsAreArray({L"ForeColor", L"ForeColor"}));
}

TEST_P(Saving, goesThroughAStream)
{
    box.start(*fullBag(1).get());
    saveAndLoad();
    EXPECT_EQ(other.number(L"ForeColor"), 0x010203);
    EXPECT_EQ(other.caption(), L"Saved");
    EXPECT_EQ(other.value(), 1);
}

TEST_P(Saving, aDisabledOneKeepsItsColourThroughAStream)
{
    start({{L"Enabled", Variant::ofBool(false)}});
    saveAndLoad();
    EXPECT_EQ(other.number(L"ForeColor"), static_cast<long>(colour::kButtonText));
}

TEST_P(Saving, goesThroughAStorage)
{
    box.start(*fullBag(1).get());
    auto const storage = kit::newStorage();
    ASSERT_EQ(box.as<IPersistStorage>()->Save(storage.get(), TRUE), S_OK);
    other.hosted().setSite();
    ASSERT_EQ(other.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(other.number(L"BackColor"), 0x030405);
    EXPECT_EQ(other.value(), 1);
}

TEST_P(Saving, takesNumbersAsText)
{
    start({{L"Value", Variant::ofString(L"1")}, {L"ForeColor", Variant::ofString(L"197121")}});
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(box.number(L"ForeColor"), 197121);
}

TEST_P(Saving, leavesTheControlAsItWasWhereAValueIsBroken)
{
    box.start();
    for (wchar_t const* name : {L"ForeColor", L"Enabled", L"Font", L"Value", L"HotForeColor", L"BackColor"}) {
        auto const bag = fullBag(1);
        bag->put(name, Variant::ofString(L"broken"));
        EXPECT_NE(box.hosted().load(*bag.get()), S_OK) << kit::narrow(name);
        EXPECT_EQ(box.caption(), kind().laidOutCaption) << kit::narrow(name);
        EXPECT_EQ(box.value(), 0);
        EXPECT_TRUE(box.get(L"Enabled").toBool());
    }
}

TEST_P(Saving, setsTheToolTipUpAfterResize)
{
    box.hosted().setSite();
    HWND const inner = box.hwnd();
    LONG_PTR subclassed = -1;
    kit::Inside const any(box, "", [&] { subclassed = ::GetWindowLongPtrA(inner, GWLP_USERDATA); });
    EXPECT_EQ(box.hosted().load(*newBag().get()), S_OK);
    EXPECT_EQ(subclassed, 0);
    EXPECT_NE(::GetWindowLongPtrA(inner, GWLP_USERDATA), 0);
}

QV_EACH_BOX(Saving);

using CheckSaving = BoxTest;

TEST_F(CheckSaving, keepsAllThreeStates)
{
    for (long const state : {0L, 1L, 2L}) {
        Box box(kCheck, library(), form);
        box.start();
        box.setValue(state);
        auto const bag = newBag();
        EXPECT_EQ(box.hosted().save(*bag.get()), S_OK);
        EXPECT_EQ(bag->has(L"Value"), state != 0);
        Box other(kCheck, library(), form, kPlace, L"Other");
        other.start(*bag.get());
        EXPECT_EQ(other.value(), state);
    }
}

TEST_F(CheckSaving, refusesAValueOutOfRange)
{
    Box box(kCheck, library(), form);
    box.start();
    for (long const value : {70000L, 3L, -1L}) {
        auto const bag = fullBag(value);
        EXPECT_NE(box.hosted().load(*bag.get()), S_OK) << value;
        EXPECT_EQ(box.value(), 0);
        EXPECT_EQ(box.caption(), L"Check1");
    }
}

using OptionSaving = BoxTest;

TEST_F(OptionSaving, takesAnyValueButOneForCleared)
{
    for (long const value : {0L, 2L, -1L, 70000L}) {
        Box box(kOption, library(), form);
        box.start(*newBag({{L"Value", Variant::ofLong(value)}}).get());
        EXPECT_EQ(box.value(), 0) << value;
    }
}

TEST_F(OptionSaving, raisesResizeAtLoadingAndClickWhereItIsChosen)
{
    Box box(kOption, library(), form);
    box.hosted().setSite();
    box.hosted().load(*newBag({{L"Value", Variant::ofLong(1)}}).get());
    EXPECT_THAT(box.happened(), ElementsAreArray({"Click", "Resize"}));
}

} // namespace
} // namespace quillet::box
