// Automation strings, each in a block of exactly its size, so that reading past one is seen.
#include <windows.h>

#include <oleauto.h>

#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

/// What stands before an automation string: its length in bytes.
using Prefix = UINT;

constexpr UINT kLongest =
    (std::numeric_limits<UINT>::max() - sizeof(Prefix) - sizeof(OLECHAR)) / sizeof(OLECHAR);

Prefix prefixOf(BSTR text) noexcept
{
    Prefix size = 0;
    std::memcpy(&size, reinterpret_cast<BYTE*>(text) - sizeof size, sizeof size);
    return size;
}

} // namespace

BSTR WINAPI SysAllocStringLen(OLECHAR const* text, UINT length)
{
    if (length > kLongest)
        return nullptr;
    Prefix const size = length * static_cast<UINT>(sizeof(OLECHAR));
    auto* const block = static_cast<BYTE*>(std::malloc(sizeof size + size + sizeof(OLECHAR)));
    if (!block)
        return nullptr;
    std::memcpy(block, &size, sizeof size);
    BYTE* const characters = block + sizeof size;
    if (text && size > 0)
        std::memcpy(characters, text, size);
    else
        std::memset(characters, 0, size);
    std::memset(characters + size, 0, sizeof(OLECHAR));
    return reinterpret_cast<BSTR>(characters);
}

void WINAPI SysFreeString(BSTR text)
{
    if (text)
        std::free(reinterpret_cast<BYTE*>(text) - sizeof(Prefix));
}

UINT WINAPI SysStringLen(BSTR text) { return text ? prefixOf(text) / static_cast<UINT>(sizeof(OLECHAR)) : 0; }
