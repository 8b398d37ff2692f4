// A qvFlatCommand on the screen, and what a person does with it.
#pragma once

#include "Button.h"
#include "kit/ControlTest.h"
#include "kit/FakeBag.h"
#include "kit/HostWindow.h"
#include "kit/Hosted.h"
#include "kit/Input.h"
#include "kit/Listener.h"
#include "kit/NotCopied.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillet::input {

using kit::Names;

constexpr RECT kPlace{20, 30, 140, 70};
/// Where the cursor goes inside the button, in pixels from its top left corner; nothing is drawn there but
/// the face.
constexpr POINT kInside{100, 30};
constexpr POINT kInsideToo{90, 25};
/// A point beside it, over the same form.
constexpr POINT kBeside{160, 20};

/// Saved properties that give each state a face of its own; hot, pressed and normal differ in nothing else.
ComPtr<kit::FakeBag> looksBag();

/// What a button of that bag shows: "normal", "hot", "pressed", "disabled", or the colour of its face.
std::string lookOf(HWND window);

/// A flat command button and its listener. Where it lives is a derived class's business.
class Button : public kit::Listener, kit::NotCopied {
public:
    virtual ~Button() = default;

    _qvFlatCommand* operator->() const noexcept { return m_dual.get(); }
    template <class T> ComPtr<T> as() const { return query<T>(m_dual.get()); }
    HWND window() const noexcept { return m_window; }

    std::string look() const { return lookOf(m_window); }
    /// Gives up the control without a word to it. Its own references are not the test's.
    virtual void release();
    /// Takes it out of its host as hosts do.
    virtual void remove() = 0;

protected:
    Button() : Listener(kit::kCommandEvents) {}
    /// Listens to the object.
    void adopt(IUnknown* object);
    /// The window is asked for once: it stays known when the control has gone.
    void rememberWindow();

private:
    ComPtr<_qvFlatCommand> m_dual;
    HWND m_window = nullptr;
};

/// In a form of ours.
class FormButton : public Button {
public:
    FormButton(kit::Library const& library, kit::FakeForm& form, RECT const& place = kPlace,
               std::wstring const& name = L"Button1");
    ~FormButton() override { FormButton::remove(); }

    kit::FakeSite& site() noexcept { return m_hosted.site(); }
    kit::Hosted& hosted() noexcept { return m_hosted; }
    kit::NamedObject& extender() noexcept { return m_hosted.site().extender(); }

    void load(IPropertyBag& bag);
    /// Loads and shows it.
    void start(IPropertyBag& bag);
    void start() { start(*looksBag().get()); }
    /// Shows it as a new control, without loading anything.
    void startNew();

    void release() override;
    void remove() override;

private:
    void show();

    kit::Hosted m_hosted;
};

/// In the system's own host.
class AtlButton final : public Button {
public:
    AtlButton(kit::Library const& library, kit::FakeForm& form);
    ~AtlButton() override { AtlButton::remove(); }

    void remove() override;

private:
    kit::AtlHost m_host;
};

/// The hosts that the same input is given in.
enum class HostKind { Form, AtlAxWin };
std::string nameOf(HostKind kind);
std::unique_ptr<Button> newButton(HostKind kind, kit::Library const& library, kit::FakeForm& form);

/// A button in each of the hosts, with the focus, so that a press does not bring a change of focus along.
class EachHostTest : public kit::ControlTest, public testing::WithParamInterface<HostKind> {
protected:
    kit::FakeForm form;
    std::unique_ptr<Button> owner;

    Button& button() { return *owner; }
    void SetUp() override;
    void TearDown() override;
};

#define QV_EACH_HOST(Suite)                                                                                  \
    INSTANTIATE_TEST_SUITE_P(In, Suite, testing::Values(HostKind::Form, HostKind::AtlAxWin),                 \
                             [](auto const& tested) { return nameOf(tested.param); })

/// Moves the cursor onto the button, which is to notice it for the first time.
Names enter(Button& button);
/// Moves it on inside.
Names moveInside(Button& button, POINT to = kInsideToo);
/// Moves it to a point of the button's window or beside it.
Names moveTo(Button& button, POINT to, char const* last = "MouseMove");
/// Moves it off the button, which has the capture and notices.
Names leave(Button& button);
/// The same with a button held down: no MouseExit is to be expected.
Names dragOff(Button& button);
Names dragBack(Button& button);

Names pressDown(Button& button, kit::MouseButton which = kit::MouseButton::Left);
Names letUp(Button& button, kit::MouseButton which = kit::MouseButton::Left);

/// Enters and presses.
Names enterAndPress(Button& button, kit::MouseButton which = kit::MouseButton::Left);
/// Forgets what was told so far, when everything that waits has been handled.
void settle(Button& button);

/// What happens until the key has gone through the window that has the focus.
Names typed(Button& button, BYTE virtualKey);

/// Holds a key down for one scope.
class HeldKey : kit::NotCopied {
public:
    explicit HeldKey(BYTE virtualKey);
    ~HeldKey();

private:
    void send(DWORD flags) const;

    BYTE m_key;
};

/// A button in a form. At the end the mouse is let go and away, and nobody holds it.
class FormTest : public kit::ControlTest {
protected:
    kit::FakeForm form;
    FormButton button{library(), form};

    void TearDown() override;
};

/// A button in a form, with the focus and under the cursor.
class HoveredTest : public FormTest {
protected:
    void SetUp() override;
};

/// Acts, and waits until a message of that number has been taken from the thread's queue and handled.
bool actUntilHandled(UINT message, std::function<void()> const& act);

} // namespace quillet::input
