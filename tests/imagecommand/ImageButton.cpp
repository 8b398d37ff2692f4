// An image command button or a tool button in a form, and the saved properties of both as the tests expect
// them.
#include "ImageButton.h"

#include <algorithm>
#include <iterator>

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

SavedRow color(wchar_t const* name, long image, long tool, Effect effect)
{
    static long other = 0x010203;
    other += 0x010101;
    return {name,  VT_I4, Variant::ofLong(sys(image)), Variant::ofLong(sys(tool)), Variant::ofLong(other),
            effect};
}
SavedRow color(wchar_t const* name, long both, Effect effect) { return color(name, both, both, effect); }
SavedRow number(wchar_t const* name, short both, short other, Effect effect)
{
    return {name, VT_I2, Variant::ofShort(both), Variant::ofShort(both), Variant::ofShort(other), effect};
}
SavedRow flag(wchar_t const* name, bool image, bool tool, Effect effect)
{
    return {name, VT_BOOL, Variant::ofBool(image), Variant::ofBool(tool), {}, effect};
}
SavedRow flag(wchar_t const* name, bool both, Effect effect) { return flag(name, both, both, effect); }
SavedRow object(wchar_t const* name, Effect effect) { return {name, VT_UNKNOWN, {}, {}, {}, effect}; }

} // namespace

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

double twipsPerPixel()
{
    WindowDc const screen(nullptr);
    return 1440.0 / ::GetDeviceCaps(screen.get(), LOGPIXELSX);
}

ImageButton::ImageButton(kit::Library const& library, kit::FakeForm& form, Kind const& kind,
                         RECT const& place, std::wstring const& name)
    : CommandButton(library, form, kind.classId, kind.interfaceId, kind.eventsId, place, name)
{
    site().extender().offer(L"Width", Variant::ofLong(0));
}

bool ImageButton::isChecked() const
{
    VARIANT_BOOL checked = 0x55;
    EXPECT_EQ(dual()->get_Checked(&checked), S_OK);
    return checked != VARIANT_FALSE;
}

void ImageButton::check()
{
    makeCheckButton();
    EXPECT_EQ(dual()->put_Checked(VARIANT_TRUE), S_OK);
}

ComPtr<IFont> ImageButton::checkedFont() const
{
    ComPtr<IFontDisp> font;
    EXPECT_EQ(dual()->get_CheckedFont(font.put()), S_OK);
    return query<IFont>(font.get());
}

void ImageButton::setCheckedFont(IFont* font)
{
    EXPECT_EQ(dual()->putref_CheckedFont(query<IFontDisp>(font).get()), S_OK);
}

std::vector<SavedRow> const& savedRows()
{
    static std::vector<SavedRow> const rows{
        color(L"BackColor", kSystemLook, kRepaints),
        color(L"ForeColor", kText, kRepaints),
        flag(L"Enabled", true, kRepaints),
        object(L"Font", kMeasures),
        number(L"BorderStyle", 1, 0, kMeasures),
        color(L"LightBorderColor", kSystemDark, kSystemLight, kRepaints),
        color(L"HotForeColor", k3dHighlight, kHighlight, kNothing),
        color(L"PressedForeColor", k3dHighlight, kNothing),
        color(L"HotBackColor", kShadow, kSystemLook, kNothing),
        color(L"PressedBackColor", kSystemDark, kSystemLight, kNothing),
        color(L"HotLightBorderColor", kSystemDark, k3dHighlight, kNothing),
        color(L"PressedLightBorderColor", kSystemDark, k3dHighlight, kNothing),
        number(L"BorderWidth", 1, 2, kMeasures),
        number(L"HotBorderWidth", 1, 3, kNothing),
        number(L"PressedBorderWidth", 1, 4, kMeasures),
        color(L"DisabledForeColor", kGrey, kRepaints),
        {L"Caption", VT_BSTR, Variant::ofString(L""), Variant::ofString(L""), Variant::ofString(L"&Save"),
         kMeasures},
        flag(L"CentreCaption", false, kRepaints),
        number(L"CaptionIndent", 4, 12, kRepaints),
        number(L"MousePointer", 0, 99, kNothing),
        object(L"MouseIcon", kNothing),
        flag(L"ShowFocusRectangle", true, false, kRepaints),
        object(L"Image", kMeasures),
        object(L"DisabledImage", kRepaints),
        object(L"HotImage", kMeasures),
        object(L"PressedImage", kMeasures),
        color(L"DarkBorderColor", kSystemDark, kSystemLight, kRepaints),
        color(L"HotDarkBorderColor", kSystemDark, kShadow, kRepaints),
        color(L"DisabledDarkBorderColor", kSystemLook, kRepaints),
        color(L"PressedDarkBorderColor", kSystemDark, kShadow, kRepaints),
        color(L"DisabledLightBorderColor", kSystemLook, kRepaints),
        flag(L"CheckButton", false, kRepaints),
        flag(L"Checked", false, kRepaints),
        color(L"CheckedForeColor", k3dHighlight, kText, kNothing),
        color(L"CheckedBackColor", kSystemLight, kNothing),
        color(L"CheckedDarkBorderColor", kSystemDark, kShadow, kNothing),
        color(L"CheckedLightBorderColor", kSystemDark, k3dHighlight, kNothing),
        flag(L"AutoSizeWidth", false, kMeasures),
        object(L"CheckedFont", kNothing),
        flag(L"Active", true, kNothing),
        flag(L"OffsetPressed", false, true, kNothing),
        {L"OfficeXPColors", VT_I2, Variant::ofShort(0), Variant::ofShort(0), Variant::ofShort(-1), kRepaints},
    };
    return rows;
}

std::vector<SavedRow> savedValues()
{
    std::vector<SavedRow> values;
    std::ranges::remove_copy(savedRows(), std::back_inserter(values), VT_UNKNOWN, &SavedRow::type);
    return values;
}

std::vector<std::wstring> savedNames()
{
    std::vector<std::wstring> names;
    std::ranges::transform(savedRows(), std::back_inserter(names), &SavedRow::name);
    return names;
}

std::string valueOf(ImageButton const& button, wchar_t const* name)
{
    return kit::textByName(*button.dual(), name);
}

std::vector<std::string> stateOf(ImageButton const& button)
{
    std::vector<std::wstring> names = savedNames();
    names.push_back(L"ToolTipText");
    return kit::textsByName(*button.dual(), names);
}

} // namespace quillet::image
