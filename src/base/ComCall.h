// The one boundary: nothing that our code throws reaches Windows or a host.
#pragma once

#include <windows.h>

#include <type_traits>
#include <utility>

namespace quillet {

/// Who an error is said to come from.
struct ErrorSource {
    wchar_t const* name; ///< programmatic identifier, such as "Quillet.qvFlatCommand"
    IID interfaceId;     ///< the interface whose method failed
    DWORD helpContext;   ///< the help file's topic about it
};

/// Call in a catch block: the HRESULT of what was thrown, with error info (source, description, help) set.
HRESULT reportCaught(ErrorSource const& source) noexcept;

/// Call in a catch block: the HRESULT of what was thrown, without error info.
HRESULT resultOfCaught() noexcept;

/// Runs body. One that answers an HRESULT answers for the call; one that answers nothing succeeds.
template <class Body> HRESULT resultOf(Body&& body)
{
    if constexpr (std::is_void_v<decltype(body())>) {
        std::forward<Body>(body)();
        return S_OK;
    } else {
        return std::forward<Body>(body)();
    }
}

/// Answers what body does and turns whatever it throws into an HRESULT with error info.
template <class Body> HRESULT comCall(ErrorSource const& source, Body&& body) noexcept
{
    try {
        return resultOf(std::forward<Body>(body));
    } catch (...) {
        return reportCaught(source);
    }
}

/// The same for methods whose callers read no error info (everything but automation).
template <class Body> HRESULT comCall(Body&& body) noexcept
{
    try {
        return resultOf(std::forward<Body>(body));
    } catch (...) {
        return resultOfCaught();
    }
}

/// For what a host may not offer, and for errors that are not to be reported: answers fallback instead.
template <class T, class Lookup> T orFallback(T fallback, Lookup&& lookup) noexcept
{
    try {
        return std::forward<Lookup>(lookup)();
    } catch (...) {
        return fallback;
    }
}

/// Runs body; an error ends it silently.
template <class Body> void ignoringErrors(Body&& body) noexcept
{
    try {
        std::forward<Body>(body)();
    } catch (...) { // NOLINT(bugprone-empty-catch): that is the promise
    }
}

} // namespace quillet
