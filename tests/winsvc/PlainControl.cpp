// The least that uses the window services, for tests of the room itself, and the procedure of a window before
// them.
#include "PlainControl.h"

#include <algorithm>

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

namespace {

thread_local PreviousProcedure* t_present = nullptr; // a window procedure is given nothing to find it by

} // namespace

PreviousProcedure::PreviousProcedure(HWND window)
    : m_window(window), m_own(reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(window, GWLP_WNDPROC)))
{
    t_present = this;
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
}

PreviousProcedure::~PreviousProcedure()
{
    if (::IsWindow(m_window))
        ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_own));
    t_present = nullptr;
}

int PreviousProcedure::count(UINT message) const
{
    return static_cast<int>(std::ranges::count(seen, message, &MSG::message));
}

LRESULT CALLBACK PreviousProcedure::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    PreviousProcedure* const self = t_present;
    if (!self)
        return ::DefWindowProcA(window, message, wParam, lParam);
    MSG const noted{window, message, wParam, lParam, 0, {}};
    self->seen.push_back(noted);
    if (auto const run = self->action)
        run(noted);
    return message >= WM_APP ? self->answer : ::CallWindowProcA(self->m_own, window, message, wParam, lParam);
}

} // namespace quillet::winsvc
