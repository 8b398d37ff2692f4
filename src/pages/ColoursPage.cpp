// The colours page: a colour of the desktop, or any other.
#include "browse/PageIds.h"
#include "drawing/SystemColours.h"
#include "pages/CommonDialogs.h"
#include "pages/ListPage.h"
#include "pages/PageClass.h"

#include <olectl.h>
#include <windows.h>

#include <algorithm>
#include <iterator>

namespace quillet {

namespace {

constexpr WORD kSystemColours = 110;

struct SystemColour {
    int index;
    wchar_t const* name;
};
constexpr SystemColour kColours[] = {
    {COLOR_SCROLLBAR, L"Scroll Bars"},
    {COLOR_BACKGROUND, L"Desktop"},
    {COLOR_ACTIVECAPTION, L"Active Title Bar"},
    {COLOR_INACTIVECAPTION, L"Inactive Title Bar"},
    {COLOR_MENU, L"Menu Bar"},
    {COLOR_WINDOW, L"Window Background"},
    {COLOR_WINDOWFRAME, L"Window Frame"},
    {COLOR_MENUTEXT, L"Menu Text"},
    {COLOR_WINDOWTEXT, L"Window Text"},
    {COLOR_CAPTIONTEXT, L"Active Title Bar Text"},
    {COLOR_ACTIVEBORDER, L"Active Border"},
    {COLOR_INACTIVEBORDER, L"Inactive Border"},
    {COLOR_APPWORKSPACE, L"Application Workspace"},
    {COLOR_HIGHLIGHT, L"Highlight"},
    {COLOR_HIGHLIGHTTEXT, L"Highlight Text"},
    {COLOR_BTNFACE, L"Button Face"},
    {COLOR_BTNSHADOW, L"Button Shadow"},
    {COLOR_GRAYTEXT, L"Disabled Text"},
    {COLOR_BTNTEXT, L"Button Text"},
    {COLOR_INACTIVECAPTIONTEXT, L"Inactive Title Bar Text"},
    {COLOR_3DHILIGHT, L"Button Highlight"},
    {COLOR_3DDKSHADOW, L"Button Dark Shadow"},
    {COLOR_3DLIGHT, L"Button Light Shadow"},
    {COLOR_INFOTEXT, L"ToolTip Text"},
    {COLOR_INFOBK, L"ToolTip"},
};

class ColoursPage final : public ListPage {
public:
    ColoursPage() noexcept : ListPage(L"Colors", ValueKind::Colour) {}

protected:
    void fillBeside(PageWindow& window) override;
    void showValue() override;
    void choose() override;
    void onOtherCommand(WORD control, WORD notification) override;
    void drawSample(HDC dc, RECT const& place) override;

private:
    OLE_COLOR colour() const { return static_cast<OLE_COLOR>(shown(chosen()).toLong()); }
    COLORREF resolved() const;

    COLORREF m_custom[16] = {}; ///< what the user mixed while the page lives
};

void ColoursPage::fillBeside(PageWindow& window)
{
    window.addLabel(L"System color", {kBeside, 4, 134, 9});
    HWND const list = window.add(L"COMBOBOX", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, kSystemColours,
                                 {kBeside, 14, 134, 100});
    for (SystemColour const& row : kColours)
        ::SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.name));
    addSample(window, {kBeside, 34, 134, 50});
    addChooser(window, L"&Choose...");
}

void ColoursPage::showValue()
{
    if (properties().empty())
        return;
    auto const row = std::ranges::find(
        kColours, colour(), [](SystemColour const& each) { return colour::ofDesktop(each.index); });
    auto const at = row == std::end(kColours) ? WPARAM(-1) : static_cast<WPARAM>(row - std::begin(kColours));
    ::SendMessageW(window().control(kSystemColours), CB_SETCURSEL, at, 0);
}

void ColoursPage::onOtherCommand(WORD control, WORD notification)
{
    if (control != kSystemColours || notification != CBN_SELCHANGE)
        return;
    auto const at = ::SendMessageW(window().control(kSystemColours), CB_GETCURSEL, 0, 0);
    if (at != CB_ERR)
        changeChosen(Variant::ofLong(static_cast<long>(colour::ofDesktop(kColours[at].index))));
}

COLORREF ColoursPage::resolved() const
{
    COLORREF rgb = 0;
    ::OleTranslateColor(colour(), nullptr, &rgb);
    return rgb;
}

void ColoursPage::choose()
{
    CHOOSECOLORW dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = dialogOwner();
    dialog.rgbResult = resolved();
    dialog.lpCustColors = m_custom;
    dialog.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (chooseColour(dialog))
        changeChosen(Variant::ofLong(static_cast<long>(dialog.rgbResult)));
}

void ColoursPage::drawSample(HDC dc, RECT const& place)
{
    UniqueBrush const brush(::CreateSolidBrush(resolved()));
    ::FillRect(dc, &place, brush.get());
}

} // namespace

constinit PageClass const kColoursPage = {kColoursPageClass, &createPage<ColoursPage>,
                                          L"Quillet colors property page"};

} // namespace quillet
