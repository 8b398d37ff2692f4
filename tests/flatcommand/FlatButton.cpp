// A qvFlatCommand in a form, with everybody who listens to it, and compared with the picture that it must
// show.
#include "FlatButton.h"

#include "kit/ByName.h"
#include "kit/Canvas.h"
#include "kit/Fonts.h"
#include "kit/Input.h"
#include "kit/Pump.h"

#include <utility>

namespace quillet::flat {

namespace {

constexpr wchar_t const* kNames[] = {
    L"BackColor",        L"ForeColor",          L"Enabled",
    L"BorderStyle",      L"BorderColor",        L"HotForeColor",
    L"PressedForeColor", L"HotBackColor",       L"PressedBackColor",
    L"HotBorderColor",   L"PressedBorderColor", L"BorderWidth",
    L"HotBorderWidth",   L"PressedBorderWidth", L"DisabledForeColor",
    L"Caption",          L"CentreCaption",      L"CaptionIndent",
    L"MousePointer",     L"ShowFocusRectangle", L"OfficeXPColors",
    L"ToolTipText",
};

std::string textOf(IFont* font)
{
    if (!font)
        return "none";
    return kit::narrow(kit::nameOf(*font)) + ' ' + std::to_string(kit::pointsOf(*font));
}

std::string textOf(IPictureDisp* picture)
{
    auto const drawn = query<IPicture>(picture);
    OLE_XSIZE_HIMETRIC width = 0;
    if (!drawn || FAILED(drawn->get_Width(&width)))
        return "none";
    return std::to_string(width);
}

} // namespace

ComPtr<IFont> formFont() { return kit::newFont(L"Tahoma", 10); }

FlatButton::FlatButton(kit::Library const& library, kit::FakeForm& form, RECT const& place,
                       std::wstring const& name)
    : Hosted(library, kQvFlatCommandClass, form, place, name), Listener(kit::kCommandEvents),
      m_button(as<_qvFlatCommand>())
{
    join(object(), kQvFlatCommandEvents);
    site().setAmbient(DISPID_AMBIENT_FONT, Variant::ofDispatch(query<IDispatch>(formFont().get()).get()));
    EXPECT_TRUE(m_button) << "the object has no _qvFlatCommand";
}

void FlatButton::remove()
{
    stopListening();
    m_button.reset();
    Hosted::remove();
}

std::wstring FlatButton::caption() const
{
    Bstr text;
    EXPECT_EQ(m_button->get_Caption(text.put()), S_OK);
    return std::wstring(text.view());
}

void FlatButton::setCaption(wchar_t const* text) { EXPECT_EQ(m_button->put_Caption(Bstr(text).get()), S_OK); }

ComPtr<IFont> FlatButton::font() const
{
    ComPtr<IFontDisp> font;
    EXPECT_EQ(m_button->get_Font(font.put()), S_OK);
    return query<IFont>(font.get());
}

void FlatButton::setFont(IFont* font)
{
    EXPECT_EQ(m_button->putref_Font(query<IFontDisp>(font).get()), S_OK);
}

std::vector<std::string> stateOf(FlatButton const& button)
{
    std::vector<std::string> state;
    for (wchar_t const* const name : kNames) {
        kit::Called const got = kit::getByName(*button.dual(), name);
        EXPECT_EQ(got.result, S_OK) << kit::narrow(name);
        state.push_back(kit::narrow(name) + " = " + kit::narrow(got.value.toString().view()));
    }
    ComPtr<IPictureDisp> icon;
    button->get_MouseIcon(icon.put());
    state.push_back("Font = " + textOf(button.font().get()));
    state.push_back("MouseIcon = " + textOf(icon.get()));
    return state;
}

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

std::string ShownButton::differencesFrom(Look const& look) const
{
    SIZE const now = size();
    kit::Canvas expected(now.cx, now.cy);
    kit::Canvas shown(now.cx, now.cy);
    paint(expected, look, *font().get());
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
