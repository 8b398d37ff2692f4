// The least that uses the window services: a control without a look, for tests of the room itself.
#include "PlainControl.h"

#include "kit/UiThread.h"

namespace quillet::winsvc {

namespace {

constexpr GUID kAnyId = {0x2D5AB1F3, 0x7C11, 0x4E0B, {0x9A, 0x52, 0x6B, 0x0D, 0x3C, 0x77, 0x18, 0x40}};
constexpr ControlClass kPlainClass = {kAnyId, kAnyId, kAnyId, L"plain", L"Test.plain", 0, {}, 0};

} // namespace

PlainControl::PlainControl() : Surface(kPlainClass, nullptr) {}

void PlainControl::onPaint()
{
    if (log)
        log->emplace_back("paint");
}

void PlainControl::onFocusMessage()
{
    if (failing)
        throw RunTimeError(E_FAIL);
    Surface::onFocusMessage();
}

void RoomTest::SetUpTestSuite()
{
    setModuleInstance(::GetModuleHandleW(nullptr));
    ASSERT_TRUE(attachThreadStates());
}

void RoomTest::TearDownTestSuite() { detachThreadStates(); }

void RoomTest::onNewThread(void (*body)())
{
    kit::onNewThread([body] {
        body();
        detachThreadState();
    });
}

} // namespace quillet::winsvc
