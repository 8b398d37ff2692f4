// Automation strings and variants: what is copied, taken over, handed out and converted.
#include "base/Variant.h"

#include "base/Bstr.h"
#include "kit/Counterpart.h"
#include "kit/Errors.h"

#include <gtest/gtest.h>

#include <array>

namespace quillet {
namespace {

TEST(Bstr, isNullWhenEmptyAndReadsAsEmptyText)
{
    EXPECT_EQ(Bstr().get(), nullptr);
    EXPECT_EQ(Bstr(L"").get(), nullptr);
    EXPECT_TRUE(Bstr().view().empty());
    EXPECT_TRUE(Bstr::viewOf(nullptr).empty());
}

TEST(Bstr, copiesItsTextWithACharacterZeroInTheMiddle)
{
    std::wstring_view const text(L"a\0b", 3);
    Bstr const string(text);
    EXPECT_EQ(::SysStringLen(string.get()), 3U);
    EXPECT_EQ(string.view(), text);
}

TEST(Bstr, aCopyHasATextOfItsOwn)
{
    Bstr const first(L"text");
    Bstr const second(first);
    EXPECT_NE(first.get(), second.get());
    EXPECT_EQ(second.view(), L"text");
}

TEST(Bstr, movingLeavesTheSourceEmpty)
{
    Bstr first(L"text");
    BSTR const held = first.get();
    Bstr const second(std::move(first));
    EXPECT_EQ(second.get(), held);
    EXPECT_EQ(first.get(), nullptr); // NOLINT(bugprone-use-after-move): that is the question
}

TEST(Bstr, assignmentReplacesAndMayBeToItself)
{
    Bstr string(L"first");
    string = Bstr(L"second");
    EXPECT_EQ(string.view(), L"second");
    Bstr const& same = string;
    string = same;
    EXPECT_EQ(string.view(), L"second");
}

TEST(Bstr, adoptTakesTheStringOverAndDetachHandsItOut)
{
    BSTR const raw = ::SysAllocString(L"text");
    Bstr owner = Bstr::adopt(raw);
    EXPECT_EQ(owner.get(), raw);
    Bstr const second = Bstr::adopt(owner.detach());
    EXPECT_EQ(second.get(), raw);
    EXPECT_EQ(owner.get(), nullptr);
}

TEST(Bstr, putForgetsWhatWasHeldAndReceivesAnother)
{
    Bstr string(L"first");
    BSTR* const place = string.put();
    EXPECT_EQ(string.get(), nullptr);
    *place = ::SysAllocString(L"second");
    EXPECT_EQ(string.view(), L"second");
}

TEST(Bstr, aCopyForAnOutParameterIsNeverNull)
{
    Bstr const empty = Bstr::adopt(Bstr().copy());
    ASSERT_NE(empty.get(), nullptr);
    EXPECT_EQ(::SysStringLen(empty.get()), 0U);
    EXPECT_EQ(Bstr::adopt(Bstr(L"text").copy()).view(), L"text");
}

using AnyObject = kit::Counterpart<IUnknown>;
using Dispatch = kit::DispatchCounterpart<IDispatch>;

TEST(Variant, isEmptyAtFirst) { EXPECT_EQ(Variant().type(), VT_EMPTY); }

TEST(Variant, isMadeWithTheTypeItsNameSays)
{
    EXPECT_EQ(Variant::ofShort(-7).type(), VT_I2);
    EXPECT_EQ(Variant::ofShort(-7).get().iVal, -7);
    EXPECT_EQ(Variant::ofLong(70000).type(), VT_I4);
    EXPECT_EQ(Variant::ofLong(70000).get().lVal, 70000);
    EXPECT_EQ(Variant::ofFloat(1.5F).type(), VT_R4);
    EXPECT_EQ(Variant::ofFloat(1.5F).get().fltVal, 1.5F);
    EXPECT_EQ(Variant::ofBool(true).type(), VT_BOOL);
    EXPECT_EQ(Variant::ofBool(true).get().boolVal, VARIANT_TRUE);
    EXPECT_EQ(Variant::ofBool(false).get().boolVal, VARIANT_FALSE);
    EXPECT_EQ(Variant::ofString(L"text").type(), VT_BSTR);
    EXPECT_EQ(Bstr::viewOf(Variant::ofString(L"text").get().bstrVal), L"text");
}

TEST(Variant, ofAnEmptyStringHoldsAStringThatIsNotNull)
{
    EXPECT_NE(Variant::ofString(L"").get().bstrVal, nullptr);
}

TEST(Variant, convertsBetweenNumbersStringsAndBooleans)
{
    EXPECT_EQ(Variant::ofString(L"42").toLong(), 42);
    EXPECT_EQ(Variant::ofString(L"-3").toShort(), -3);
    EXPECT_EQ(Variant::ofLong(5).toShort(), 5);
    EXPECT_TRUE(Variant::ofShort(-1).toBool());
    EXPECT_TRUE(Variant::ofShort(2).toBool());
    EXPECT_FALSE(Variant::ofLong(0).toBool());
    EXPECT_TRUE(Variant::ofString(L"True").toBool());
    EXPECT_EQ(Variant::ofBool(true).toShort(), -1);
    EXPECT_EQ(Variant::ofLong(42).toString().view(), L"42");
    EXPECT_EQ(Variant().toLong(), 0);
    EXPECT_EQ(Variant().toString().view(), L"");
}

TEST(Variant, roundsAFractionToTheEvenNeighbour)
{
    EXPECT_EQ(Variant::ofFloat(2.5F).toShort(), 2);
    EXPECT_EQ(Variant::ofFloat(3.5F).toLong(), 4);
}

TEST(Variant, aValueThatDoesNotFitRaisesOverflow)
{
    EXPECT_EQ(thrownBy([] { Variant::ofLong(32768).toShort(); }), kOverflow);
    EXPECT_EQ(thrownBy([] { Variant::ofLong(-32769).toShort(); }), kOverflow);
    EXPECT_EQ(thrownBy([] { Variant::ofString(L"99999999999").toLong(); }), kOverflow);
    EXPECT_EQ(thrownBy([] { Variant::ofFloat(3e9F).toLong(); }), kOverflow);
}

TEST(Variant, aValueThatDoesNotConvertRaisesTypeMismatch)
{
    EXPECT_EQ(thrownBy([] { Variant::ofString(L"many").toLong(); }), kTypeMismatch);
    EXPECT_EQ(thrownBy([] { Variant::ofString(L"").toShort(); }), kTypeMismatch);
    auto const object = kit::make<AnyObject>();
    EXPECT_EQ(thrownBy([&] { Variant::ofUnknown(object.get()).toLong(); }), kTypeMismatch);
}

TEST(Variant, ofAnUnknownTypeRaisesTypeMismatch)
{
    VARIANT broken{};
    broken.vt = 0x0FFF;
    EXPECT_EQ(thrownBy([&] { Variant::copyOf(broken); }), kTypeMismatch);
    EXPECT_EQ(thrownBy([] { Variant::ofLong(1).convertedTo(0x0FFF); }), kTypeMismatch);
}

TEST(Variant, aFailedConversionLeavesTheValueAsItWas)
{
    Variant const text = Variant::ofString(L"many");
    EXPECT_EQ(thrownBy([&] { text.toLong(); }), kTypeMismatch);
    EXPECT_EQ(text.toString().view(), L"many");
}

TEST(Variant, aCopyOfAReferenceIsTheValueAtThatMoment)
{
    short value = 3;
    Variant const reference = Variant::ofShortRef(&value);
    EXPECT_EQ(reference.type(), VT_I2 | VT_BYREF);
    Variant const copy = Variant::copyOf(reference.get());
    value = 4;
    EXPECT_EQ(copy.type(), VT_I2);
    EXPECT_EQ(copy.toShort(), 3);
    EXPECT_EQ(reference.toShort(), 4);
}

TEST(Variant, aReferenceToAVariantIsFollowed)
{
    Variant inner = Variant::ofString(L"12");
    VARIANT outer{};
    outer.vt = VT_VARIANT | VT_BYREF;
    outer.pvarVal = inner.address();
    EXPECT_EQ(shortOf(outer), 12);
}

TEST(Variant, aReferenceLetsTheReceiverChangeItsTarget)
{
    float x = 1.0F;
    Variant const reference = Variant::ofFloatRef(&x);
    EXPECT_EQ(reference.type(), VT_R4 | VT_BYREF);
    *reference.get().pfltVal = 2.0F;
    EXPECT_EQ(x, 2.0F);
}

TEST(Variant, copiesAreDeepAndMovingLeavesTheSourceEmpty)
{
    Variant first = Variant::ofString(L"text");
    Variant const second = first;
    EXPECT_NE(first.get().bstrVal, second.get().bstrVal);
    BSTR const held = first.get().bstrVal;
    Variant const third = std::move(first);
    EXPECT_EQ(third.get().bstrVal, held);
    EXPECT_EQ(first.type(), VT_EMPTY); // NOLINT(bugprone-use-after-move): that is the question
}

TEST(Variant, assignmentReplacesAndMayBeToItself)
{
    Variant value = Variant::ofString(L"first");
    value = Variant::ofLong(2);
    EXPECT_EQ(value.toLong(), 2);
    value = Variant::ofString(L"third");
    Variant const& same = value;
    value = same;
    EXPECT_EQ(value.toString().view(), L"third");
}

TEST(Variant, adoptEmptiesTheSourceAndDetachEmptiesTheOwner)
{
    VARIANT raw{};
    raw.vt = VT_BSTR;
    raw.bstrVal = ::SysAllocString(L"text");
    Variant owner = Variant::adopt(raw);
    EXPECT_EQ(raw.vt, VT_EMPTY);
    VARIANT given = owner.detach();
    EXPECT_EQ(owner.type(), VT_EMPTY);
    EXPECT_EQ(Variant::adopt(given).toString().view(), L"text");
}

TEST(Variant, putForgetsWhatWasHeld)
{
    auto const object = kit::make<AnyObject>();
    Variant value = Variant::ofUnknown(object.get());
    value.put();
    EXPECT_EQ(value.type(), VT_EMPTY);
    EXPECT_EQ(object->references(), 1U);
}

TEST(Variant, countsAnObjectOnceAndGivesItUpAtTheEnd)
{
    auto const object = kit::make<AnyObject>();
    auto const dispatch = kit::make<Dispatch>();
    {
        Variant const first = Variant::ofUnknown(object.get());
        Variant const second = first;
        Variant const third = Variant::ofDispatch(dispatch.get());
        EXPECT_EQ(object->references(), 3U);
        EXPECT_EQ(dispatch->references(), 2U);
    }
    EXPECT_EQ(object->references(), 1U);
    EXPECT_EQ(dispatch->references(), 1U);
}

TEST(Variant, givesItsObjectByAnyOfTheObjectTypes)
{
    auto const object = kit::make<Dispatch>();
    EXPECT_EQ(Variant::ofUnknown(object->unknown()).toObject().get(), object->unknown());
    EXPECT_EQ(Variant::ofDispatch(object.get()).toObject().get(), object->unknown());

    IUnknown* unknown = object->unknown();
    IDispatch* dispatch = object.get();
    VARIANT byReference{};
    byReference.vt = VT_UNKNOWN | VT_BYREF;
    byReference.ppunkVal = &unknown;
    EXPECT_EQ(Variant::adopt(byReference).toObject().get(), unknown);
    byReference = {};
    byReference.vt = VT_DISPATCH | VT_BYREF;
    byReference.ppdispVal = &dispatch;
    EXPECT_EQ(Variant::adopt(byReference).toObject().get(), unknown);
    EXPECT_EQ(object->references(), 1U);
}

TEST(Variant, thatIsNullIsAnInvalidUseOfNullForEveryValue)
{
    VARIANT raw{};
    raw.vt = VT_NULL;
    Variant const null = Variant::adopt(raw);
    for (VARTYPE const type : {VT_I2, VT_I4, VT_UI4, VT_BOOL, VT_BSTR})
        EXPECT_EQ(thrownBy([&] { null.convertedTo(type); }), runTimeError(94)) << type;
    EXPECT_EQ(null.convertedTo(VT_NULL).type(), VT_NULL);
}

TEST(Variant, aDecimalNumberOfMoreDigitsThanThereAreRaisesTypeMismatch)
{
    VARIANT number{};
    number.decVal.Lo64 = 12345;
    number.decVal.scale = 28;
    number.vt = VT_DECIMAL;
    EXPECT_EQ(Variant::copyOf(number).toLong(), 0);
    for (BYTE const scale : {BYTE{29}, BYTE{40}, BYTE{0xFF}}) {
        number.decVal.scale = scale;
        VARIANT copy = number;
        Variant const value = Variant::adopt(copy);
        EXPECT_EQ(thrownBy([&] { value.toLong(); }), kTypeMismatch) << int{scale};
        EXPECT_EQ(thrownBy([&] { value.toString(); }), kTypeMismatch) << int{scale};
        VARIANT reference{};
        reference.vt = VT_VARIANT | VT_BYREF;
        reference.pvarVal = &number;
        Variant const referring = Variant::adopt(reference);
        EXPECT_EQ(thrownBy([&] { referring.toString(); }), kTypeMismatch) << int{scale};
    }
}

TEST(Variant, hasNoObjectWhenItIsEmptyNullOrHoldsANullPointer)
{
    EXPECT_FALSE(Variant().toObject());
    EXPECT_FALSE(Variant::ofDispatch(nullptr).toObject());
    EXPECT_FALSE(Variant::ofUnknown(nullptr).toObject());
    VARIANT null{};
    null.vt = VT_NULL;
    EXPECT_FALSE(Variant::adopt(null).toObject());
    VARIANT nowhere{};
    nowhere.vt = VT_DISPATCH | VT_BYREF;
    EXPECT_FALSE(Variant::adopt(nowhere).toObject());
}

TEST(Variant, aValueThatIsNoObjectRaisesTypeMismatchWhenOneIsAskedFor)
{
    EXPECT_EQ(thrownBy([] { Variant::ofLong(1).toObject(); }), kTypeMismatch);
    EXPECT_EQ(thrownBy([] { Variant::ofString(L"text").toObject(); }), kTypeMismatch);
}

} // namespace
} // namespace quillet
