// What every hostile case begins and ends with: the five controls, nothing left behind, and eyes on their
// windows.
#pragma once

#include "Journal.h"
#include "kit/ControlTest.h"
#include "kit/Controls.h"
#include "kit/ModalDialog.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace quillet::hostile {

using kit::ControlKind;
using kit::kControls;

/// Where a control stands in its form, and a point in it.
inline constexpr RECT kPlace{20, 30, 120, 60};
inline constexpr POINT kInside{30, 12};

/// The component's windows on this thread: their classes.
std::vector<std::string> ownWindows();

class Life;

/// Nothing may be left at the end, when the members of a test class have gone.
class HostileTest : public kit::ControlTest {
public:
    using ControlTest::library;
    /// After each run: the module can go, and no window of its is left. The tables' cases tell more.
    static void expectNothingLeft();
    /// One run: a whole life of a control that has been prepared for it.
    static void live(ControlKind const& kind, std::string const& title,
                     std::function<void(Life&)> const& prepare);

protected:
    HostileTest();
    ~HostileTest() override { expectNothingLeft(); }
    void SetUp() override;
    void TearDown() override;

private:
    kit::DialogWatch m_closer; ///< so that no case waits for a user
};

/// A case for each of the five controls.
class HostileControlTest : public HostileTest, public testing::WithParamInterface<ControlKind> {
protected:
    static ControlKind const& kind() { return GetParam(); }
};

#define QV_ALL_CONTROLS(suite) QV_EACH_CONTROL(All, suite)

/// The first window of a control's surface in a form's; null when there is none.
HWND surfaceIn(HWND form);

/// Subclasses the window once: the life is told "Before(message)" and "After(message)" for each message.
void watchMessages(HWND window, Life& life);
/// Windows that are gone are not watched any more.
void forgetWatches();

} // namespace quillet::hostile
