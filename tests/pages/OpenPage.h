// One property page open in a window, with buttons to edit, and a help viewer that records what it is to
// show.
#pragma once

#include "kit/ControlTest.h"
#include "kit/Counterpart.h"
#include "kit/HostWindow.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <commctrl.h>
#include <ocidl.h>
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillet::pages {

/// Counts what the page tells its frame.
class PageSite final : public kit::Counterpart<IPropertyPageSite> {
public:
    int dirty = 0;

    STDMETHODIMP OnStatusChange(DWORD flags) override
    {
        dirty += (flags & PROPPAGESTATUS_DIRTY) ? 1 : 0;
        return S_OK;
    }
    STDMETHODIMP GetLocaleID(LCID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetPageContainer(IUnknown**) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(MSG*) override { return S_FALSE; }
};

class OpenPage {
public:
    OpenPage(kit::Library const& library, CLSID const& page, int buttons = 1);
    ~OpenPage();
    OpenPage(OpenPage const&) = delete;
    OpenPage& operator=(OpenPage const&) = delete;

    IPropertyPage2* operator->() const noexcept { return m_page.get(); }
    _qvFlatCommand& button(int index = 0) const noexcept
    {
        return *m_buttons.at(static_cast<size_t>(index)).get();
    }
    PageSite& site() noexcept { return *m_site.get(); }
    HWND parent() const noexcept { return m_window.handle(); }

    void setObjects();
    HRESULT open();
    /// For one control of any class, which is edited instead of the buttons.
    HRESULT open(IUnknown* control);

    /// The page's window, and its controls: the field of a property, a button by its text, the list.
    HWND window() const;
    HWND fieldOf(std::wstring const& property) const;
    HWND named(std::wstring const& text) const;
    HWND firstOf(wchar_t const* windowClass) const;

private:
    HRESULT show();

    kit::HostWindow m_window{40, 40, 500, 300};
    ComPtr<PageSite> m_site = kit::make<PageSite>();
    ComPtr<IPropertyPage2> m_page;
    std::vector<ComPtr<_qvFlatCommand>> m_buttons;
};

std::wstring textOf(HWND window);
/// Chooses an entry of a list or of a combination box as a user does: its parent is told.
void choose(HWND list, std::wstring const& entry);

struct HelpCall {
    HWND caller = nullptr;
    std::wstring file;
    UINT command = 0;
    DWORD_PTR topic = 0;
};

/// While it lives, the component that loads the system's help viewer gets this one. One at a time.
class FakeHelp {
public:
    explicit FakeHelp(HMODULE component);
    ~FakeHelp();
    FakeHelp(FakeHelp const&) = delete;
    FakeHelp& operator=(FakeHelp const&) = delete;

    HelpCall last;
    bool shows = true; ///< whether it opens its window

private:
    HMODULE m_component;
};

} // namespace quillet::pages
