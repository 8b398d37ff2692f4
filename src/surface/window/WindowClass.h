// The component's own window classes: their names, and their registration at the first need.
#pragma once

#include <windows.h>

namespace quillet {

class WindowClass {
public:
    /// Window classes belong to the process: the component's address behind the kind keeps two loaded copies
    /// of it apart.
    explicit WindowClass(char const* kind) noexcept;

    char const* name() const noexcept { return m_name; }
    wchar_t const* wideName() const noexcept { return m_wideName; }

    /// Registers the class where that has not been done, as described but for its name and its module. The
    /// kind of description decides which character set its windows have.
    void require(WNDCLASSEXA const& description) const;
    void require(WNDCLASSEXW const& description) const;
    /// For the entry point, when the component goes.
    void unregister() const noexcept;

private:
    template <class Description, class Character>
    void require(Description description, Character const* name,
                 ATOM(WINAPI* registerClass)(Description const*)) const;
    bool isRegistered() const noexcept;

    char m_name[40];
    wchar_t m_wideName[40];
};

} // namespace quillet
