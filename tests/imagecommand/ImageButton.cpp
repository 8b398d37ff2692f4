// An image command button or a tool button in a form, with everybody who listens to it.
#include "ImageButton.h"

#include "kit/Fonts.h"
#include "kit/Input.h"
#include "kit/Pump.h"

#include <utility>

namespace quillet::image {

Kind const& imageCommand()
{
    static Kind const kind = {"ImageCommand", kQvImageCommandClass, kQvImageCommandInterface,
                              kQvImageCommandEvents, false};
    return kind;
}

Kind const& toolButton()
{
    static Kind const kind = {"ToolButton", kFlatToolButtonClass, kFlatToolButtonInterface,
                              kFlatToolButtonEvents, true};
    return kind;
}

ComPtr<IFont> formFont() { return kit::newFont(L"Tahoma", 10); }

double twipsPerPixel()
{
    WindowDc const screen(nullptr);
    return 1440.0 / ::GetDeviceCaps(screen.get(), LOGPIXELSX);
}

ImageButton::ImageButton(kit::Library const& library, kit::FakeForm& form, Kind const& kind,
                         RECT const& place, std::wstring const& name)
    : Hosted(library, kind.classId, form, place, name), Listener(kit::kCommandEvents),
      m_button(query<_qvImageCommand>(object(), kind.interfaceId))
{
    join(object(), kind.eventsId);
    site().setAmbient(DISPID_AMBIENT_FONT, Variant::ofDispatch(query<IDispatch>(formFont().get()).get()));
    site().extender().offer(L"Width", Variant::ofLong(0));
    EXPECT_TRUE(m_button) << "the object has no default interface";
}

void ImageButton::forget()
{
    kit::pumpPending();
    events().forget();
    changes().take();
    form().record().forget();
}

void ImageButton::remove()
{
    if (m_pressed)
        leave();
    stopListening();
    m_button.reset();
    Hosted::remove();
}

void ImageButton::load()
{
    auto const bag = kit::make<kit::FakeBag>();
    start(*bag.get());
}

void ImageButton::setUserMode(bool running)
{
    site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(running));
    EXPECT_EQ(as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
}

std::wstring ImageButton::caption() const
{
    Bstr text;
    EXPECT_EQ(m_button->get_Caption(text.put()), S_OK);
    return std::wstring(text.view());
}

void ImageButton::setCaption(wchar_t const* text)
{
    EXPECT_EQ(m_button->put_Caption(Bstr(text).get()), S_OK);
}

ComPtr<IFont> ImageButton::font() const
{
    ComPtr<IFontDisp> font;
    EXPECT_EQ(m_button->get_Font(font.put()), S_OK);
    return query<IFont>(font.get());
}

bool ImageButton::isChecked() const
{
    VARIANT_BOOL checked = 0x55;
    EXPECT_EQ(m_button->get_Checked(&checked), S_OK);
    return checked != VARIANT_FALSE;
}

void ImageButton::makeCheckButton() { EXPECT_EQ(m_button->put_CheckButton(VARIANT_TRUE), S_OK); }

SIZE ImageButton::size() const
{
    RECT client{};
    ::GetClientRect(window(), &client);
    return {client.right, client.bottom};
}

void ImageButton::makeHot()
{
    SIZE const now = size();
    EXPECT_TRUE(kit::moveCursorTo(window(), now.cx / 2, now.cy / 2));
    kit::pumpPending();
    repaint();
}

void ImageButton::makePressed()
{
    makeHot();
    int const before = count("MouseDown");
    kit::press(kit::MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([&] { return count("MouseDown") > before; }));
    EXPECT_EQ(::GetFocus(), window());
    m_pressed = true;
    kit::pumpPending();
}

void ImageButton::leave()
{
    if (std::exchange(m_pressed, false)) {
        int const before = count("MouseUp");
        kit::release(kit::MouseButton::Left);
        EXPECT_TRUE(kit::pumpUntil([&] { return count("MouseUp") > before; }));
    }
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
    repaint();
}

void ImageButton::repaint()
{
    ::InvalidateRect(window(), nullptr, FALSE);
    ::UpdateWindow(window());
}

} // namespace quillet::image
