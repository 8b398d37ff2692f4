// What every test of the component from outside begins and ends with.
#pragma once

#include "kit/Library.h"

#include <gtest/gtest.h>

namespace quillet::kit {

/// Loads the component. At the end nothing may be alive: neither of the component's objects nor of the test's
/// own counterparts, whose references a control might have kept. That is looked at after the members of a
/// test class have gone.
class ControlTest : public testing::Test {
protected:
    ControlTest();
    ~ControlTest() override;
    void SetUp() override;

    /// Loaded once for the whole program, as in a host.
    static Library const& library();

private:
    long m_aliveBefore; ///< what an earlier test left behind is that one's failure
    bool m_cleanBefore;
};

} // namespace quillet::kit
