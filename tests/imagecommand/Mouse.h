// A button in either host, and what the mouse does to it as names of events.
#pragma once

#include "ImageButton.h"
#include "kit/HostWindow.h"

#include <memory>

namespace quillet::image {

constexpr POINT kInside{100, 30};
constexpr POINT kInsideToo{90, 25};
constexpr POINT kBeside{160, 20};

enum class HostKind { Form, AtlAxWin };

/// A running button with the focus in one of the hosts, its events recorded.
class HostedButton : public kit::Listener {
public:
    HostedButton(kit::Library const& library, kit::FakeForm& form, Kind const& kind, HostKind host)
        : Listener(kit::kCommandEvents)
    {
        auto const bag = kit::make<kit::FakeBag>();
        if (host == HostKind::Form) {
            m_hosted = std::make_unique<kit::Hosted>(library, kind.classId, form, kPlace);
            m_object = m_hosted->object();
            m_hosted->start(*bag.get());
        } else {
            m_object = library.create(kind.classId);
            EXPECT_EQ(query<IPersistPropertyBag>(m_object.get())->Load(bag.get(), nullptr), S_OK);
            m_atl = std::make_unique<kit::AtlHost>(form.window(), kPlace);
            EXPECT_EQ(m_atl->attach(m_object.get()), S_OK);
        }
        m_dual = query<_qvImageCommand>(m_object.get(), kind.interfaceId);
        join(m_object.get(), kind.eventsId);
        query<IOleWindow>(m_object.get())->GetWindow(&m_window);
        kit::pumpPending();
        EXPECT_TRUE(kit::focus(m_window));
        kit::pumpPending();
        events().forget();
    }
    ~HostedButton()
    {
        stopListening();
        m_dual.reset();
        if (m_hosted)
            m_hosted->remove();
        if (m_atl)
            m_atl->destroy();
    }

    _qvImageCommand* operator->() const noexcept { return m_dual.get(); }
    HWND window() const noexcept { return m_window; }
    IUnknown* object() const noexcept { return m_object.get(); }

    bool isChecked() const
    {
        VARIANT_BOOL checked = 0x55;
        EXPECT_EQ(m_dual->get_Checked(&checked), S_OK);
        return checked != VARIANT_FALSE;
    }
    Names moveTo(POINT at, char const* last = "MouseMove")
    {
        return during([&] { kit::moveCursorTo(m_window, at.x, at.y); }, last);
    }
    /// Moves the cursor, whatever comes of it.
    void put(POINT at)
    {
        kit::moveCursorTo(m_window, at.x, at.y);
        kit::pumpPending();
    }
    /// Onto the button and down.
    Names moveAndPress()
    {
        moveTo(kInside);
        return press();
    }
    void send(UINT message, POINT at = kInside, WPARAM keys = 0)
    {
        ::SendMessageW(m_window, message, keys, MAKELPARAM(at.x, at.y));
    }
    Names press(kit::MouseButton which = kit::MouseButton::Left)
    {
        return during([&] { kit::press(which); }, "MouseDown");
    }
    Names release(kit::MouseButton which = kit::MouseButton::Left)
    {
        return during([&] { kit::release(which); }, "MouseUp");
    }

private:
    ComPtr<IUnknown> m_object;
    std::unique_ptr<kit::Hosted> m_hosted;
    std::unique_ptr<kit::AtlHost> m_atl;
    ComPtr<_qvImageCommand> m_dual;
    HWND m_window = nullptr;
};

/// Runs for both classes in both hosts.
class ImageInputTest : public kit::ControlTest,
                       public testing::WithParamInterface<std::tuple<Kind const*, HostKind>> {
protected:
    kit::FakeForm form;
    std::unique_ptr<HostedButton> m_button =
        std::make_unique<HostedButton>(library(), form, *std::get<0>(GetParam()), std::get<1>(GetParam()));
    HostedButton& button() { return *m_button; }

    void TearDown() override
    {
        kit::release(kit::MouseButton::Left);
        kit::release(kit::MouseButton::Right);
        EXPECT_TRUE(kit::moveCursorAway());
        kit::pumpPending();
        m_button.reset();
        ::ReleaseCapture();
    }
};

#define QV_BOTH_HOSTS(Suite)                                                                                 \
    INSTANTIATE_TEST_SUITE_P(In, Suite,                                                                      \
                             testing::Combine(testing::Values(&imageCommand(), &toolButton()),               \
                                              testing::Values(HostKind::Form, HostKind::AtlAxWin)),          \
                             [](auto const& tested) {                                                        \
                                 bool const atl = std::get<1>(tested.param) == HostKind::AtlAxWin;           \
                                 return std::string(std::get<0>(tested.param)->name) +                       \
                                        (atl ? "AtlAxWin" : "Form");                                         \
                             })

} // namespace quillet::image
