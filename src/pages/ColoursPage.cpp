// The colours page: a colour of the desktop, or any other.
#include "pages/CommonDialogs.h"
#include "pages/Create.h"
#include "pages/ListPage.h"

#include <olectl.h>
#include <windows.h>

#include <algorithm>
#include <iterator>

namespace quillet {

namespace {

constexpr WORD kSystemColours = 110;
constexpr WORD kChooseColour = 111;

struct SystemColour {
    OLE_COLOR colour;
    wchar_t const* name;
};
constexpr SystemColour kColours[] = {
    {0x80000000, L"Scroll Bars"},
    {0x80000001, L"Desktop"},
    {0x80000002, L"Active Title Bar"},
    {0x80000003, L"Inactive Title Bar"},
    {0x80000004, L"Menu Bar"},
    {0x80000005, L"Window Background"},
    {0x80000006, L"Window Frame"},
    {0x80000007, L"Menu Text"},
    {0x80000008, L"Window Text"},
    {0x80000009, L"Active Title Bar Text"},
    {0x8000000A, L"Active Border"},
    {0x8000000B, L"Inactive Border"},
    {0x8000000C, L"Application Workspace"},
    {0x8000000D, L"Highlight"},
    {0x8000000E, L"Highlight Text"},
    {0x8000000F, L"Button Face"},
    {0x80000010, L"Button Shadow"},
    {0x80000011, L"Disabled Text"},
    {0x80000012, L"Button Text"},
    {0x80000013, L"Inactive Title Bar Text"},
    {0x80000014, L"Button Highlight"},
    {0x80000015, L"Button Dark Shadow"},
    {0x80000016, L"Button Light Shadow"},
    {0x80000017, L"ToolTip Text"},
    {0x80000018, L"ToolTip"},
};

class ColoursPage final : public ListPage {
public:
    ColoursPage() noexcept : ListPage(L"Colors", ValueKind::Colour) {}

protected:
    void fillBeside(PageWindow& window) override;
    void showValue() override;
    void onOtherCommand(WORD control, WORD notification) override;
    void drawSample(HDC dc, RECT const& place) override;

private:
    OLE_COLOR colour() const { return static_cast<OLE_COLOR>(shown(chosen()).toLong()); }
    COLORREF resolved() const;
    void choose();

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
    window.add(L"BUTTON", L"&Choose...", WS_TABSTOP | BS_PUSHBUTTON, kChooseColour, {kBeside, 90, 60, 14});
}

void ColoursPage::showValue()
{
    if (properties().empty())
        return;
    auto const row = std::ranges::find(kColours, colour(), &SystemColour::colour);
    auto const at = row == std::end(kColours) ? WPARAM(-1) : static_cast<WPARAM>(row - std::begin(kColours));
    ::SendMessageW(window().control(kSystemColours), CB_SETCURSEL, at, 0);
}

void ColoursPage::onOtherCommand(WORD control, WORD notification)
{
    if (control == kChooseColour && notification == BN_CLICKED)
        choose();
    if (control != kSystemColours || notification != CBN_SELCHANGE)
        return;
    auto const at = ::SendMessageW(window().control(kSystemColours), CB_GETCURSEL, 0, 0);
    if (at != CB_ERR)
        changeChosen(Variant::ofLong(static_cast<long>(kColours[at].colour)));
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
    dialog.hwndOwner = ::GetAncestor(window().handle(), GA_ROOT);
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

HRESULT createColoursPage(IUnknown* outer, REFIID iid, void** object) noexcept
{
    return createPage<ColoursPage>(outer, iid, object);
}

} // namespace quillet
