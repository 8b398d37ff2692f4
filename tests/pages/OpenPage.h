// One property page open in a window, with buttons to edit, and a help viewer that records what it is to
// show.
#pragma once

#include "base/RunTimeError.h"
#include "drawing/ImportTable.h"
#include "kit/ControlTest.h"
#include "kit/Counterpart.h"
#include "kit/HostWindow.h"
#include "kit/NotCopied.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <commctrl.h>
#include <ocidl.h>
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
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

inline std::wstring textOf(HWND window)
{
    wchar_t text[128] = L"";
    ::GetWindowTextW(window, text, 128);
    return text;
}

inline bool isOfKind(HWND window, wchar_t const* windowClass)
{
    wchar_t kind[32] = L"";
    ::GetClassNameW(window, kind, 32);
    return ::lstrcmpiW(kind, windowClass) == 0;
}

class OpenPage : kit::NotCopied {
public:
    OpenPage(kit::Library const& library, CLSID const& page, int buttons = 1)
        : m_page(query<IPropertyPage2>(library.create(page).get()))
    {
        for (int i = 0; i < buttons; ++i)
            m_buttons.push_back(query<_qvFlatCommand>(library.create(kQvFlatCommandClass).get()));
        if (m_page)
            m_page->SetPageSite(m_site.get());
    }
    ~OpenPage()
    {
        if (!m_page)
            return;
        m_page->Deactivate();
        m_page->SetObjects(0, nullptr);
        m_page->SetPageSite(nullptr);
    }

    IPropertyPage2* operator->() const noexcept { return m_page.get(); }
    _qvFlatCommand& button(int index = 0) const noexcept
    {
        return *m_buttons.at(static_cast<size_t>(index)).get();
    }
    PageSite& site() noexcept { return *m_site.get(); }
    HWND parent() const noexcept { return m_window.handle(); }

    HRESULT open()
    {
        std::vector<IUnknown*> objects;
        for (auto const& button : m_buttons)
            objects.push_back(button.get());
        return openOn(objects);
    }
    /// For one control of any class, which is edited instead of the buttons.
    HRESULT open(IUnknown* control) { return openOn({control}); }

    /// The page's window, and its controls: the field of a property, a button by its text, the list.
    HWND window() const { return ::GetWindow(parent(), GW_CHILD); }
    /// A property's field stands behind its label; a flag's is its own.
    HWND fieldOf(std::wstring const& property) const
    {
        HWND const label = named(property);
        return isOfKind(label, L"Static") ? ::GetWindow(label, GW_HWNDNEXT) : label;
    }
    HWND named(std::wstring const& text) const
    {
        for (HWND each = ::GetWindow(window(), GW_CHILD); each; each = ::GetWindow(each, GW_HWNDNEXT))
            if (textOf(each) == text)
                return each;
        ADD_FAILURE() << "the page has no control with that text";
        return nullptr;
    }
    HWND firstOf(wchar_t const* windowClass) const
    {
        return ::FindWindowExW(window(), nullptr, windowClass, nullptr);
    }

private:
    HRESULT openOn(std::vector<IUnknown*> objects)
    {
        EXPECT_EQ(m_page->SetObjects(static_cast<ULONG>(objects.size()), objects.data()), S_OK);
        RECT const place{10, 20, 450, 260};
        HRESULT const result = m_page->Activate(parent(), &place, FALSE);
        if (SUCCEEDED(result))
            m_page->Show(SW_SHOW);
        return result;
    }

    kit::HostWindow m_window{40, 40, 500, 300};
    ComPtr<PageSite> m_site = kit::make<PageSite>();
    ComPtr<IPropertyPage2> m_page;
    std::vector<ComPtr<_qvFlatCommand>> m_buttons;
};

/// Chooses an entry of a list or of a combination box as a user does: its parent is told.
inline void choose(HWND list, std::wstring const& entry)
{
    bool const isList = isOfKind(list, L"ListBox");
    auto const found = ::SendMessageW(list, isList ? LB_SELECTSTRING : CB_SELECTSTRING,
                                      static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(entry.c_str()));
    ASSERT_NE(found, LB_ERR) << "the list has no such entry";
    ::SendMessageW(::GetParent(list), WM_COMMAND,
                   MAKEWPARAM(::GetDlgCtrlID(list), isList ? LBN_SELCHANGE : CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(list));
}

/// While it lives, the component that loads the system's help viewer gets this one. One at a time.
class FakeHelp : kit::NotCopied {
public:
    explicit FakeHelp(HMODULE component) : m_component(component)
    {
        s_viewer = this;
        exchange(reinterpret_cast<void*>(&loadLibrary), reinterpret_cast<void*>(&procAddress));
    }
    ~FakeHelp()
    {
        exchange(reinterpret_cast<void*>(&::LoadLibraryW), reinterpret_cast<void*>(&::GetProcAddress));
        s_viewer = nullptr;
    }

    /// What it was last asked for.
    struct {
        HWND caller = nullptr;
        std::wstring file;
        UINT command = 0;
        DWORD_PTR topic = 0;
    } last;
    bool shows = true; ///< whether it opens its window

private:
    static HWND WINAPI show(HWND caller, LPCWSTR file, UINT command, DWORD_PTR topic)
    {
        s_viewer->last = {caller, file, command, topic};
        return s_viewer->shows ? ::GetDesktopWindow() : nullptr;
    }
    static HMODULE WINAPI loadLibrary(LPCWSTR name)
    {
        return std::wstring_view(name) == L"hhctrl.ocx" ? ::GetModuleHandleW(nullptr) : ::LoadLibraryW(name);
    }
    static FARPROC WINAPI procAddress(HMODULE library, LPCSTR name)
    {
        if (library != ::GetModuleHandleW(nullptr) || std::string_view(name) != "HtmlHelpW")
            return ::GetProcAddress(library, name);
        return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&show));
    }
    void exchange(void* load, void* find) const
    {
        forEachImport(m_component, [&](char const* name, void** slot) {
            if (std::string_view(name) == "LoadLibraryW")
                exchangeImport(slot, load);
            if (std::string_view(name) == "GetProcAddress")
                exchangeImport(slot, find);
        });
    }

    inline static FakeHelp* s_viewer = nullptr;
    HMODULE m_component;
};

} // namespace quillet::pages
