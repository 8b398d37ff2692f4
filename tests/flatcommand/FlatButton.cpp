// A qvFlatCommand in a form, with everybody who listens to it.
#include "FlatButton.h"

#include "kit/ByName.h"
#include "kit/Fonts.h"

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

} // namespace quillet::flat
