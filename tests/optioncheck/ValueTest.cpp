// Value: what it takes, what it answers, what it raises, and the tab stop that goes with it.
#include "Box.h"
#include "kit/Errors.h"
#include "kit/Fonts.h"

namespace quillet::box {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using OptionValue = BoxTest;
using CheckValue = BoxTest;

std::vector<std::string> tabStopWrites(kit::FakeForm& form)
{
    std::vector<std::string> writes;
    for (std::string const& call : form.record().take())
        if (call.starts_with("Extender.TabStop ="))
            writes.push_back(call);
    return writes;
}

TEST_F(OptionValue, ofANewOneIsZero)
{
    Box box(kOption, library(), form);
    box.startNew();
    EXPECT_EQ(box.value(), 0);
}

TEST_F(OptionValue, oneChoosesItAndRaisesClick)
{
    Box box(kOption, library(), form);
    box.start();
    box.changes().take();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::SendMessageW(box.inner(), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_THAT(box.happened(), ElementsAre("Click"));
    EXPECT_THAT(box.changes().take(), ElementsAre(DISPID_VALUE));
}

TEST_F(OptionValue, otherThanOneClearsItWithoutAClick)
{
    Box box(kOption, library(), form);
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
    Box box(kOption, library(), form);
    box.start();
    box.setValue(1);
    box.happened();
    box.changes().take();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_THAT(box.happened(), IsEmpty());
    EXPECT_THAT(box.changes().take(), ElementsAre(DISPID_VALUE));
}

TEST_F(OptionValue, isWhatTheAccessibleWindowSays)
{
    Box box(kOption, library(), form);
    box.start();
    ::SendMessageW(box.inner(), BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_EQ(box.value(), 1);
    EXPECT_THAT(box.happened(), IsEmpty());
    ::SendMessageW(box.inner(), BM_CLICK, 0, 0);
    EXPECT_THAT(box.happened(), ElementsAre("MouseDown", "MouseUp", "Click"));
}

TEST_F(OptionValue, givesTheTabStopBackThatTheHostHadAtLoading)
{
    Box box(kOption, library(), form);
    box.start();
    EXPECT_EQ(box.setValue(0), S_OK);
    EXPECT_THAT(tabStopWrites(form), ElementsAre("Extender.TabStop = 0"));
    EXPECT_EQ(box.setValue(1), S_OK); // once by the click, once by the setter
    EXPECT_THAT(tabStopWrites(form), ElementsAre("Extender.TabStop = -1", "Extender.TabStop = -1"));
}

TEST_F(OptionValue, givesAHostThatWantedNoTabStopNone)
{
    Box box(kOption, library(), form);
    box.extender().offer(L"TabStop", Variant::ofBool(false));
    box.start();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_THAT(tabStopWrites(form), ElementsAre("Extender.TabStop = 0", "Extender.TabStop = 0"));
}

TEST_F(OptionValue, readsTheHostsTabStopAtTheEndOfLoading)
{
    Box box(kOption, library(), form);
    box.events().action = [&](auto const& event) { // the last step before
        if (nameOfEvent(event.id) == "Resize")
            box.extender().offer(L"TabStop", Variant::ofBool(false));
    };
    box.hosted().setSite();
    EXPECT_EQ(box.hosted().load(*newBag().get()), S_OK);
    box.events().action = nullptr;
    box.extender().offer(L"TabStop", Variant::ofBool(true));
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_FALSE(box.extender().value(L"TabStop").toBool());
}

TEST_F(OptionValue, isStoredThenToldAndThenTakesTheTabStopAlong)
{
    Box box(kOption, library(), form);
    box.start();
    box.setValue(1);
    box.changes().take();
    long value = -1;
    bool tabStop = false;
    box.changes().action = [&](DISPID) {
        value = box.value();
        tabStop = box.extender().value(L"TabStop").toBool();
    };
    EXPECT_EQ(box.setValue(0), S_OK);
    box.changes().action = nullptr;
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(tabStop);
    EXPECT_FALSE(box.extender().value(L"TabStop").toBool());
}

TEST_F(OptionValue, leavesTheTabStopOfAChosenOneThatIsBeingLoaded)
{
    auto const bag = newBag();
    bag->put(L"Value", Variant::ofLong(1));
    Box box(kOption, library(), form);
    box.start(*bag.get());
    EXPECT_TRUE(box.extender().value(L"TabStop").toBool());
    box.setValue(0);
    EXPECT_FALSE(box.extender().value(L"TabStop").toBool());
    box.setValue(1);
    EXPECT_TRUE(box.extender().value(L"TabStop").toBool());
}

TEST_F(OptionValue, needsNoHostWithTabStops)
{
    Box box(kOption, library(), form);
    box.extender().remove(L"TabStop");
    box.start();
    EXPECT_EQ(box.setValue(1), S_OK);
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(box.setValue(0), S_OK);
    EXPECT_EQ(box.value(), 0);
}

TEST_F(OptionValue, survivesAHostWhoseTabStopIsNoFlag)
{
    Box box(kOption, library(), form);
    box.extender().offer(L"TabStop", Variant::ofString(L"perhaps"));
    box.start();
    EXPECT_EQ(box.setValue(1), S_OK);
}

TEST_F(OptionValue, showsAtOnce)
{
    Box box(kOption, library(), form);
    box.start();
    EXPECT_EQ(box.pixel({5, 10}), kWhite);
    box.setValue(1);
    EXPECT_EQ(box.pixel({5, 10}), kBlack);
    box.setValue(0);
    EXPECT_EQ(box.pixel({5, 10}), kWhite);
}

TEST_F(CheckValue, takesThreeStatesAndRaisesClickForEachChange)
{
    Box box(kCheck, library(), form);
    box.start();
    box.changes().take();
    for (long const state : {1L, 2L, 0L, 2L, 1L, 0L}) {
        EXPECT_EQ(box.setValue(state), S_OK);
        EXPECT_EQ(box.value(), state);
        EXPECT_EQ(::SendMessageW(box.inner(), BM_GETCHECK, 0, 0), state);
        EXPECT_THAT(box.happened(), ElementsAre("Click")) << state;
        EXPECT_THAT(box.changes().take(), ElementsAre(DISPID_VALUE));
    }
}

TEST_F(CheckValue, thatIsTheSameRaisesNoClick)
{
    Box box(kCheck, library(), form);
    box.start();
    for (long const state : {0L, 1L, 2L}) {
        box.setValue(state);
        box.happened();
        EXPECT_EQ(box.setValue(state), S_OK);
        EXPECT_THAT(box.happened(), IsEmpty()) << state;
    }
}

TEST_F(CheckValue, outside16BitsOverflowsBeforeAnythingChanges)
{
    Box box(kCheck, library(), form);
    box.start();
    box.setValue(2);
    box.happened();
    EXPECT_EQ(box.hosted().save(*newBag().get()), S_OK);
    box.changes().take();
    for (long const large : {70000L, 32768L, -32769L, 65537L}) {
        EXPECT_EQ(box.setValue(large), kOverflow) << large;
        EXPECT_EQ(box.value(), 2);
    }
    EXPECT_THAT(box.happened(), IsEmpty());
    EXPECT_THAT(box.changes().take(), IsEmpty());
    EXPECT_EQ(box.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST_F(CheckValue, thatTheBoxDoesNotAcceptIsRejected)
{
    Box box(kCheck, library(), form);
    box.start();
    box.setValue(1);
    box.happened();
    for (long const other : {3L, -1L, 32767L}) {
        EXPECT_EQ(box.setValue(other), kInvalidPropertyValue) << other;
        EXPECT_EQ(box.value(), 1);
    }
    EXPECT_THAT(box.happened(), IsEmpty());
}

TEST_F(CheckValue, touchesNoTabStop)
{
    Box box(kCheck, library(), form);
    box.start();
    box.setValue(1);
    box.setValue(0);
    box.click();
    EXPECT_EQ(form.record().countFrom("Extender.TabStop"), 0);
}

TEST_F(CheckValue, goesBetweenClearAndSetByClicks)
{
    Box box(kCheck, library(), form);
    box.start();
    std::vector<long> states;
    for (int i = 0; i < 3; ++i) {
        box.click();
        states.push_back(box.value());
        box.moveTo(kBeside);
    }
    EXPECT_THAT(states, ElementsAre(1, 0, 1));
    box.setValue(2);
    box.click(); // the third state is reached by code alone
    EXPECT_EQ(box.value(), 0);
}

using Values = EachBoxTest;

TEST_P(Values, areOfThePublishedEnumeration)
{
    Box box(kind(), library(), form);
    box.start();
    OLE_TRISTATE value = triGray;
    if (isOption()) {
        EXPECT_EQ(box.as<_qvFlatOption>()->put_Value(triChecked), S_OK);
        EXPECT_EQ(box.as<_qvFlatOption>()->get_Value(&value), S_OK);
        EXPECT_EQ(box.as<_qvFlatOption>()->get_Value(nullptr), E_POINTER);
    } else {
        EXPECT_EQ(box.as<_qvFlatCheck>()->put_Value(triChecked), S_OK);
        EXPECT_EQ(box.as<_qvFlatCheck>()->get_Value(&value), S_OK);
        EXPECT_EQ(box.as<_qvFlatCheck>()->get_Value(nullptr), E_POINTER);
    }
    EXPECT_EQ(value, triChecked);
}

TEST_P(Values, areTheDefaultMember)
{
    Box box(kind(), library(), form);
    box.start();
    kit::Called const put =
        kit::invoke(box.dispatch(), DISPID_VALUE, DISPATCH_PROPERTYPUT, {Variant::ofLong(1)});
    EXPECT_EQ(put.result, S_OK);
    EXPECT_EQ(kit::invoke(box.dispatch(), DISPID_VALUE, DISPATCH_PROPERTYGET).value.toLong(), 1);
}

QV_EACH_BOX(Values);

} // namespace
} // namespace quillet::box
