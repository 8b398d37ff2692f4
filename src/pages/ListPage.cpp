// A page that edits properties of one kind: their names in a list, the chosen one's value beside it.
#include "pages/ListPage.h"

namespace quillet {

namespace {

constexpr WORD kList = 100;
constexpr WORD kSample = 101;
constexpr WORD kChooser = 102;

} // namespace

void ListPage::fill(PageWindow& window)
{
    HWND const list = window.add(L"LISTBOX", L"", WS_BORDER | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY, kList,
                                 {4, 4, 102, 102});
    for (DescribedProperty const& property : properties())
        ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(property.name.c_str()));
    ::SendMessageW(list, LB_SETCURSEL, 0, 0);
    fillBeside(window);
    showValue();
}

void ListPage::addSample(PageWindow& window, Units const& place)
{
    window.add(L"STATIC", L"", SS_OWNERDRAW, kSample, place);
}

void ListPage::addChooser(PageWindow& window, wchar_t const* label)
{
    window.add(L"BUTTON", label, WS_TABSTOP | BS_PUSHBUTTON, kChooser, {kBeside, 90, 60, 14});
}

size_t ListPage::chosen() const
{
    auto const at = ::SendMessageW(window().control(kList), LB_GETCURSEL, 0, 0);
    if (at == LB_ERR || static_cast<size_t>(at) >= properties().size())
        throw RunTimeError(E_UNEXPECTED);
    return static_cast<size_t>(at);
}

void ListPage::goTo(size_t property)
{
    ::SendMessageW(window().control(kList), LB_SETCURSEL, property, 0);
    ::SetFocus(window().control(kList));
    refresh();
}

void ListPage::changeChosen(Variant value)
{
    change(chosen(), std::move(value));
    refresh();
}

void ListPage::refresh()
{
    showValue();
    ::InvalidateRect(window().control(kSample), nullptr, TRUE);
}

void ListPage::onCommand(WORD control, WORD notification)
{
    if (properties().empty())
        return;
    if (control == kList && notification == LBN_SELCHANGE)
        refresh();
    else if (control == kChooser && notification == BN_CLICKED)
        choose();
    else
        onOtherCommand(control, notification);
}

void ListPage::onDraw(DRAWITEMSTRUCT const& item)
{
    RECT place = item.rcItem;
    ::DrawEdge(item.hDC, &place, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    ::FillRect(item.hDC, &place, ::GetSysColorBrush(COLOR_BTNFACE));
    if (!properties().empty())
        drawSample(item.hDC, place);
}

} // namespace quillet
