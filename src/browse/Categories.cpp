// The headings under which a property browser shows properties.
#include "browse/Categories.h"

namespace quillet {

namespace {

struct Heading {
    Category category;
    wchar_t const* name;
};
constexpr Heading kHeadings[] = {
    {Category::Misc, L"Misc"},         {Category::Font, L"Font"},
    {Category::Position, L"Position"}, {Category::Appearance, L"Appearance"},
    {Category::Behavior, L"Behavior"}, {Category::Text, L"Text"},
};

struct Placement {
    std::wstring_view property;
    Category category;
};
constexpr Placement kPlacements[] = {
    {L"Font", Category::Font},
    {L"CheckedFont", Category::Font},
    {L"Caption", Category::Text},
    {L"ToolTipText", Category::Text},
    {L"AutoSizeWidth", Category::Position},
    {L"BorderStyle", Category::Appearance},
    {L"BorderWidth", Category::Appearance},
    {L"HotBorderWidth", Category::Appearance},
    {L"PressedBorderWidth", Category::Appearance},
    {L"CentreCaption", Category::Appearance},
    {L"CaptionIndent", Category::Appearance},
    {L"OffsetPressed", Category::Appearance},
    {L"OfficeXPColors", Category::Appearance},
    {L"ShowFocusRectangle", Category::Appearance},
    {L"Image", Category::Appearance},
    {L"DisabledImage", Category::Appearance},
    {L"HotImage", Category::Appearance},
    {L"PressedImage", Category::Appearance},
    {L"Active", Category::Behavior},
    {L"CheckButton", Category::Behavior},
    {L"Checked", Category::Behavior},
    {L"Enabled", Category::Behavior},
    {L"MouseIcon", Category::Behavior},
    {L"MousePointer", Category::Behavior},
    {L"Value", Category::Behavior},
};

} // namespace

Category categoryOf(std::wstring_view property) noexcept
{
    if (property.ends_with(L"Color"))
        return Category::Appearance;
    for (Placement const& row : kPlacements)
        if (row.property == property)
            return row.category;
    return Category::Misc;
}

wchar_t const* nameOf(Category category) noexcept
{
    for (Heading const& row : kHeadings)
        if (row.category == category)
            return row.name;
    return nullptr;
}

} // namespace quillet
