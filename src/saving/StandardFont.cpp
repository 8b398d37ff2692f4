// Standard font objects of a control's own.
#include "saving/StandardFont.h"

#include "base/Handles.h"
#include "base/RunTimeError.h"
#include "base/Scale.h"
#include "drawing/AnsiText.h"

#include <olectl.h>

namespace quillet {

ComPtr<IFont> copyOfFont(IUnknown* font) noexcept
{
    auto const original = query<IFont>(font);
    ComPtr<IFont> copy;
    if (!original || FAILED(original->Clone(copy.put())))
        return {};
    return copy;
}

namespace {

ComPtr<IFont> newFont(FONTDESC description)
{
    description.cbSizeofstruct = sizeof(description);
    ComPtr<IFont> font;
    check(::OleCreateFontIndirect(&description, IID_IFont, reinterpret_cast<void**>(font.put())));
    return font;
}

} // namespace

ComPtr<IFont> unloadedFont()
{
    FONTDESC description = {};
    description.lpstrName = const_cast<LPOLESTR>(L"MS Sans Serif");
    description.cySize.int64 = 8 * 10000LL;
    description.sWeight = FW_NORMAL;
    return newFont(description);
}

ComPtr<IFont> systemFont()
{
    LOGFONTW shape = {};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(shape), &shape);

    FONTDESC description = {};
    description.lpstrName = shape.lfFaceName;
    // Points times 10,000, from a height in pixels (negative: of the characters alone).
    description.cySize.int64 =
        static_cast<LONGLONG>(::labs(shape.lfHeight)) * 72 * 10000 / screenResolution().y;
    description.sWeight = static_cast<SHORT>(shape.lfWeight);
    description.sCharset = shape.lfCharSet;
    return newFont(description);
}

bool equalFonts(IFont* a, IFont* b) noexcept
{
    if (a == b)
        return true;
    if (!a || !b)
        return false;
    if (a->IsEqual(b) == S_OK)
        return true;
    // A font takes the name and character set that the system really has when it is first used.
    HFONT used = nullptr;
    a->get_hFont(&used);
    b->get_hFont(&used);
    return a->IsEqual(b) == S_OK;
}

long textWidth(IFont& font, std::wstring_view text)
{
    HFONT handle = nullptr;
    check(font.get_hFont(&handle));
    UniqueMemoryDc const dc(::CreateCompatibleDC(nullptr));
    SelectScope const selected(dc.get(), handle);
    return AnsiText(text).extent(dc.get()).cx;
}

} // namespace quillet
