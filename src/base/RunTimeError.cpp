// The one exception type: numbers and their texts.
#include "base/RunTimeError.h"

namespace quillet {

namespace {

constexpr HRESULT kBase = static_cast<HRESULT>(0x800A0000);

struct Text {
    ErrorNumber number;
    wchar_t const* text;
};

constexpr Text kTexts[] = {
    {ErrorNumber::InvalidProcedureCall, L"Invalid procedure call or argument"},
    {ErrorNumber::Overflow, L"Overflow"},
    {ErrorNumber::TypeMismatch, L"Type mismatch"},
    {ErrorNumber::ObjectNotSet, L"Object variable or With block variable not set"},
    {ErrorNumber::InvalidUseOfNull, L"Invalid use of Null"},
    {ErrorNumber::InvalidPropertyValue, L"Invalid property value"},
    {ErrorNumber::InvalidPicture, L"Invalid picture"},
};

} // namespace

RunTimeError::RunTimeError(ErrorNumber number) noexcept : m_result(kBase + static_cast<HRESULT>(number)) {}

wchar_t const* RunTimeError::description() const noexcept
{
    for (Text const& row : kTexts)
        if (m_result == kBase + static_cast<HRESULT>(row.number))
            return row.text;
    return nullptr;
}

RunTimeError lastError() noexcept { return RunTimeError(HRESULT_FROM_WIN32(::GetLastError())); }

} // namespace quillet
