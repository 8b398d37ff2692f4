// A help viewer that records what it is asked to show, in the place of the system's.
#include "FakeHelp.h"

#include "drawing/ImportTable.h"

#include <string_view>

namespace quillet::pages {

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
