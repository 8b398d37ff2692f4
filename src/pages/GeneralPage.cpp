// The general page: texts, numbers and choices on the left, flags on the right.
#include "base/Bstr.h"
#include "browse/PageIds.h"
#include "pages/PageClass.h"
#include "pages/PropertyPage.h"

#include <utility>

namespace quillet {

namespace {

constexpr WORD kFirstControl = 100; ///< of the properties, in their order
constexpr int kRow = 12;            ///< dialog units from row to row
constexpr int kRowInside = 11;

class GeneralPage final : public PropertyPage {
public:
    GeneralPage() noexcept : PropertyPage(L"General") {}

protected:
    bool edits(DescribedProperty const& property) const override;
    void fill(PageWindow& window) override;
    void goTo(size_t property) override { ::SetFocus(window().control(controlOf(property))); }
    void onCommand(WORD control, WORD notification) override;

private:
    static WORD controlOf(size_t property) noexcept { return static_cast<WORD>(kFirstControl + property); }
    void addField(PageWindow& window, size_t property, int y);
    void addFlag(PageWindow& window, size_t property, int y);

    bool m_filling = false; ///< the controls are being filled: what they report is no change by the user
};

bool GeneralPage::edits(DescribedProperty const& property) const
{
    switch (property.kind) {
    case ValueKind::Text:
        return property.name != L"ToolTipText"; // the container's extender keeps it
    case ValueKind::Number:
    case ValueKind::Flag:
    case ValueKind::Choice:
        return true;
    case ValueKind::Colour:
    case ValueKind::Font:
    case ValueKind::Picture:
    case ValueKind::Other:
        break;
    }
    return false;
}

void GeneralPage::fill(PageWindow& window)
{
    m_filling = true;
    int fields = 0;
    int flags = 0;
    for (size_t i = 0; i < properties().size(); ++i)
        if (properties()[i].kind == ValueKind::Flag)
            addFlag(window, i, 1 + kRow * flags++);
        else
            addField(window, i, 1 + kRow * fields++);
    m_filling = false;
}

void GeneralPage::addField(PageWindow& window, size_t property, int y)
{
    constexpr int kOpenList = 90; // a list's height counts its open part
    DescribedProperty const& described = properties()[property];
    window.addLabel(described.name.c_str(), {4, y + 2, 66, kRowInside - 2});
    if (described.kind != ValueKind::Choice) {
        HWND const edit = window.add(L"EDIT", L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL,
                                     controlOf(property), {72, y, 78, kRowInside});
        ::SetWindowTextW(edit, std::wstring(shown(property).toString().view()).c_str());
        return;
    }
    HWND const list = window.add(L"COMBOBOX", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST,
                                 controlOf(property), {72, y, 78, kOpenList});
    long const value = shown(property).toLong();
    for (Choice const& choice : described.choices) {
        auto const at = ::SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.name.c_str()));
        if (choice.value == value)
            ::SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(at), 0);
    }
}

void GeneralPage::addFlag(PageWindow& window, size_t property, int y)
{
    HWND const box = window.add(L"BUTTON", properties()[property].name.c_str(), WS_TABSTOP | BS_AUTOCHECKBOX,
                                controlOf(property), {158, y, 90, kRowInside});
    ::SendMessageW(box, BM_SETCHECK, shown(property).toBool() ? BST_CHECKED : BST_UNCHECKED, 0);
}

std::wstring textOf(HWND edit)
{
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(edit)), L'\0');
    ::GetWindowTextW(edit, text.data(), static_cast<int>(text.size() + 1));
    return text;
}

void GeneralPage::onCommand(WORD control, WORD notification)
{
    size_t const property = static_cast<size_t>(control) - kFirstControl;
    if (m_filling || control < kFirstControl || property >= properties().size())
        return;
    HWND const changed = window().control(control);
    DescribedProperty const& described = properties()[property];
    if (described.kind == ValueKind::Flag) {
        if (notification == BN_CLICKED)
            change(property, Variant::ofBool(::SendMessageW(changed, BM_GETCHECK, 0, 0) == BST_CHECKED));
    } else if (described.kind == ValueKind::Choice) {
        auto const chosen = ::SendMessageW(changed, CB_GETCURSEL, 0, 0);
        if (notification == CBN_SELCHANGE && chosen != CB_ERR)
            change(property, Variant::ofLong(described.choices[static_cast<size_t>(chosen)].value));
    } else if (notification == EN_CHANGE)
        change(property, Variant::ofString(textOf(changed)));
}

} // namespace

constinit PageClass const kGeneralPage = {kGeneralPageClass, &createPage<GeneralPage>,
                                          L"Quillet general property page"};

} // namespace quillet
