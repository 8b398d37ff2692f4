// A qvFlatCommand in a form, compared with the picture that it must show, and its saved properties as the
// tests expect them.
#include "FlatButton.h"

#include <algorithm>
#include <iterator>

namespace quillet::flat {

FlatButton::FlatButton(kit::Library const& library, kit::FakeForm& form, RECT const& place,
                       std::wstring const& name)
    : CommandButton(library, form, kQvFlatCommandClass, __uuidof(_qvFlatCommand), kQvFlatCommandEvents, place,
                    name)
{}

void FlatButton::assign(SavedRow const& row)
{
    if (!row.isObject())
        EXPECT_EQ(kit::putByName(*dual(), row.name, row.other).result, S_OK) << kit::narrow(row.name);
    else if (std::wstring(row.name) == L"Font")
        setFont(kit::newFont(L"Tahoma", 33, true).get());
    else
        EXPECT_EQ(dual()->putref_MouseIcon(kit::newBitmapPicture(7, 5, RGB(1, 2, 3)).get()), S_OK);
}

void FlatButton::assignAll()
{
    for (SavedRow const& row : savedRows())
        assign(row);
}

std::vector<SavedRow> const& savedRows()
{
    static std::vector<SavedRow> const rows{
        {L"BackColor", Variant::ofLong(0x010203)},
        {L"ForeColor", Variant::ofLong(0x020304)},
        {L"Enabled", Variant::ofBool(false)},
        {L"Font", {}},
        {L"BorderStyle", Variant::ofShort(0)},
        {L"BorderColor", Variant::ofLong(0x030405)},
        {L"HotForeColor", Variant::ofLong(0x040506)},
        {L"PressedForeColor", Variant::ofLong(0x050607)},
        {L"HotBackColor", Variant::ofLong(0x060708)},
        {L"PressedBackColor", Variant::ofLong(0x070809)},
        {L"HotBorderColor", Variant::ofLong(0x08090A)},
        {L"PressedBorderColor", Variant::ofLong(0x090A0B)},
        {L"BorderWidth", Variant::ofShort(2)},
        {L"HotBorderWidth", Variant::ofShort(3)},
        {L"PressedBorderWidth", Variant::ofShort(4)},
        {L"DisabledForeColor", Variant::ofLong(0x0A0B0C)},
        {L"Caption", Variant::ofString(L"&Save")},
        {L"CentreCaption", Variant::ofBool(true)},
        {L"CaptionIndent", Variant::ofShort(12)},
        {L"MousePointer", Variant::ofShort(99)},
        {L"MouseIcon", {}},
        {L"ShowFocusRectangle", Variant::ofBool(false)},
        {L"OfficeXPColors", Variant::ofBool(true)},
    };
    return rows;
}

std::vector<SavedRow> savedValues()
{
    std::vector<SavedRow> values;
    std::ranges::remove_copy_if(savedRows(), std::back_inserter(values), &SavedRow::isObject);
    return values;
}

std::vector<std::wstring> savedNames()
{
    std::vector<std::wstring> names;
    std::ranges::transform(savedRows(), std::back_inserter(names), &SavedRow::name);
    return names;
}

std::vector<std::string> stateOf(FlatButton const& button)
{
    std::vector<std::wstring> names = savedNames();
    names.push_back(L"ToolTipText");
    return kit::textsByName(*button.dual(), names);
}

ShownButton::ShownButton(kit::Library const& library, kit::FakeForm& form, RECT const& place)
    : FlatButton(library, form, place)
{
    start();
    setCaption(L"");
    kit::pumpPending();
}

std::string ShownButton::differencesFrom(Look const& look) const
{
    kit::Canvas const shown(window());
    kit::Canvas expected(shown.width(), shown.height());
    paint(expected, look, *font().get());
    return kit::differences(expected, shown);
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

} // namespace quillet::flat
