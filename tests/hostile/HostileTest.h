// What every hostile case begins and ends with: the five controls, nothing left behind, and eyes on their
// windows.
#pragma once

#include "Journal.h"
#include "kit/ControlTest.h"
#include "kit/ModalDialog.h"
#include "typelib/Guids.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillet::hostile {

struct ControlKind {
    char const* name;
    CLSID classId;
    IID interfaceId;
    IID eventsId;
};

inline constexpr ControlKind kControls[] = {
    {"qvFlatCommand", kQvFlatCommandClass, kQvFlatCommandInterface, kQvFlatCommandEvents},
    {"qvImageCommand", kQvImageCommandClass, kQvImageCommandInterface, kQvImageCommandEvents},
    {"FlatToolButton", kFlatToolButtonClass, kFlatToolButtonInterface, kFlatToolButtonEvents},
    {"qvFlatOption", kQvFlatOptionClass, kQvFlatOptionInterface, kQvFlatOptionEvents},
    {"qvFlatCheck", kQvFlatCheckClass, kQvFlatCheckInterface, kQvFlatCheckEvents},
};

/// Where a control stands in its form, and a point in it.
inline constexpr RECT kPlace{20, 30, 120, 60};
inline constexpr POINT kInside{30, 12};

/// The component's windows on this thread: their classes.
std::vector<std::string> ownWindows();

class HostileTest : public kit::ControlTest {
public:
    using ControlTest::library;
    /// After each run: the module can go, and no window of its is left. The tables' cases tell more.
    static void expectNothingLeft();

protected:
    HostileTest();
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

#define QV_ALL_CONTROLS(suite)                                                                               \
    INSTANTIATE_TEST_SUITE_P(All, suite, testing::ValuesIn(kControls),                                       \
                             [](auto const& each) { return std::string(each.param.name); })

class Life;

/// The first window of a control's surface in a form's; null when there is none.
HWND surfaceIn(HWND form);

/// Subclasses the window once: the life is told "Before(message)" and "After(message)" for each message.
void watchMessages(HWND window, Life& life);
/// Windows that are gone are not watched any more.
void forgetWatches();

} // namespace quillet::hostile
