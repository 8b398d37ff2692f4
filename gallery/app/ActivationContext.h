// A manifest beside a component, by which its classes are created without registration.
#pragma once

#include <windows.h>

#include <string>

namespace quillet::gallery {

/// Empty when there is no such manifest, or none that Windows takes: then nothing changes.
class ActivationContext {
public:
    explicit ActivationContext(std::wstring const& manifest) noexcept;
    ~ActivationContext();
    ActivationContext(ActivationContext const&) = delete;
    ActivationContext& operator=(ActivationContext const&) = delete;

    explicit operator bool() const noexcept { return m_context != INVALID_HANDLE_VALUE; }

    /// Its classes are known to the thread for one scope; nothing more than before for null.
    class Scope {
    public:
        explicit Scope(ActivationContext const* context) noexcept;
        ~Scope();
        Scope(Scope const&) = delete;
        Scope& operator=(Scope const&) = delete;

    private:
        ULONG_PTR m_cookie = 0;
        bool m_active = false;
    };

private:
    HANDLE m_context;
};

} // namespace quillet::gallery
