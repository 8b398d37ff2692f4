// One property page open in a window, with buttons to edit, and a help viewer that records what it is to
// show.
#include "OpenPage.h"

#include "base/RunTimeError.h"
#include "drawing/ImportTable.h"

#include <string_view>

namespace quillet::pages {

OpenPage::OpenPage(kit::Library const& library, CLSID const& page, int buttons)
    : m_page(query<IPropertyPage2>(library.create(page).get()))
{
    for (int i = 0; i < buttons; ++i)
        m_buttons.push_back(query<_qvFlatCommand>(library.create(kQvFlatCommandClass).get()));
    if (m_page)
        m_page->SetPageSite(m_site.get());
}

OpenPage::~OpenPage()
{
    if (!m_page)
        return;
    m_page->Deactivate();
    m_page->SetObjects(0, nullptr);
    m_page->SetPageSite(nullptr);
}

void OpenPage::setObjects()
{
    std::vector<IUnknown*> objects;
    for (auto const& button : m_buttons)
        objects.push_back(button.get());
    EXPECT_EQ(m_page->SetObjects(static_cast<ULONG>(objects.size()), objects.data()), S_OK);
}

HRESULT OpenPage::open()
{
    setObjects();
    return show();
}

HRESULT OpenPage::open(IUnknown* control)
{
    EXPECT_EQ(m_page->SetObjects(1, &control), S_OK);
    return show();
}

HRESULT OpenPage::show()
{
    RECT const place{10, 20, 450, 260};
    HRESULT const result = m_page->Activate(parent(), &place, FALSE);
    if (SUCCEEDED(result))
        m_page->Show(SW_SHOW);
    return result;
}

HWND OpenPage::window() const { return ::GetWindow(parent(), GW_CHILD); }

/// A property's field stands behind its label; a flag's is its own.
HWND OpenPage::fieldOf(std::wstring const& property) const
{
    HWND const label = named(property);
    wchar_t kind[32] = L"";
    ::GetClassNameW(label, kind, 32);
    return ::lstrcmpiW(kind, L"Static") == 0 ? ::GetWindow(label, GW_HWNDNEXT) : label;
}

HWND OpenPage::named(std::wstring const& text) const
{
    for (HWND each = ::GetWindow(window(), GW_CHILD); each; each = ::GetWindow(each, GW_HWNDNEXT))
        if (textOf(each) == text)
            return each;
    ADD_FAILURE() << "the page has no control with that text";
    return nullptr;
}

HWND OpenPage::firstOf(wchar_t const* windowClass) const
{
    return ::FindWindowExW(window(), nullptr, windowClass, nullptr);
}

std::wstring textOf(HWND window)
{
    wchar_t text[128] = L"";
    ::GetWindowTextW(window, text, 128);
    return text;
}

void choose(HWND list, std::wstring const& entry)
{
    wchar_t kind[32] = L"";
    ::GetClassNameW(list, kind, 32);
    bool const isList = ::lstrcmpiW(kind, L"ListBox") == 0;
    auto const found = ::SendMessageW(list, isList ? LB_SELECTSTRING : CB_SELECTSTRING,
                                      static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(entry.c_str()));
    ASSERT_NE(found, LB_ERR) << "the list has no such entry";
    ::SendMessageW(::GetParent(list), WM_COMMAND,
                   MAKEWPARAM(::GetDlgCtrlID(list), isList ? LBN_SELCHANGE : CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(list));
}

namespace {

FakeHelp* s_viewer = nullptr;

HWND WINAPI show(HWND caller, LPCWSTR file, UINT command, DWORD_PTR topic)
{
    s_viewer->last = {caller, file, command, topic};
    return s_viewer->shows ? ::GetDesktopWindow() : nullptr;
}

HMODULE WINAPI loadLibrary(LPCWSTR name)
{
    return std::wstring_view(name) == L"hhctrl.ocx" ? ::GetModuleHandleW(nullptr) : ::LoadLibraryW(name);
}

FARPROC WINAPI procAddress(HMODULE library, LPCSTR name)
{
    if (library != ::GetModuleHandleW(nullptr) || std::string_view(name) != "HtmlHelpW")
        return ::GetProcAddress(library, name);
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&show));
}

void exchange(HMODULE component, void* load, void* find)
{
    forEachImport(component, [&](char const* name, void** slot) {
        if (std::string_view(name) == "LoadLibraryW")
            exchangeImport(slot, load);
        if (std::string_view(name) == "GetProcAddress")
            exchangeImport(slot, find);
    });
}

} // namespace

FakeHelp::FakeHelp(HMODULE component) : m_component(component)
{
    s_viewer = this;
    exchange(component, reinterpret_cast<void*>(&loadLibrary), reinterpret_cast<void*>(&procAddress));
}

FakeHelp::~FakeHelp()
{
    exchange(m_component, reinterpret_cast<void*>(&::LoadLibraryW),
             reinterpret_cast<void*>(&::GetProcAddress));
    s_viewer = nullptr;
}

} // namespace quillet::pages
