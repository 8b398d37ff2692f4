// Looks up what a form says of an object, as the type that the reader of it needs.
#include "gallery/form/FormValues.h"

#include "gallery/form/Names.h"

#include <limits>

namespace quillet::gallery {

std::wstring textOf(FormValue const& value, std::wstring_view fallback)
{
    auto const* const text = std::get_if<std::wstring>(&value);
    return text ? *text : std::wstring(fallback);
}

double numberOf(FormValue const& value, double fallback) noexcept
{
    if (auto const* const whole = std::get_if<long>(&value))
        return *whole;
    auto const* const real = std::get_if<double>(&value);
    return real ? *real : fallback;
}

long wholeOf(FormValue const& value, long fallback) noexcept
{
    if (auto const* const whole = std::get_if<long>(&value))
        return *whole;
    auto const* const real = std::get_if<double>(&value);
    // Beyond the range the conversion has no defined answer.
    constexpr double kLimit = std::numeric_limits<long>::max();
    return real && *real > -kLimit && *real < kLimit ? static_cast<long>(*real) : fallback;
}

FormValue const* FormValues::find(std::wstring_view name) const noexcept
{
    for (FormProperty const& property : m_node.properties)
        if (sameName(property.name, name))
            return &property.value;
    return nullptr;
}

PropertyBlock const* FormValues::findBlock(std::wstring_view name) const noexcept
{
    for (PropertyBlock const& block : m_node.blocks)
        if (sameName(block.name, name))
            return &block;
    return nullptr;
}

std::wstring FormValues::text(std::wstring_view name, std::wstring_view fallback) const
{
    FormValue const* const value = find(name);
    return value ? textOf(*value, fallback) : std::wstring(fallback);
}

double FormValues::number(std::wstring_view name, double fallback) const noexcept
{
    FormValue const* const value = find(name);
    return value ? numberOf(*value, fallback) : fallback;
}

long FormValues::whole(std::wstring_view name, long fallback) const noexcept
{
    FormValue const* const value = find(name);
    return value ? wholeOf(*value, fallback) : fallback;
}

} // namespace quillet::gallery
