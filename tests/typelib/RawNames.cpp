// Reads from a library's bytes what the system's interfaces do not tell: the names of setters' parameters.
#include "RawNames.h"

#include <windows.h>

#include <cstdint>
#include <cstring>

namespace quillet {

namespace {

char const* libraryBytes()
{
    HRSRC const found = ::FindResourceW(nullptr, MAKEINTRESOURCEW(1), L"TYPELIB");
    return static_cast<char const*>(::LockResource(::LoadResource(nullptr, found)));
}

std::size_t numberAt(char const* at)
{
    std::uint32_t value = 0;
    std::memcpy(&value, at, sizeof value);
    return value;
}

} // namespace

std::vector<std::string> lastParameterNames(std::size_t typeIndex)
{
    char const* const file = libraryBytes();
    // An 84-byte header, an offset for each type, then where each of the segments lies, 16 bytes each.
    char const* const segments = file + 84 + 4 * numberAt(file + 32);
    char const* const type = file + numberAt(segments) + 100 * typeIndex;
    char const* const nameTable = file + numberAt(segments + 16 * 7);

    std::vector<std::string> result(numberAt(type + 24) & 0xFFFF);
    char const* record = file + numberAt(type + 4) + 4;
    for (std::string& last : result) {
        char const* const end = record + (numberAt(record) & 0xFFFF);
        bool const hasParameters = (numberAt(record + 20) & 0xFFFF) != 0;
        std::size_t const name = hasParameters ? numberAt(end - 12 + 4) : 0xFFFFFFFF;
        if (name != 0xFFFFFFFF)
            last.assign(nameTable + name + 12, numberAt(nameTable + name + 8) & 0xFF);
        record = end;
    }
    return result;
}

} // namespace quillet
