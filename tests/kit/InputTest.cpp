// Real input reaches the windows of the tests.
#include "kit/Input.h"

#include "kit/FakeForm.h"
#include "kit/HostWindow.h"
#include "kit/Pump.h"

#include <gtest/gtest.h>

#include <string>

namespace quillet::kit {
namespace {

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

} // namespace
} // namespace quillet::kit
