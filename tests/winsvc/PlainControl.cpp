// The least that uses the window services: a control without a look, for tests of the room itself.
#include "PlainControl.h"

namespace quillet::winsvc {

namespace {

constexpr GUID kAnyId = {0x2D5AB1F3, 0x7C11, 0x4E0B, {0x9A, 0x52, 0x6B, 0x0D, 0x3C, 0x77, 0x18, 0x40}};
constexpr ControlClass kPlainClass = {kAnyId, kAnyId, kAnyId, L"plain", L"Test.plain", 0, {}, 0, nullptr};

} // namespace

PlainControl::PlainControl() : Surface(kPlainClass, nullptr) {}

LRESULT PlainControl::Guard::handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    constexpr int kDeepest = 16;
    if (m_depth == kDeepest) {
        ADD_FAILURE() << "the procedures of a window call each other without end";
        return 0;
    }
    ++m_depth;
    auto& control = static_cast<PlainControl&>(m_surface);
    LRESULT const result = control.toolTip.handleMessage(window, message, wParam, lParam);
    --m_depth;
    return result;
}

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

void RoomTest::onNewThread(std::function<void()> const& body)
{
    kit::onNewThread([&] {
        body();
        detachThreadState();
    });
}

} // namespace quillet::winsvc
