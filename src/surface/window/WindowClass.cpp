// The component's own window classes: their names, and their registration at the first need.
#include "surface/window/WindowClass.h"

#include "base/Module.h"
#include "base/RunTimeError.h"

namespace quillet {

WindowClass::WindowClass(char const* kind) noexcept
{
    void* const module = moduleInstance();
    ::wsprintfA(m_name, "%s:%p", kind, module);
    ::wsprintfW(m_wideName, L"%S:%p", kind, module);
}

template <class Description, class Character>
void WindowClass::require(Description description, Character const* name,
                          ATOM(WINAPI* registerClass)(Description const*)) const
{
    if (isRegistered())
        return;
    description.hInstance = moduleInstance();
    description.lpszClassName = name;
    if (!registerClass(&description))
        throw lastError();
}

void WindowClass::require(WNDCLASSEXA const& description) const
{
    require(description, m_name, &::RegisterClassExA);
}

void WindowClass::require(WNDCLASSEXW const& description) const
{
    require(description, m_wideName, &::RegisterClassExW);
}

void WindowClass::unregister() const noexcept { ::UnregisterClassA(m_name, moduleInstance()); }

bool WindowClass::isRegistered() const noexcept
{
    WNDCLASSEXA existing = {};
    existing.cbSize = sizeof(existing);
    return ::GetClassInfoExA(moduleInstance(), m_name, &existing) != FALSE;
}

} // namespace quillet
