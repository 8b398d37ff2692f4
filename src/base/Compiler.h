// What the compilers spell differently: gcc and clang with mingw-w64's headers, and Visual C++.
#pragma once

#include <windows.h>

namespace quillet {

/// Tells the compiler that control never gets here.
[[noreturn]] inline void unreachable() noexcept
{
#ifdef _MSC_VER
    __assume(false);
#else
    __builtin_unreachable();
#endif
}

} // namespace quillet

/// Gives an interface its __uuidof, from the eleven numbers of the identifier; at global scope.
#ifdef __CRT_UUID_DECL
#define QV_INTERFACE_UUID(type, ...) __CRT_UUID_DECL(type, __VA_ARGS__)
#else
// Visual C++ takes a uuid at a declaration alone, as text: there our own interfaces go by their constants.
#define QV_INTERFACE_UUID(type, ...)
#endif

/// Compiled for size, functions of a few steps stay calls, and what rarely runs is taken into what often
/// does: these stand where a single assignment of a property would be felt.
#ifdef _MSC_VER
#define QV_ALWAYS_INLINE __forceinline
#define QV_NEVER_INLINE __declspec(noinline)
#else
#define QV_ALWAYS_INLINE [[gnu::always_inline]] inline
#define QV_NEVER_INLINE [[gnu::noinline]]
#endif

/// Stands before a function that others than our sources call. The component is compiled as one, and what
/// nobody calls in it goes.
#if defined(__GNUC__) && !defined(__clang__)
#define QV_CALLED_BY_OTHERS [[gnu::externally_visible]]
#else
#define QV_CALLED_BY_OTHERS
#endif
