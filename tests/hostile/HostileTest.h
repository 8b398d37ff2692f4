// What every hostile case begins and ends with: nothing of the component may be left behind.
#pragma once

#include "Controls.h"
#include "Journal.h"
#include "Options.h"
#include "kit/ControlTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillet::hostile {

/// Closes the message boxes and property frames that a control opens, so that no case waits for a user.
class DialogCloser {
public:
    DialogCloser();
    ~DialogCloser();
    DialogCloser(DialogCloser const&) = delete;
    DialogCloser& operator=(DialogCloser const&) = delete;

private:
    UINT_PTR m_timer;
};

/// The component's windows on this thread: their classes.
std::vector<std::string> ownWindows();

class HostileTest : public kit::ControlTest {
public:
    using ControlTest::library;
    /// After each run: the module can go, and no window of its is left. The tables' cases tell more.
    static void expectNothingLeft();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    DialogCloser m_closer;
};

/// A case for each of the five controls.
class HostileControlTest : public HostileTest, public testing::WithParamInterface<ControlKind> {
protected:
    static ControlKind const& kind() { return GetParam(); }
};

#define QV_ALL_CONTROLS(suite)                                                                               \
    INSTANTIATE_TEST_SUITE_P(All, suite, testing::ValuesIn(kControls),                                       \
                             [](auto const& each) { return std::string(each.param.name); })

} // namespace quillet::hostile
