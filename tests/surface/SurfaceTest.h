// A control in a form, as the tests of the hosting surface begin with it.
#pragma once

#include "kit/ControlTest.h"
#include "kit/Hosted.h"
#include "kit/Sinks.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// Where the comparison of the test framework looks for it: beside the type.
inline bool operator==(RECT const& a, RECT const& b) { return ::EqualRect(&a, &b) != FALSE; }

namespace quillet::hosting {

namespace id = dispid::qvFlatCommand;
constexpr DISPID kPaint = eventid::command::Paint;
constexpr DISPID kClick = eventid::command::Click;
constexpr RECT kPlace{20, 30, 140, 70};
/// Colours that no scheme has.
constexpr COLORREF kBack = RGB(40, 50, 60);
constexpr COLORREF kBorder = RGB(70, 80, 90);
constexpr COLORREF kPaper = RGB(250, 240, 230);

/// The flat command button stands for every control: the surface is the same for all of them.
class SurfaceTest : public kit::ControlTest {
protected:
    kit::FakeForm form;
    kit::Hosted control{library(), kQvFlatCommandClass, form, kPlace};

    template <class T> ComPtr<T> as() const
    {
        auto face = control.as<T>();
        EXPECT_TRUE(face) << "an interface is missing";
        return face;
    }
    ComPtr<_qvFlatCommand> button() const { return as<_qvFlatCommand>(); }
    kit::Record& record() { return form.record(); }

    /// Raises one Paint event.
    void repaint() const { EXPECT_EQ(button()->Refresh(), S_OK); }

    /// Whether the control's window is visible in the form.
    bool isShown() const
    {
        HWND const window = control.window();
        return window && ::IsWindowVisible(window) && ::GetParent(window) == form.window();
    }
    /// The window that the control keeps, whatever its state.
    HWND ownWindow() const
    {
        LONG window = 0;
        EXPECT_EQ(button()->get_hwnd(&window), S_OK);
        return reinterpret_cast<HWND>(static_cast<LONG_PTR>(window));
    }
    /// The control's place in the form.
    RECT placeOf(HWND window) const
    {
        RECT place{};
        ::GetWindowRect(window, &place);
        ::MapWindowPoints(nullptr, form.window(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
};

inline bool operator==(RECT const& a, RECT const& b) { return ::EqualRect(&a, &b) != FALSE; }

} // namespace quillet::hosting
