// Standard font objects, as forms describe them.
#include "gallery/form/Fonts.h"

#include "base/RunTimeError.h"
#include "gallery/form/FormValues.h"
#include "gallery/form/Names.h"

#include <algorithm>
#include <cmath>

namespace quillet::gallery {

namespace {

/// CY counts ten-thousandths.
constexpr double kCurrencyUnits = 10000;
constexpr double kSmallestPoints = 1;
constexpr double kLargestPoints = 2000;

} // namespace

FontFace fontFaceOf(PropertyBlock const& block)
{
    FontFace face;
    for (FormProperty const& property : block.properties) {
        if (sameName(property.name, L"Name"))
            face.name = textOf(property.value, face.name);
        else if (sameName(property.name, L"Size"))
            face.points = numberOf(property.value, face.points);
        else if (sameName(property.name, L"Charset"))
            face.charset = static_cast<short>(wholeOf(property.value, face.charset));
        else if (sameName(property.name, L"Weight"))
            face.weight = static_cast<short>(wholeOf(property.value, face.weight));
        else if (sameName(property.name, L"Underline"))
            face.underline = wholeOf(property.value, 0) != 0;
        else if (sameName(property.name, L"Italic"))
            face.italic = wholeOf(property.value, 0) != 0;
        else if (sameName(property.name, L"Strikethrough"))
            face.strikethrough = wholeOf(property.value, 0) != 0;
    }
    return face;
}

ComPtr<IFont> makeFont(FontFace const& face)
{
    std::wstring name = face.name;
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = name.data();
    double const points = std::clamp(face.points, kSmallestPoints, kLargestPoints);
    description.cySize.int64 = std::llround(points * kCurrencyUnits);
    description.sWeight = face.weight;
    description.sCharset = face.charset;
    description.fItalic = face.italic;
    description.fUnderline = face.underline;
    description.fStrikethrough = face.strikethrough;
    ComPtr<IFont> font;
    check(::OleCreateFontIndirect(&description, __uuidof(IFont), reinterpret_cast<void**>(font.put())));
    return font;
}

HFONT handleOf(IFont* font) noexcept
{
    HFONT handle = nullptr;
    if (font && SUCCEEDED(font->get_hFont(&handle)) && handle)
        return handle;
    return static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
}

} // namespace quillet::gallery
