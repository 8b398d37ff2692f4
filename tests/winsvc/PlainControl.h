// The least that uses the window services, for tests of the room itself, and the procedure of a window before
// them.
#pragma once

#include "base/Module.h"
#include "kit/FakeForm.h"
#include "kit/FakeSite.h"
#include "kit/NotCopied.h"
#include "kit/UiThread.h"
#include "surface/Surface.h"
#include "surface/window/ThreadState.h"
#include "winsvc/modToolTip.h"

#include <ole2.h>
#include <olectl.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace quillet::winsvc {

constexpr RECT kAnyPlace{10, 10, 60, 40};

class PlainControl final : public Surface {
public:
    PlainControl();

    ToolTipUser toolTip{*this};
    std::vector<std::string>* log = nullptr; ///< notes "paint" where a test wants to see it

    bool failing = false; ///< whether a change of the focus fails

    void onPaint() override;
    void onFocusMessage() override;
    IUnknown* windowMessages() noexcept override { return &m_guard; }
    IDispatch* dual() noexcept override { return &m_dual; }
    void onTerminate() override { toolTip.Terminate(); }

private:
    /// Stands before the services: procedures that call each other without end fail the test at once, instead
    /// of filling the stack.
    class Guard final : public Face<WindowMessages> {
    public:
        using Face::Face;
        LRESULT handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;

    private:
        int m_depth = 0;
    };

    Guard m_guard{*this};
    Dual<IDispatch> m_dual{*this}; ///< of an interface that has nothing of its own
};

/// Owns a control by its only reference.
class PlainOwner {
public:
    PlainOwner() : m_control(new PlainControl), m_reference(ComPtr<IUnknown>::adopt(m_control->inner())) {}

    PlainControl* operator->() const noexcept { return m_control; }
    PlainControl& operator*() const noexcept { return *m_control; }
    ToolTipUser& toolTip() const noexcept { return m_control->toolTip; }
    template <class T> ComPtr<T> as() const { return query<T>(m_reference.get()); }
    void release() { m_reference.reset(); }

private:
    PlainControl* m_control;
    ComPtr<IUnknown> m_reference;
};

/// A control in a form that is designed or runs.
struct Sited : kit::NotCopied {
    kit::FakeForm form;
    ComPtr<kit::FakeSite> site = kit::make<kit::FakeSite>(form, kAnyPlace, L"Button1");
    PlainOwner control;

    explicit Sited(bool running)
    {
        site->setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(running));
        control.as<IOleObject>()->SetClientSite(site.get());
    }
    ~Sited()
    {
        control.release();
        site->dismantle();
    }

    void createToolTip() { control.toolTip().CreateToolTip(control->hWnd()); }
    void end() { control.release(); }
};

/// Makes this program what the component is to its rooms. Each body runs on a thread of its own.
class RoomTest : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    ~RoomTest() override { EXPECT_EQ(liveObjects(), 0); }

    static void onNewThread(std::function<void()> const& body);
};

/// Stands before a window's own procedure from the beginning. One at a time on a thread.
class PreviousProcedure : kit::NotCopied {
public:
    explicit PreviousProcedure(HWND window);
    ~PreviousProcedure();

    std::vector<MSG> seen; ///< window and the four values; neither time nor point
    std::function<void(MSG const&)> action;
    /// What messages from WM_APP on are answered with; they go no further.
    LRESULT answer = 0;

    int count(UINT message) const;
    WNDPROC address() const noexcept { return &procedure; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window;
    WNDPROC m_own;
};

} // namespace quillet::winsvc
