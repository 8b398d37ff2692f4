// What every test of the component from outside begins and ends with.
#pragma once

#include "base/Module.h"
#include "kit/Input.h"
#include "kit/Library.h"
#include "kit/Pump.h"

#include <gtest/gtest.h>

namespace quillet::kit {

/// Loads the component. At the end nothing may be alive: neither of the component's objects nor of the test's
/// own counterparts, whose references a control might have kept. That is looked at after the members of a
/// test class have gone.
class ControlTest : public testing::Test {
protected:
    ControlTest() : m_aliveBefore(liveObjects()), m_cleanBefore(library().canUnloadNow() == S_OK)
    {
        EXPECT_TRUE(moveCursorAway()); // before a member of a test class shows itself below it
        ::SetErrorInfo(0, nullptr);
    }
    ~ControlTest() override
    {
        pumpPending();
        ::SetErrorInfo(0, nullptr);
        EXPECT_EQ(liveObjects(), m_aliveBefore) << "a counterpart of the test's is still referenced";
        if (m_cleanBefore) {
            EXPECT_EQ(library().canUnloadNow(), S_OK) << "the component says that objects of it are alive";
        }
    }
    void SetUp() override
    {
        ASSERT_TRUE(library().loaded()) << "quilbt.ocx does not load from the program's folder";
    }

    /// Loaded once for the whole program, as in a host.
    static Library const& library()
    {
        static Library const loaded;
        return loaded;
    }

private:
    long m_aliveBefore; ///< what an earlier test left behind is that one's failure
    bool m_cleanBefore;
};

} // namespace quillet::kit
