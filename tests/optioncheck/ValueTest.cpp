// Value: what it takes, what it answers, what it raises, and the tab stop that goes with it.
#include "Box.h"
#include "kit/Errors.h"

namespace quillet::box {
namespace {

class OptionValue : public BoxTest {
protected:
    Box box{kOption, library(), form};

    /// Starts as a chosen one; nothing has happened since.
    void startChosen()
    {
        box.start();
        box.setValue(1);
        box.happened();
        box.changes().take();
    }
    void offerTabStop(Variant const& value) { box.extender().offer(L"TabStop", value); }
    bool tabStop() { return box.extender().value(L"TabStop").toBool(); }
    std::vector<std::string> tabStopWrites()
    {
        std::vector<std::string> writes = form.record().take();
        std::erase_if(writes, [](auto const& call) { return !call.starts_with("Extender.TabStop ="); });
        return writes;
    }
};

class CheckValue : public BoxTest {
protected:
    Box box{kCheck, library(), form};

    CheckValue() { box.start(); }
    /// Of a value that was set before.
    void expectRefused(long value, HRESULT error)
    {
        long const before = box.value();
        EXPECT_EQ(box.setValue(value), error) << value;
        EXPECT_EQ(box.value(), before);
    }
};

TEST_F(OptionValue, ofANewOneIsZero)
{
    box.startNew();
    EXPECT_EQ(box.value(), 0);
}

TEST_F(OptionValue, oneChoosesItAndRaisesClick)
{
    box.start();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::SendMessageW(box.inner(), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_THAT(box.happened(), ElementsAreArray({"Click"}));
    EXPECT_THAT(box.changes().take(), ElementsAreArray({DISPID_VALUE}));
}

TEST_F(OptionValue, otherThanOneClearsItWithoutAClick)
{
    box.start();
    for (long const other : {0L, 2L, -1L, 70000L}) {
        EXPECT_EQ(box.setValue(1), S_OK);
        box.happened();
        EXPECT_EQ(box.setValue(other), S_OK);
        EXPECT_EQ(box.value(), 0) << other;
        EXPECT_EQ(::SendMessageW(box.inner(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
        EXPECT_THAT(box.happened(), IsEmpty()) << other;
    }
}

TEST_F(OptionValue, oneOfTheChosenIsToldButNoClick)
{
    startChosen();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_THAT(box.happened(), IsEmpty());
    EXPECT_THAT(box.changes().take(), ElementsAreArray({DISPID_VALUE}));
}

TEST_F(OptionValue, isWhatTheAccessibleWindowSays)
{
    box.start();
    ::SendMessageW(box.inner(), BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_EQ(box.value(), 1);
    EXPECT_THAT(box.happened(), IsEmpty());
    ::SendMessageW(box.inner(), BM_CLICK, 0, 0);
    EXPECT_THAT(box.happened(), ElementsAreArray({"MouseDown", "MouseUp", "Click"}));
}

TEST_F(OptionValue, givesTheTabStopBackThatTheHostHadAtLoading)
{
    box.start();
    EXPECT_EQ(box.setValue(0), S_OK);
    EXPECT_THAT(tabStopWrites(), ElementsAreArray({"Extender.TabStop = 0"}));
    EXPECT_EQ(box.setValue(1), S_OK); // once by the click, once by the setter
    EXPECT_THAT(tabStopWrites(), ElementsAreArray({"Extender.TabStop = -1", "Extender.TabStop = -1"}));
}

TEST_F(OptionValue, givesAHostThatWantedNoTabStopNone)
{
    offerTabStop(Variant::ofBool(false));
    box.start();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_THAT(tabStopWrites(), ElementsAreArray({"Extender.TabStop = 0", "Extender.TabStop = 0"}));
}

TEST_F(OptionValue, readsTheHostsTabStopAtTheEndOfLoading)
{
    // The last step before it.
    kit::Inside const resize(box, "Resize", [&] { offerTabStop(Variant::ofBool(false)); });
    box.hosted().setSite();
    EXPECT_EQ(box.hosted().load(*newBag().get()), S_OK);
    offerTabStop(Variant::ofBool(true));
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_FALSE(tabStop());
}

TEST_F(OptionValue, isStoredThenToldAndThenTakesTheTabStopAlong)
{
    startChosen();
    long value = -1;
    bool told = false;
    box.changes().action = [&](DISPID) {
        value = box.value();
        told = tabStop();
    };
    EXPECT_EQ(box.setValue(0), S_OK);
    box.changes().action = nullptr;
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(told);
    EXPECT_FALSE(tabStop());
}

TEST_F(OptionValue, leavesTheTabStopOfAChosenOneThatIsBeingLoaded)
{
    box.start(*newBag({{L"Value", Variant::ofLong(1)}}).get());
    EXPECT_TRUE(tabStop());
    box.setValue(0);
    EXPECT_FALSE(tabStop());
    box.setValue(1);
    EXPECT_TRUE(tabStop());
}

TEST_F(OptionValue, needsNoHostWithTabStops)
{
    box.extender().remove(L"TabStop");
    box.start();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(box.setValue(0), S_OK);
    EXPECT_EQ(box.value(), 0);
}

TEST_F(OptionValue, survivesAHostWhoseTabStopIsNoFlag)
{
    offerTabStop(Variant::ofString(L"perhaps"));
    box.start();
    EXPECT_EQ(box.setValue(1), S_OK);
}

TEST_F(OptionValue, showsAtOnce)
{
    box.start();
    EXPECT_EQ(box.pixel({5, 10}), kWhite);
    box.setValue(1);
    EXPECT_EQ(box.pixel({5, 10}), kBlack);
    box.setValue(0);
    EXPECT_EQ(box.pixel({5, 10}), kWhite);
}

TEST_F(CheckValue, takesThreeStatesAndRaisesClickForEachChange)
{
    for (long const state : {1L, 2L, 0L, 2L, 1L, 0L}) {
        EXPECT_EQ(box.setValue(state), S_OK);
        EXPECT_EQ(box.value(), state);
        EXPECT_EQ(::SendMessageW(box.inner(), BM_GETCHECK, 0, 0), state);
        EXPECT_THAT(box.happened(), ElementsAreArray({"Click"})) << state;
        EXPECT_THAT(box.changes().take(), ElementsAreArray({DISPID_VALUE}));
    }
}

TEST_F(CheckValue, thatIsTheSameRaisesNoClick)
{
    for (long const state : {0L, 1L, 2L}) {
        box.setValue(state);
        box.happened();
        EXPECT_EQ(box.setValue(state), S_OK);
        EXPECT_THAT(box.happened(), IsEmpty()) << state;
    }
}

TEST_F(CheckValue, outside16BitsOverflowsBeforeAnythingChanges)
{
    box.setValue(2);
    box.happened();
    EXPECT_EQ(box.hosted().save(*newBag().get()), S_OK);
    box.changes().take();
    for (long const large : {70000L, 32768L, -32769L, 65537L})
        expectRefused(large, kOverflow);
    EXPECT_THAT(box.happened(), IsEmpty());
    EXPECT_THAT(box.changes().take(), IsEmpty());
    EXPECT_EQ(box.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST_F(CheckValue, thatTheBoxDoesNotAcceptIsRejected)
{
    box.setValue(1);
    box.happened();
    for (long const other : {3L, -1L, 32767L})
        expectRefused(other, kInvalidPropertyValue);
    EXPECT_THAT(box.happened(), IsEmpty());
}

TEST_F(CheckValue, touchesNoTabStop)
{
    box.setValue(1);
    box.setValue(0);
    box.click();
    EXPECT_EQ(form.record().countFrom("Extender.TabStop"), 0);
}

TEST_F(CheckValue, goesBetweenClearAndSetByClicks)
{
    std::vector<long> states;
    for (int i = 0; i < 3; ++i) {
        box.click();
        states.push_back(box.value());
        box.moveTo(kBeside);
    }
    EXPECT_THAT(states, ElementsAreArray({1, 0, 1}));
    box.setValue(2);
    box.click(); // the third state is reached by code alone
    EXPECT_EQ(box.value(), 0);
}

class Values : public StartedBoxTest {
protected:
    template <class Face> void expectTristate()
    {
        OLE_TRISTATE value = triGray;
        EXPECT_EQ(box.as<Face>()->put_Value(triChecked), S_OK);
        EXPECT_EQ(box.as<Face>()->get_Value(&value), S_OK);
        EXPECT_EQ(box.as<Face>()->get_Value(nullptr), E_POINTER);
        EXPECT_EQ(value, triChecked);
    }
};

TEST_P(Values, areOfThePublishedEnumeration)
{
    isOption() ? expectTristate<_qvFlatOption>() : expectTristate<_qvFlatCheck>();
}

TEST_P(Values, areTheDefaultMember)
{
    EXPECT_EQ(kit::invoke(box.dispatch(), DISPID_VALUE, DISPATCH_PROPERTYPUT, {Variant::ofLong(1)}).result,
              S_OK);
    EXPECT_EQ(kit::invoke(box.dispatch(), DISPID_VALUE, DISPATCH_PROPERTYGET).value.toLong(), 1);
}

QV_EACH_BOX(Values);

} // namespace
} // namespace quillet::box
