// Owns one automation string.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string_view>
#include <utility>

namespace quillet {

/// Owns a counted Unicode string. A null string and an empty one mean the same.
class Bstr {
public:
    Bstr() noexcept = default;
    /// Copies; throws std::bad_alloc when there is no memory.
    explicit Bstr(std::wstring_view text);
    Bstr(Bstr const& other) : Bstr(other.view()) {}
    Bstr(Bstr&& other) noexcept : m_text(std::exchange(other.m_text, nullptr)) {}
    ~Bstr() { ::SysFreeString(m_text); }

    Bstr& operator=(Bstr other) noexcept
    {
        std::swap(m_text, other.m_text);
        return *this;
    }

    /// Takes over a string that the caller owned.
    static Bstr adopt(BSTR owned) noexcept
    {
        Bstr result;
        result.m_text = owned;
        return result;
    }

    BSTR get() const noexcept { return m_text; }
    BSTR detach() noexcept { return std::exchange(m_text, nullptr); }
    BSTR* put() noexcept
    {
        ::SysFreeString(std::exchange(m_text, nullptr));
        return &m_text;
    }
    /// A string for an out-parameter: never null, as some script hosts read it unchecked.
    static BSTR copyOf(std::wstring_view text);
    BSTR copy() const { return copyOf(view()); }

    std::wstring_view view() const noexcept { return viewOf(m_text); }
    static std::wstring_view viewOf(BSTR text) noexcept
    {
        return text ? std::wstring_view(text, ::SysStringLen(text)) : std::wstring_view();
    }

private:
    BSTR m_text = nullptr;
};

} // namespace quillet
