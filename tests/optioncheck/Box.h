// A flat option button or check box in a form of ours, with its events kept by name.
#pragma once

#include "kit/ByName.h"
#include "kit/Canvas.h"
#include "kit/ControlTest.h"
#include "kit/FakeBag.h"
#include "kit/Hosted.h"
#include "kit/Input.h"
#include "kit/Listener.h"
#include "kit/Pump.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <concepts>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillet::box {

using kit::Names;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// What tells the two controls apart from outside.
struct Kind {
    char const* name;
    CLSID classId;
    IID eventsId;
    wchar_t const* laidOutCaption;
};
extern Kind const kOption;
extern Kind const kCheck;

constexpr RECT kPlace{20, 30, 140, 50};
constexpr RECT kPlaceBelow{20, 80, 140, 100};
/// In pixels from the box's top left corner: on its caption, and beside it over the same form.
constexpr POINT kInside{60, 10};
constexpr POINT kInsideToo{70, 12};
constexpr POINT kBeside{160, 10};
/// In the circle or square, off the mark.
constexpr POINT kInGlyph{4, 8};

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kLightGrey = RGB(192, 192, 192);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kFore = RGB(0, 96, 0);
constexpr COLORREF kHot = RGB(255, 64, 0);

enum class Mode { Run, Design };

/// A bag with what a test wants saved.
using Saved = std::vector<std::pair<wchar_t const*, Variant>>;
ComPtr<kit::FakeBag> newBag(Saved const& values = {});

/// One control with its site and its listener.
class Box : public kit::Listener {
public:
    Box(Kind const& kind, kit::Library const& library, kit::FakeForm& form, RECT const& place = kPlace,
        std::wstring const& name = L"Box1", Mode mode = Mode::Run);
    ~Box() { remove(); }

    kit::Hosted& hosted() noexcept { return m_hosted; }
    kit::NamedObject& extender() noexcept { return m_hosted.site().extender(); }
    template <class T> ComPtr<T> as() const { return m_hosted.as<T>(); }
    IDispatch& dispatch() const;

    /// Site, load, activation and the first painting.
    void start(IPropertyBag& bag);
    void start() { start(*newBag().get()); }
    /// The same as a new control, without anything loaded.
    void startNew();
    void remove();
    void release();

    HWND outer() const { return m_hosted.window(); }
    HWND inner() const { return m_inner; }
    /// Asks the control for its window once more.
    HWND hwnd() const;

    long value() const { return number(L"Value"); }
    HRESULT setValue(long value) { return put(L"Value", value); }
    Variant get(wchar_t const* name) const;
    long number(wchar_t const* name) const { return get(name).toLong(); }
    std::wstring text(wchar_t const* name) const { return std::wstring(get(name).toString().view()); }
    std::wstring caption() const { return text(L"Caption"); }
    ComPtr<IFont> font() const { return query<IFont>(get(L"Font").toObject().get()); }
    HRESULT put(wchar_t const* name, Variant const& value);
    HRESULT put(wchar_t const* name, bool value) { return put(name, Variant::ofBool(value)); }
    HRESULT put(wchar_t const* name, std::integral auto value)
    {
        return put(name, Variant::ofLong(static_cast<long>(value)));
    }
    HRESULT put(wchar_t const* name, wchar_t const* value) { return put(name, Variant::ofString(value)); }
    HRESULT setFont(IFont* font) { return kit::setByName(dispatch(), L"Font", font).error(); }
    void disable() { EXPECT_EQ(put(L"Enabled", false), S_OK); }
    void refresh() { EXPECT_EQ(kit::callByName(dispatch(), L"Refresh").result, S_OK); }
    void setColours(COLORREF fore, COLORREF hot);

    /// The colour of a pixel on the screen.
    COLORREF pixel(POINT at) const;
    /// Whether a pixel of the caption has the colour.
    bool captionHas(COLORREF color) const;
    void expectCaption(COLORREF color, COLORREF notThat) const
    {
        EXPECT_TRUE(captionHas(color));
        EXPECT_FALSE(captionHas(notThat));
    }

    /// Sends the inner button a message of the mouse.
    void send(UINT message, POINT at, WPARAM keys = 0) const
    {
        ::SendMessageW(m_inner, message, keys, MAKELPARAM(at.x, at.y));
    }

    // A user's deeds, each awaited.
    void moveTo(POINT at);
    Names enter()
    {
        return during([&] { moveTo(kInside); }, "MouseMove");
    }
    Names leave()
    {
        return during([&] { moveTo(kBeside); }, "MouseMove");
    }
    Names press(kit::MouseButton which = kit::MouseButton::Left);
    Names letGo(kit::MouseButton which = kit::MouseButton::Left);
    void click();
    /// Presses and lets go where the cursor is: the events but moves.
    Names pressAndLetGo(kit::MouseButton which = kit::MouseButton::Left);

private:
    void listen();

    kit::Hosted m_hosted;
    HWND m_inner = nullptr;
};

/// A window that runs the body whenever a message posted to it is handled.
class PostedCall : kit::NotCopied {
public:
    explicit PostedCall(std::function<void()> body);

    void post() const { ::PostMessageW(m_window.get(), WM_APP, 0, 0); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::function<void()> m_body;
    UniqueWindow m_window;
};

inline std::string nameOfEvent(DISPID event) { return kit::eventName(kit::kOptionCheckEvents, event); }

class BoxTest : public kit::ControlTest {
protected:
    kit::FakeForm form;
};

/// The same for each of the two controls.
class EachBoxTest : public BoxTest, public testing::WithParamInterface<Kind const*> {
protected:
    Kind const& kind() const { return *GetParam(); }
    bool isOption() const { return GetParam() == &kOption; }
};

/// With one that was loaded and is shown.
class StartedBoxTest : public EachBoxTest {
protected:
    StartedBoxTest() { box.start(); }

    Box box{kind(), library(), form};
};

#define QV_EACH_BOX(suite)                                                                                   \
    INSTANTIATE_TEST_SUITE_P(each, suite, testing::Values(&kOption, &kCheck),                                \
                             [](auto const& each) { return std::string(each.param->name); })

} // namespace quillet::box
