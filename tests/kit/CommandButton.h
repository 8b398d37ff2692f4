// A command button in a form, everybody who listens to it, and what a user does with it.
#pragma once

#include "kit/ControlTest.h"
#include "kit/Fonts.h"
#include "kit/Hosted.h"
#include "kit/Input.h"
#include "kit/Listener.h"
#include "kit/Pump.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace quillet::kit {

constexpr DISPID kPaint = eventid::command::Paint;

constexpr RECT kPlace{20, 30, 140, 70};
constexpr RECT kPlaceBelow{20, 80, 140, 120};

/// The font that the form offers, unless a test changes it.
inline ComPtr<IFont> formFont() { return newFont(L"Tahoma", 10); }

/// A button whose events and changed properties are recorded from the beginning. Nothing has happened to it
/// yet.
template <class Interface> class CommandButton : public Hosted, public Listener {
public:
    CommandButton(Library const& library, FakeForm& form, REFCLSID classId, REFIID interfaceId,
                  REFIID eventsId, RECT const& place, std::wstring const& name)
        : Hosted(library, classId, form, place, name), Listener(kCommandEvents),
          m_button(query<Interface>(object(), interfaceId))
    {
        join(object(), eventsId);
        offerFont(formFont().get());
        EXPECT_TRUE(m_button) << "the object has no default interface";
    }
    ~CommandButton() { remove(); }

    Interface* operator->() const noexcept { return m_button.get(); }
    Interface* dual() const noexcept { return m_button.get(); }
    int paints() const { return count("Paint"); }
    /// What happened up to now.
    void forget()
    {
        pumpPending();
        events().forget();
        changes().take();
        form().record().forget();
    }
    void remove()
    {
        if (m_pressed)
            leave();
        stopListening();
        m_button.reset();
        Hosted::remove();
    }

    std::wstring caption() const
    {
        Bstr text;
        EXPECT_EQ(m_button->get_Caption(text.put()), S_OK);
        return std::wstring(text.view());
    }
    void setCaption(wchar_t const* text) { EXPECT_EQ(m_button->put_Caption(Bstr(text).get()), S_OK); }
    ComPtr<IFont> font() const
    {
        ComPtr<IFontDisp> font;
        EXPECT_EQ(m_button->get_Font(font.put()), S_OK);
        return query<IFont>(font.get());
    }
    void setFont(IFont* font) { EXPECT_EQ(m_button->putref_Font(query<IFontDisp>(font).get()), S_OK); }

    /// Moves the cursor onto the button and repaints it.
    void makeHot()
    {
        EXPECT_TRUE(moveCursorTo(window(), size().cx / 2, size().cy / 2));
        pumpPending();
        repaint();
    }
    /// The same with the left mouse button held down; the button has the focus then.
    void makePressed()
    {
        makeHot();
        int const before = count("MouseDown");
        press(MouseButton::Left);
        EXPECT_TRUE(pumpUntil([&] { return count("MouseDown") > before; }));
        EXPECT_EQ(::GetFocus(), window());
        m_pressed = true;
        pumpPending();
    }
    /// Lets the mouse button go and takes the cursor away.
    void leave()
    {
        if (std::exchange(m_pressed, false)) {
            int const before = count("MouseUp");
            kit::release(MouseButton::Left);
            EXPECT_TRUE(pumpUntil([&] { return count("MouseUp") > before; }));
        }
        EXPECT_TRUE(moveCursorAway());
        pumpPending();
        repaint();
    }
    /// A repaint by the button's own routine, as a setter without any other effect makes it.
    void repaint()
    {
        ::InvalidateRect(window(), nullptr, FALSE);
        ::UpdateWindow(window());
    }

private:
    ComPtr<Interface> m_button;
    bool m_pressed = false;
};

} // namespace quillet::kit
