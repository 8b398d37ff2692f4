// Reads the fields of a library's bytes, of which the system's interfaces tell only a part.
#include "RawLibrary.h"

#include <oaidl.h>
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace quillet {

namespace {

enum Segment { kTypes = 0, kNameChains = 6, kNames = 7, kSegments = 15 };
constexpr std::uint32_t kHeaderSize = 84;
constexpr std::uint32_t kTypeSize = 100;
constexpr std::uint32_t kParameterSize = 12;

std::string_view libraryBytes()
{
    HRSRC const found = ::FindResourceW(nullptr, MAKEINTRESOURCEW(1), L"TYPELIB");
    return {static_cast<char const*>(::LockResource(::LoadResource(nullptr, found))),
            ::SizeofResource(nullptr, found)};
}

class Reader {
public:
    explicit Reader(std::string_view bytes) : m_bytes(bytes) {}

    RawLibrary read()
    {
        RawLibrary library{};
        library.language = number(12);
        library.names = names();
        for (std::uint32_t i = 0; i < 128; ++i)
            library.chains.push_back(chain(number(segment(kNameChains) + 4 * i)));
        for (std::uint32_t i = 0; i < typeCount(); ++i)
            library.types.push_back(type(i));
        library.whole = isWhole();
        return library;
    }

private:
    std::uint32_t number(std::uint32_t at) const
    {
        std::uint32_t value = 0;
        if (at + sizeof value > m_bytes.size())
            throw std::out_of_range("the type library ends too early");
        std::memcpy(&value, m_bytes.data() + at, sizeof value);
        return value;
    }
    /// Some of a number's bits.
    unsigned bits(std::uint32_t at, unsigned from, unsigned count) const
    {
        return number(at) >> from & ((1U << count) - 1);
    }

    std::uint32_t typeCount() const { return number(32); }
    std::uint32_t directory(unsigned which) const { return kHeaderSize + 4 * typeCount() + 16 * which; }
    std::uint32_t segment(unsigned which) const { return number(directory(which)); }
    std::uint32_t segmentSize(unsigned which) const { return number(directory(which) + 4); }

    std::string nameAt(std::uint32_t offset) const
    {
        if (offset == kNowhere)
            return {};
        std::uint32_t const at = segment(kNames) + offset;
        return std::string(m_bytes.substr(at + 12, bits(at + 8, 0, 8)));
    }

    std::vector<RawName> names() const
    {
        std::vector<RawName> result;
        for (std::uint32_t offset = 0; offset < segmentSize(kNames);) {
            std::uint32_t const at = segment(kNames) + offset;
            result.push_back({nameAt(offset), offset, number(at), bits(at + 8, 8, 8), bits(at + 8, 16, 16)});
            offset += 12 + (bits(at + 8, 0, 8) + 3) / 4 * 4;
        }
        return result;
    }

    std::vector<std::uint32_t> chain(std::uint32_t offset) const
    {
        std::vector<std::uint32_t> result;
        for (; offset != kNowhere && result.size() < m_bytes.size();
             offset = number(segment(kNames) + offset + 4))
            result.push_back(offset);
        return result;
    }

    RawType type(std::uint32_t place) const
    {
        std::uint32_t const at = segment(kTypes) + kTypeSize * place;
        RawType result{};
        result.name = nameAt(number(at + 52));
        result.offset = kTypeSize * place;
        result.kind = bits(at, 0, 4);
        result.dual = bits(at, 4, 1);
        result.everyTypesMark = bits(at, 5, 1);
        result.alignments[0] = bits(at, 6, 5);
        result.alignments[1] = bits(at, 11, 5);
        result.index = bits(at, 16, 16);
        result.flags = number(at + 48);
        result.implemented = bits(at + 76, 0, 16);
        result.tableSize = bits(at + 76, 16, 16);
        result.size = number(at + 80);
        result.first = number(at + 84);
        result.second = number(at + 88);
        readMembers(at, result);
        return result;
    }

    void readMembers(std::uint32_t type, RawType& result) const
    {
        std::uint32_t const functions = bits(type + 24, 0, 16);
        std::uint32_t const constants = bits(type + 24, 16, 16);
        std::uint32_t const count = functions + constants;
        if (count == 0)
            return;
        std::uint32_t const block = number(type + 4);
        std::uint32_t const tables = block + 4 + number(block);
        for (std::uint32_t i = 0; i < count; ++i) {
            std::string const name = nameAt(number(tables + 4 * (count + i)));
            if (i >= functions) {
                result.constants.push_back(name);
                continue;
            }
            std::uint32_t const record = block + 4 + number(tables + 4 * (2 * count + i));
            result.functions.push_back(function(record, number(tables + 4 * i), name));
        }
    }

    RawFunction function(std::uint32_t record, std::uint32_t identifier, std::string const& name) const
    {
        RawFunction result{};
        result.name = name;
        result.identifier = identifier;
        result.index = bits(record, 16, 16);
        result.tableOffset = bits(record + 12, 0, 16);
        result.results = bits(record + 16, 14, 2);
        result.next = bits(record + 16, 16, 16);
        std::uint32_t const count = bits(record + 20, 0, 16);
        std::uint32_t const parameters = record + bits(record, 0, 16) - kParameterSize * count;
        for (std::uint32_t i = 0; i < count; ++i) {
            std::uint32_t const parameter = parameters + kParameterSize * i;
            result.parameters.push_back({nameAt(number(parameter + 4)), number(parameter + 8)});
        }
        return result;
    }

    bool isWhole() const
    {
        std::vector<unsigned> order;
        for (unsigned i = 0; i < kSegments; ++i)
            if (segmentSize(i) != 0)
                order.push_back(i);
        std::ranges::sort(order, {}, [&](unsigned i) { return segment(i); });
        std::uint32_t end = directory(kSegments);
        for (unsigned const i : order) {
            if (segment(i) != end)
                return false;
            end += segmentSize(i);
        }
        for (std::uint32_t i = 0; i < typeCount(); ++i) {
            std::uint32_t const at = segment(kTypes) + kTypeSize * i;
            if (number(at + 4) != end)
                return false;
            std::uint32_t const members = bits(at + 24, 0, 16) + bits(at + 24, 16, 16);
            end += members ? 4 + number(end) + 12 * members : 0;
        }
        return end == m_bytes.size();
    }

    std::string_view m_bytes;
};

} // namespace

RawLibrary rawLibrary() { return Reader(libraryBytes()).read(); }

} // namespace quillet
