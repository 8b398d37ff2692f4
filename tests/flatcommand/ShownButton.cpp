// A running qvFlatCommand on the screen, compared with the picture that it must show.
#include "ShownButton.h"

#include "kit/Input.h"
#include "kit/Painter.h"
#include "kit/Pump.h"

#include <utility>

namespace quillet::flat {

ShownButton::ShownButton(kit::Library const& library, kit::FakeForm& form, RECT const& place)
    : FlatButton(library, form, place)
{
    start();
    setCaption(L"");
    kit::pumpPending();
}

SIZE ShownButton::size() const
{
    RECT client{};
    ::GetClientRect(window(), &client);
    return {client.right, client.bottom};
}

void ShownButton::read(kit::Canvas& canvas) const { kit::readWindow(window(), canvas); }

std::string ShownButton::differencesFrom(Face const& face) const
{
    SIZE const now = size();
    kit::Canvas expected(now.cx, now.cy);
    kit::Canvas shown(now.cx, now.cy);
    paint(expected, face, *font().get());
    read(shown);
    return kit::differences(expected, shown);
}

std::string ShownButton::picture(kit::Letters const& letters) const
{
    SIZE const now = size();
    kit::Canvas shown(now.cx, now.cy);
    read(shown);
    return shown.picture(letters);
}

void ShownButton::setColors()
{
    (*this)->put_ForeColor(kFore);
    (*this)->put_BackColor(kBack);
    (*this)->put_BorderColor(kBorder);
}

void ShownButton::setWidth(short width)
{
    EXPECT_EQ((*this)->put_BorderWidth(Variant::ofShort(width).get()), S_OK);
}

void ShownButton::makeHot()
{
    SIZE const now = size();
    EXPECT_TRUE(kit::moveCursorTo(window(), now.cx / 2, now.cy / 2));
    kit::pumpPending();
    EXPECT_EQ(dual()->Refresh(), S_OK);
}

void ShownButton::makePressed()
{
    makeHot();
    kit::press(kit::MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([this] { return count("MouseDown") > 0; }));
    EXPECT_EQ(::GetFocus(), window());
    m_pressed = true;
}

void ShownButton::leave()
{
    if (std::exchange(m_pressed, false)) {
        kit::release(kit::MouseButton::Left);
        EXPECT_TRUE(kit::pumpUntil([this] { return count("MouseUp") > 0; }));
    }
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
    EXPECT_EQ(dual()->Refresh(), S_OK);
}

} // namespace quillet::flat
