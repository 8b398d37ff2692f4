// The one exception type: what a host must see as a run-time error.
#pragma once

#include <windows.h>

namespace quillet {

/// Run-time errors that the library raises itself; a host sees 0x800A0000 + number.
enum class ErrorNumber : long {
    InvalidProcedureCall = 5,
    Overflow = 6,
    TypeMismatch = 13,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    InvalidPropertyValue = 380,
    InvalidPicture = 481,
};

/// A failure that the host is to see: a run-time error of our own, or a failed call's result as it came.
class RunTimeError {
public:
    explicit RunTimeError(ErrorNumber number) noexcept;
    explicit RunTimeError(HRESULT failed) noexcept : m_result(failed) {}
    /// A failed call of somebody else's interface, whose identifier is a constant.
    RunTimeError(HRESULT failed, IID const& interfaceId) noexcept
        : m_result(failed), m_interfaceId(&interfaceId)
    {}

    HRESULT result() const noexcept { return m_result; }
    /// The interface that a call failed on; null for an error of our own.
    IID const* interfaceId() const noexcept { return m_interfaceId; }
    /// The text of an error of our own; null for a failed call's result.
    wchar_t const* description() const noexcept;

private:
    HRESULT m_result;
    IID const* m_interfaceId = nullptr;
};

/// What Windows says of its call that has just failed.
RunTimeError lastError() noexcept;

/// Throws when a call has failed.
inline void check(HRESULT result)
{
    if (FAILED(result))
        throw RunTimeError(result);
}

/// The same, naming the interface (a constant) that the call was made on.
inline void check(HRESULT result, IID const& interfaceId)
{
    if (FAILED(result))
        throw RunTimeError(result, interfaceId);
}

/// The pointer, or E_POINTER for a null one: for every out-parameter and object that a host hands in.
template <class T> T& deref(T* pointer)
{
    if (!pointer)
        throw RunTimeError(E_POINTER);
    return *pointer;
}

} // namespace quillet
