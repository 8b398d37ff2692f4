// Automation strings: what is copied, taken over and handed out.
#include "base/Bstr.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace quillet
