// Reads the fields of a library's bytes, of which the system's interfaces tell only a part.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillet {

inline constexpr std::uint32_t kNowhere = 0xFFFFFFFF; ///< an offset or reference that leads to nothing

struct RawParameter {
    std::string name; ///< empty for none
    unsigned flags;   ///< PARAMFLAG bits
};

struct RawFunction {
    std::string name;
    std::uint32_t identifier;
    unsigned index;       ///< as the record tells it
    unsigned tableOffset; ///< in the vtable, in bytes
    unsigned results;     ///< how many parameters it says are results
    unsigned next;        ///< the index that its ring leads to
    std::vector<RawParameter> parameters;
};

struct RawType {
    std::string name;
    std::uint32_t offset; ///< by which others of the file refer to it
    unsigned kind;        ///< TYPEKIND
    unsigned flags;       ///< TYPEFLAG bits
    bool dual;            ///< marked beside the kind
    bool everyTypesMark;
    unsigned alignments[2];
    unsigned index;
    unsigned implemented;
    unsigned tableSize; ///< of the vtable, in bytes
    std::uint32_t size;
    std::uint32_t first; ///< what it derives from, is an alias of, or implements
    std::uint32_t second;
    std::vector<RawFunction> functions;
    std::vector<std::string> constants;
};

struct RawName {
    std::string text;
    std::uint32_t offset;
    std::uint32_t owner; ///< offset of a type
    unsigned flags;
    unsigned hash;
};

struct RawLibrary {
    std::uint32_t language; ///< of the hashes
    std::vector<RawType> types;
    std::vector<RawName> names;
    /// The offsets of names, as the hash table's 128 chains lead to them.
    std::vector<std::vector<std::uint32_t>> chains;
    /// The segments and the blocks of members lie without gaps to the end of the file.
    bool whole;
};

/// The library that the component would have.
RawLibrary rawLibrary();

} // namespace quillet
