// Names the parameters of puts in a written library.
#include "typelib/maker/SetterNames.h"

#include "base/RunTimeError.h"

#include <oaidl.h>
#include <windows.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace quillet {

namespace {

// The layout of the file format, in bytes.
constexpr std::size_t kMagic = 0x5446534D; // MSFT
constexpr std::size_t kFlagsAt = 20;
constexpr std::size_t kTypeCountAt = 32;
constexpr std::size_t kHeaderSize = 84;
constexpr std::uint32_t kHasHelpDll = 0x100; // the header is one number longer
constexpr std::size_t kTypeSize = 100;
constexpr std::size_t kTypeMembersAt = 4;
constexpr std::size_t kTypeCountsAt = 24;
constexpr std::size_t kFunctionKindAt = 16;
constexpr std::size_t kParameterCountAt = 20;
constexpr std::size_t kParameterSize = 12;
constexpr std::size_t kParameterNameAt = 4;
constexpr std::uint32_t kNoName = 0xFFFFFFFF;

class LibraryImage {
public:
    explicit LibraryImage(std::vector<char> bytes) : m_bytes(std::move(bytes))
    {
        if (number(0) != kMagic)
            throw RunTimeError(TYPE_E_UNSUPFORMAT);
    }

    void moveNames()
    {
        std::size_t const count = number(kTypeCountAt);
        std::size_t const offsets = kHeaderSize + (number(kFlagsAt) & kHasHelpDll ? 4 : 0);
        std::size_t const types =
            number(offsets + 4 * count); // after the offsets: where the first segment lies
        for (std::size_t i = 0; i < count; ++i)
            moveNamesOfType(types + i * kTypeSize);
    }

    std::vector<char> const& bytes() const { return m_bytes; }

private:
    std::uint32_t number(std::size_t at) const
    {
        std::uint32_t value = 0;
        if (at + sizeof value > m_bytes.size())
            throw RunTimeError(TYPE_E_INVDATAREAD);
        std::memcpy(&value, m_bytes.data() + at, sizeof value);
        return value;
    }

    void store(std::size_t at, std::uint32_t value)
    {
        std::memcpy(m_bytes.data() + at, &value, sizeof value);
    }

    void moveNamesOfType(std::size_t type)
    {
        std::size_t const functions = number(type + kTypeCountsAt) & 0xFFFF;
        if (functions == 0)
            return;
        std::size_t previous = 0;
        std::size_t current = number(type + kTypeMembersAt) + 4; // after the size of the records
        for (std::size_t i = 0; i < functions; ++i) {
            if (invokeKind(current) & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF))
                moveName(previous, current);
            previous = current;
            current += length(current);
        }
    }

    void moveName(std::size_t get, std::size_t put)
    {
        if (get == 0 || invokeKind(get) != INVOKE_PROPERTYGET)
            throw RunTimeError(TYPE_E_INVDATAREAD);
        store(lastParameter(put) + kParameterNameAt, number(lastParameter(get) + kParameterNameAt));
        store(lastParameter(get) + kParameterNameAt, kNoName);
    }

    std::size_t length(std::size_t function) const { return number(function) & 0xFFFF; }
    std::uint32_t invokeKind(std::size_t function) const
    {
        return number(function + kFunctionKindAt) >> 3 & 0xF;
    }

    std::size_t lastParameter(std::size_t function) const
    {
        if ((number(function + kParameterCountAt) & 0xFFFF) == 0)
            throw RunTimeError(TYPE_E_INVDATAREAD);
        return function + length(function) - kParameterSize;
    }

    std::vector<char> m_bytes;
};

} // namespace

void moveSetterNames(wchar_t const* file)
{
    std::filesystem::path const path = file;
    std::ifstream source(path, std::ios::binary);
    LibraryImage image(std::vector<char>(std::istreambuf_iterator<char>(source), {}));
    source.close();
    image.moveNames();
    std::ofstream target(path, std::ios::binary | std::ios::trunc);
    target.write(image.bytes().data(), static_cast<std::streamsize>(image.bytes().size()));
    target.close();
    if (!target)
        throw RunTimeError(TYPE_E_IOERROR);
}

} // namespace quillet
