// A property page: what the frame that shows it calls, and the changes not yet applied.
#include "pages/PropertyPage.h"

#include "base/HelpFile.h"
#include "base/TaskMemory.h"
#include "pages/HelpViewer.h"

#include <olectl.h>

#include <algorithm>

namespace quillet {

namespace {

bool isThere(Variant const& change) noexcept { return change.get().vt != VT_EMPTY; }

} // namespace

IUnknown* PropertyPage::inheritedInterface(REFIID iid) noexcept
{
    return iid == IID_IPropertyPage ? static_cast<IPropertyPage2*>(this) : nullptr;
}

HRESULT PropertyPage::SetPageSite(IPropertyPageSite* site)
{
    if (site && m_site)
        return E_UNEXPECTED;
    m_site = site;
    return S_OK;
}

void PropertyPage::requireWindow() const
{
    if (!m_window)
        throw RunTimeError(E_UNEXPECTED);
}

HRESULT PropertyPage::Activate(HWND parent, LPCRECT place, WINBOOL)
{
    return comCall([&] {
        deref(place);
        if (m_window)
            throw RunTimeError(E_UNEXPECTED);
        auto window = std::make_unique<PageWindow>(parent, *this);
        m_window = std::move(window);
        try {
            fill(*m_window);
        } catch (...) {
            m_window.reset();
            throw;
        }
        check(Move(place));
    });
}

HRESULT PropertyPage::Deactivate()
{
    return comCall([&] {
        requireWindow();
        m_window.reset();
    });
}

HRESULT PropertyPage::GetPageInfo(PROPPAGEINFO* info)
{
    return comCall([&] {
        deref(info) = {sizeof(PROPPAGEINFO), nullptr, {0, 0}, nullptr, nullptr, 0};
        // Only a dialog can tell how many pixels a dialog unit is.
        PageWindow const measured(::GetDesktopWindow(), *this);
        RECT const size = measured.pixels(PageWindow::kPage);
        info->size = {size.right, size.bottom};
        TaskArray<LPOLESTR> texts(2);
        texts[0] = taskString(m_title);
        texts[1] = taskString(helpFilePath().c_str());
        info->pszTitle = std::exchange(texts[0], nullptr);
        info->pszHelpFile = std::exchange(texts[1], nullptr);
        info->dwHelpContext = m_objects.helpContext();
    });
}

HRESULT PropertyPage::SetObjects(ULONG count, IUnknown** objects)
{
    return comCall([&] {
        if (count > 0)
            deref(objects);
        m_objects.set(objects, count);
        m_changes.clear();
        m_properties.clear();
        m_properties = m_objects.properties();
        std::erase_if(m_properties, [this](DescribedProperty const& each) { return !edits(each); });
        m_changes.resize(m_properties.size());
    });
}

HRESULT PropertyPage::Show(UINT command)
{
    return comCall([&] {
        requireWindow();
        ::ShowWindow(m_window->handle(), static_cast<int>(command));
    });
}

HRESULT PropertyPage::Move(LPCRECT place)
{
    return comCall([&] {
        RECT const& at = deref(place);
        requireWindow();
        ::MoveWindow(m_window->handle(), at.left, at.top, at.right - at.left, at.bottom - at.top, TRUE);
    });
}

HRESULT PropertyPage::IsPageDirty() { return std::ranges::any_of(m_changes, isThere) ? S_OK : S_FALSE; }

HRESULT PropertyPage::Apply()
{
    return comCall([&] { apply(); });
}

/// A change that an object refuses stays, so that the user can mend it.
void PropertyPage::apply()
{
    for (size_t i = 0; i < m_changes.size(); ++i) {
        if (!isThere(m_changes[i]))
            continue;
        std::wstring const& name = m_properties[i].name;
        std::wstring reason = m_objects.put(name, m_changes[i]);
        if (!reason.empty()) {
            goTo(i);
            ::MessageBoxW(m_window ? m_window->handle() : nullptr, reason.insert(0, name + L": ").c_str(),
                          m_title, MB_OK | MB_ICONEXCLAMATION);
            throw RunTimeError(E_FAIL);
        }
        m_changes[i] = {};
    }
}

/// The folder is where the frame supposes the help file. Where ours does not open, the frame may try.
HRESULT PropertyPage::Help(LPCOLESTR)
{
    return comCall([&] {
        HWND const frame = m_window ? ::GetAncestor(m_window->handle(), GA_ROOT) : nullptr;
        if (!showHelpTopic(frame, m_objects.helpContext()))
            throw RunTimeError(E_FAIL);
    });
}

HRESULT PropertyPage::TranslateAccelerator(MSG* message)
{
    return comCall([&] {
        deref(message);
        bool const isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
        return m_window && isKey && ::IsDialogMessageW(m_window->handle(), message) ? S_OK : S_FALSE;
    });
}

HRESULT PropertyPage::EditProperty(DISPID id)
{
    return comCall([&] {
        requireWindow();
        auto const found = std::ranges::find(m_properties, id, &DescribedProperty::id);
        if (found == m_properties.end())
            throw RunTimeError(E_INVALIDARG);
        goTo(static_cast<size_t>(found - m_properties.begin()));
    });
}

Variant PropertyPage::shown(size_t property) const
{
    Variant const& changed = m_changes[property];
    return isThere(changed) ? changed : m_objects.get(m_properties[property].name);
}

void PropertyPage::change(size_t property, Variant value)
{
    m_changes[property] = std::move(value);
    if (ComPtr<IPropertyPageSite> const site = m_site)
        site->OnStatusChange(PROPPAGESTATUS_DIRTY | PROPPAGESTATUS_VALIDATE);
}

} // namespace quillet
