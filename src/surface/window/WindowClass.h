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

    /// Registers the class, once, as described but for its name and its module. Which of the two description
    /// it is decides what character set its windows have.
    void require(WNDCLASSEXA description) const;
    void require(WNDCLASSEXW description) const;
    /// For the entry point, when the component goes.
    void unregister() const noexcept;

private:
    bool isRegistered() const noexcept;

    char m_name[40];
    wchar_t m_wideName[40];
};

} // namespace quillet
