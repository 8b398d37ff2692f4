// The fonts page: a sample, and the system's dialog to choose another font.
#include "base/Bstr.h"
#include "browse/PageIds.h"
#include "pages/CommonDialogs.h"
#include "pages/ListPage.h"
#include "pages/PageClass.h"

#include <olectl.h>
#include <windows.h>

#include <string>

namespace quillet {

namespace {

constexpr WORD kName = 110;
constexpr int kTenthsPerPoint = 10;
constexpr LONGLONG kCurrencyUnit = 10000;

class FontsPage final : public ListPage {
public:
    FontsPage() noexcept : ListPage(L"Fonts", ValueKind::Font) {}

protected:
    void fillBeside(PageWindow& window) override;
    void showValue() override;
    void choose() override;
    void drawSample(HDC dc, RECT const& place) override;

private:
    ComPtr<IFont> font() const { return query<IFont>(shown(chosen()).toObject().get()); }
    HFONT fontHandle() const;
};

/// A new font object like what the dialog answered.
ComPtr<IFontDisp> fontOf(LOGFONTW const& shape, int tenthsOfPoints)
{
    FONTDESC description = {};
    description.cbSizeofstruct = sizeof(description);
    description.lpstrName = const_cast<LPOLESTR>(shape.lfFaceName);
    description.cySize.int64 = tenthsOfPoints * kCurrencyUnit / kTenthsPerPoint;
    description.sWeight = static_cast<SHORT>(shape.lfWeight);
    description.sCharset = shape.lfCharSet;
    description.fItalic = shape.lfItalic;
    description.fUnderline = shape.lfUnderline;
    description.fStrikethrough = shape.lfStrikeOut;
    ComPtr<IFontDisp> font;
    check(::OleCreateFontIndirect(&description, IID_IFontDisp, reinterpret_cast<void**>(font.put())));
    return font;
}

std::wstring describe(IFont& font)
{
    Bstr name;
    Variant size;
    check(font.get_Name(name.put()));
    check(font.get_Size(&size.address()->cyVal));
    size.address()->vt = VT_CY;
    return std::wstring(name.view()) + L", " + std::wstring(size.toString().view()) + L" pt";
}

void FontsPage::fillBeside(PageWindow& window)
{
    window.add(L"STATIC", L"", SS_LEFT | SS_NOPREFIX, kName, {kBeside, 4, 134, 9});
    addSample(window, {kBeside, 16, 134, 68});
    addChooser(window, L"&Choose...");
}

void FontsPage::showValue()
{
    if (properties().empty())
        return;
    auto const shown = font();
    ::SetWindowTextW(window().control(kName), shown ? describe(*shown.get()).c_str() : L"");
}

HFONT FontsPage::fontHandle() const
{
    HFONT handle = nullptr;
    if (auto const shown = font())
        shown->get_hFont(&handle);
    return handle;
}

void FontsPage::choose()
{
    LOGFONTW shape = {};
    if (HFONT const handle = fontHandle())
        ::GetObjectW(handle, sizeof(shape), &shape);
    CHOOSEFONTW dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = dialogOwner();
    dialog.lpLogFont = &shape;
    dialog.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_EFFECTS | CF_FORCEFONTEXIST;
    if (chooseFont(dialog))
        changeChosen(Variant::ofDispatch(fontOf(shape, dialog.iPointSize).get()));
}

void FontsPage::drawSample(HDC dc, RECT const& place)
{
    HFONT const handle = fontHandle();
    if (!handle)
        return;
    SelectScope const selected(dc, handle);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
    RECT at = place;
    ::DrawTextW(dc, L"AaBbYyZz 123", -1, &at, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

} // namespace

constinit PageClass const kFontsPage = {kFontsPageClass, &createPage<FontsPage>,
                                        L"Quillet fonts property page"};

} // namespace quillet
