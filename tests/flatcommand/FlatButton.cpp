// A qvFlatCommand in a form, compared with the picture that it must show, and its saved properties as the
// tests expect them.
#include "FlatButton.h"

#include <algorithm>
#include <iterator>

namespace quillet::flat {

namespace {

/// A system colour, as a signed number.
std::string sys(long index) { return std::to_string(static_cast<long>(0x80000000U) | index); }

} // namespace

FlatButton::FlatButton(kit::Library const& library, kit::FakeForm& form, RECT const& place,
                       std::wstring const& name)
    : CommandButton(library, form, kQvFlatCommandClass, __uuidof(_qvFlatCommand), kQvFlatCommandEvents, place,
                    name)
{}

ComPtr<IPictureDisp> FlatButton::mouseIcon() const
{
    ComPtr<IPictureDisp> icon;
    EXPECT_EQ(dual()->get_MouseIcon(icon.put()), S_OK);
    return icon;
}

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
        {L"BackColor", sys(0x0F), Variant::ofLong(0x010203)},
        {L"ForeColor", sys(0x12), Variant::ofLong(0x020304)},
        {L"Enabled", "-1", Variant::ofBool(false)},
        {L"Font", "", {}},
        {L"BorderStyle", "1", Variant::ofShort(0)},
        {L"BorderColor", sys(0x15), Variant::ofLong(0x030405)},
        {L"HotForeColor", sys(0x14), Variant::ofLong(0x040506)},
        {L"PressedForeColor", sys(0x14), Variant::ofLong(0x050607)},
        {L"HotBackColor", sys(0x10), Variant::ofLong(0x060708)},
        {L"PressedBackColor", sys(0x15), Variant::ofLong(0x070809)},
        {L"HotBorderColor", sys(0x15), Variant::ofLong(0x08090A)},
        {L"PressedBorderColor", sys(0x15), Variant::ofLong(0x090A0B)},
        {L"BorderWidth", "1", Variant::ofShort(2)},
        {L"HotBorderWidth", "1", Variant::ofShort(3)},
        {L"PressedBorderWidth", "1", Variant::ofShort(4)},
        {L"DisabledForeColor", sys(0x11), Variant::ofLong(0x0A0B0C)},
        {L"Caption", "", Variant::ofString(L"&Save")},
        {L"CentreCaption", "0", Variant::ofBool(true)},
        {L"CaptionIndent", "4", Variant::ofShort(12)},
        {L"MousePointer", "0", Variant::ofShort(99)},
        {L"MouseIcon", "", {}},
        {L"ShowFocusRectangle", "-1", Variant::ofBool(false)},
        {L"OfficeXPColors", "0", Variant::ofBool(true)},
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
