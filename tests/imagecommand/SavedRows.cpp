// The saved properties of both classes as the tests expect them, in the order of reading and writing.
#include "SavedRows.h"

#include "Pictures.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"

namespace quillet::image {

namespace {

/// A system colour by its index.
constexpr long sys(long index) { return static_cast<long>(0x80000000U) | index; }

constexpr long kHighlight = 0x0D;
constexpr long kSystemLook = 0x0F;
constexpr long kShadow = 0x10;
constexpr long kGrey = 0x11;
constexpr long kText = 0x12;
constexpr long k3dHighlight = 0x14;
constexpr long kSystemDark = 0x15;
constexpr long kSystemLight = 0x16;

SavedRow color(wchar_t const* name, long image, long tool)
{
    static long other = 0x010203;
    other += 0x010101;
    return {name, VT_I4, Variant::ofLong(sys(image)), Variant::ofLong(sys(tool)), Variant::ofLong(other)};
}
SavedRow color(wchar_t const* name, long both) { return color(name, both, both); }
SavedRow number(wchar_t const* name, short both, short other)
{
    return {name, VT_I2, Variant::ofShort(both), Variant::ofShort(both), Variant::ofShort(other)};
}
SavedRow flag(wchar_t const* name, bool image, bool tool)
{
    return {name, VT_BOOL, Variant::ofBool(image), Variant::ofBool(tool), {}};
}
SavedRow flag(wchar_t const* name, bool both) { return flag(name, both, both); }
SavedRow object(wchar_t const* name) { return {name, VT_UNKNOWN, {}, {}, {}}; }

std::string textOfObject(IUnknown* object)
{
    if (auto const font = query<IFont>(object))
        return kit::narrow(kit::nameOf(*font.get())) + ' ' + std::to_string(kit::pointsOf(*font.get()));
    auto const picture = query<IPicture>(object);
    OLE_XSIZE_HIMETRIC width = 0;
    SHORT type = 0;
    if (!picture || FAILED(picture->get_Type(&type)) || type == 0)
        return "none";
    picture->get_Width(&width);
    return "picture " + std::to_string(type) + ' ' + std::to_string(width);
}

} // namespace

std::vector<SavedRow> const& savedRows()
{
    static std::vector<SavedRow> const rows{
        color(L"BackColor", kSystemLook),
        color(L"ForeColor", kText),
        flag(L"Enabled", true),
        object(L"Font"),
        number(L"BorderStyle", 1, 0),
        color(L"LightBorderColor", kSystemDark, kSystemLight),
        color(L"HotForeColor", k3dHighlight, kHighlight),
        color(L"PressedForeColor", k3dHighlight),
        color(L"HotBackColor", kShadow, kSystemLook),
        color(L"PressedBackColor", kSystemDark, kSystemLight),
        color(L"HotLightBorderColor", kSystemDark, k3dHighlight),
        color(L"PressedLightBorderColor", kSystemDark, k3dHighlight),
        number(L"BorderWidth", 1, 2),
        number(L"HotBorderWidth", 1, 3),
        number(L"PressedBorderWidth", 1, 4),
        color(L"DisabledForeColor", kGrey),
        {L"Caption", VT_BSTR, Variant::ofString(L""), Variant::ofString(L""), Variant::ofString(L"&Save")},
        flag(L"CentreCaption", false),
        number(L"CaptionIndent", 4, 12),
        number(L"MousePointer", 0, 99),
        object(L"MouseIcon"),
        flag(L"ShowFocusRectangle", true, false),
        object(L"Image"),
        object(L"DisabledImage"),
        object(L"HotImage"),
        object(L"PressedImage"),
        color(L"DarkBorderColor", kSystemDark, kSystemLight),
        color(L"HotDarkBorderColor", kSystemDark, kShadow),
        color(L"DisabledDarkBorderColor", kSystemLook),
        color(L"PressedDarkBorderColor", kSystemDark, kShadow),
        color(L"DisabledLightBorderColor", kSystemLook),
        flag(L"CheckButton", false),
        flag(L"Checked", false),
        color(L"CheckedForeColor", k3dHighlight, kText),
        color(L"CheckedBackColor", kSystemLight),
        color(L"CheckedDarkBorderColor", kSystemDark, kShadow),
        color(L"CheckedLightBorderColor", kSystemDark, k3dHighlight),
        flag(L"AutoSizeWidth", false),
        object(L"CheckedFont"),
        flag(L"Active", true),
        flag(L"OffsetPressed", false, true),
        {L"OfficeXPColors", VT_I2, Variant::ofShort(0), Variant::ofShort(0), Variant::ofShort(-1)},
    };
    return rows;
}

std::vector<std::wstring> savedNames()
{
    std::vector<std::wstring> names;
    for (SavedRow const& row : savedRows())
        names.push_back(row.name);
    return names;
}

std::string textOf(Variant const& value)
{
    if (value.type() == VT_BSTR)
        return kit::narrow(Bstr::viewOf(value.get().bstrVal));
    if (value.type() == VT_UI4)
        return std::to_string(static_cast<long>(value.get().ulVal));
    return std::to_string(value.toLong());
}

std::string valueOf(ImageButton const& button, wchar_t const* name)
{
    kit::Called const got = kit::getByName(*button.dual(), name);
    EXPECT_EQ(got.result, S_OK) << kit::narrow(name);
    return got.value.type() == VT_DISPATCH || got.value.type() == VT_UNKNOWN
               ? textOfObject(got.value.toObject().get())
               : textOf(got.value);
}

std::vector<std::string> stateOf(ImageButton const& button)
{
    std::vector<std::string> state;
    for (SavedRow const& row : savedRows())
        state.push_back(kit::narrow(row.name) + " = " + valueOf(button, row.name));
    state.push_back("ToolTipText = " + valueOf(button, L"ToolTipText"));
    return state;
}

} // namespace quillet::image
