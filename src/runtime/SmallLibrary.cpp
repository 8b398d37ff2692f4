// Plain stand-ins for parts of the language's library that would bring much more with them than a component
// without a console has a use for. Linked into the component alone.
#include "base/Compiler.h"
#include "base/RunTimeError.h"

#include <windows.h>

#include <cstdlib>
#include <exception>
#include <new>

// The library's own prints the exception, for which it can take C++ names apart.
namespace __gnu_cxx {
QV_CALLED_BY_OTHERS void __verbose_terminate_handler() { std::abort(); }
} // namespace __gnu_cxx

// What containers and strings throw. The library's own are exceptions with texts, in strings of two kinds;
// here nobody reads the texts: at the boundary each becomes E_UNEXPECTED, or E_OUTOFMEMORY, either way.
namespace std {

namespace {

[[noreturn]] void throwUnexpected() { throw quillet::RunTimeError(E_UNEXPECTED); }

} // namespace

QV_CALLED_BY_OTHERS void __throw_bad_alloc() { throw bad_alloc(); }
QV_CALLED_BY_OTHERS void __throw_bad_array_new_length() { throw bad_alloc(); }
QV_CALLED_BY_OTHERS void __throw_bad_cast() { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_bad_exception() { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_bad_typeid() { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_domain_error(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_invalid_argument(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_length_error(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_logic_error(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_out_of_range(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_out_of_range_fmt(char const*, ...) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_overflow_error(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_range_error(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_runtime_error(char const*) { throwUnexpected(); }
QV_CALLED_BY_OTHERS void __throw_underflow_error(char const*) { throwUnexpected(); }

} // namespace std
