// A control in a form, as the tests of the hosting surface begin with it, and the interfaces that it offers.
#pragma once

#include "base/Compiler.h"
#include "kit/ControlTest.h"
#include "kit/Hosted.h"
#include "kit/Sinks.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <objsafe.h>
#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <docobj.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The tool chain's header declares the interface without its identifier.
QV_INTERFACE_UUID(IObjectSafety, 0xCB5BDC81, 0x93C1, 0x11CF, 0x8F, 0x20, 0x00, 0x80, 0x5F, 0x2C, 0xD0, 0x64)

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
    /// Site, new values and activation, one by one.
    void begin()
    {
        ASSERT_EQ(control.setSite(), S_OK);
        ASSERT_EQ(control.initNew(), S_OK);
        ASSERT_EQ(control.setExtent(), S_OK);
        record().forget();
    }
    /// The button's window after these steps and the verb.
    HWND activated(LONG verb = OLEIVERB_INPLACEACTIVATE)
    {
        begin();
        EXPECT_EQ(control.doVerb(verb), S_OK);
        return control.window();
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

struct NamedInterface {
    char const* name;
    IID iid;
};

#define QUILLET_NAMED(type)                                                                                  \
    {                                                                                                        \
#type, __uuidof(type)                                                                                \
    }
inline NamedInterface const kOffered[] = {QUILLET_NAMED(IUnknown),
                                          QUILLET_NAMED(IDispatch),
                                          QUILLET_NAMED(IOleObject),
                                          QUILLET_NAMED(IOleWindow),
                                          QUILLET_NAMED(IOleInPlaceObject),
                                          QUILLET_NAMED(IOleInPlaceActiveObject),
                                          QUILLET_NAMED(IOleControl),
                                          QUILLET_NAMED(IViewObject),
                                          QUILLET_NAMED(IViewObject2),
                                          QUILLET_NAMED(IViewObjectEx),
                                          QUILLET_NAMED(IDataObject),
                                          QUILLET_NAMED(IConnectionPointContainer),
                                          QUILLET_NAMED(IProvideClassInfo),
                                          QUILLET_NAMED(IProvideClassInfo2),
                                          QUILLET_NAMED(ISupportErrorInfo),
                                          QUILLET_NAMED(IPersist),
                                          QUILLET_NAMED(IPersistStreamInit),
                                          QUILLET_NAMED(IPersistStorage),
                                          QUILLET_NAMED(IPersistPropertyBag),
                                          QUILLET_NAMED(IQuickActivate),
                                          QUILLET_NAMED(IObjectWithSite),
                                          QUILLET_NAMED(IObjectSafety)};

// Each of these leads some container away from what the control does well.
inline NamedInterface const kNotOffered[] = {
    QUILLET_NAMED(IPersistPropertyBag2),        QUILLET_NAMED(IOleDocument),    QUILLET_NAMED(IPersistMemory),
    QUILLET_NAMED(IOleInPlaceObjectWindowless), QUILLET_NAMED(IClientSecurity), QUILLET_NAMED(IMarshal),
};
#undef QUILLET_NAMED

} // namespace quillet::hosting
