// An event as a line of text.
#include "gallery/app/EventText.h"

#include "base/Bstr.h"
#include "base/Variant.h"
#include "gallery/host/LateBoundObject.h"

namespace quillet::gallery {

namespace {

/// Numbers read the same on every machine, whatever the user's own decimal sign.
constexpr LCID kNeutralNumbers = 0x0409;

std::wstring quoted(std::wstring_view text)
{
    std::wstring result = L"\"";
    for (wchar_t const letter : text)
        result.append(letter == L'"' ? 2 : 1, letter);
    return result + L"\"";
}

std::wstring argumentText(Variant value)
{
    if (value.type() == VT_BSTR)
        return quoted(value.toString().view());
    Variant text;
    HRESULT const result =
        value.type() == VT_DISPATCH || value.type() == VT_UNKNOWN
            ? DISP_E_TYPEMISMATCH // asking an object for its default value would run its code
            : ::VariantChangeTypeEx(text.put(), value.address(), kNeutralNumbers, VARIANT_ALPHABOOL, VT_BSTR);
    return SUCCEEDED(result) ? std::wstring(text.toString().view()) : L"?";
}

} // namespace

std::wstring eventName(FormEvent const& event)
{
    ExtenderState const& state = event.control.state();
    std::wstring const index = state.index ? L"(" + std::to_wstring(*state.index) + L")" : L"";
    return state.name + index + L"." + std::wstring(event.name);
}

std::wstring eventText(FormEvent const& event)
{
    std::wstring text = eventName(event);
    Arguments const arguments(&event.arguments);
    for (unsigned i = 0; i < arguments.count(); ++i)
        text += (i == 0 ? L"(" : L", ") + argumentText(arguments.at(i));
    return arguments.count() == 0 ? text : text + L")";
}

} // namespace quillet::gallery
