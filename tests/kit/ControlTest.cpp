// What every test of the component from outside begins and ends with.
#include "kit/ControlTest.h"

#include "base/Module.h"
#include "kit/Input.h"
#include "kit/Pump.h"

namespace quillet::kit {

Library const& ControlTest::library()
{
    static Library const loaded;
    return loaded;
}

void ControlTest::SetUp()
{
    ASSERT_TRUE(library().loaded()) << "quilbt.ocx does not load from the program's folder";
    ASSERT_TRUE(moveCursorAway());
    ::SetErrorInfo(0, nullptr);
}

ControlTest::ControlTest() : m_aliveBefore(liveObjects()), m_cleanBefore(library().canUnloadNow() == S_OK) {}

ControlTest::~ControlTest()
{
    pumpPending();
    ::SetErrorInfo(0, nullptr);
    EXPECT_EQ(liveObjects(), m_aliveBefore) << "a counterpart of the test's is still referenced";
    if (m_cleanBefore) {
        EXPECT_EQ(library().canUnloadNow(), S_OK) << "the component says that objects of it are alive";
    }
}

} // namespace quillet::kit
