// The binary form of saved values, taken apart a second time and by other code than the library's.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillet::fuzz {

struct FormModel {
    bool hasDamagedObject = false;
    std::vector<std::wstring> names;
    size_t size = 0; ///< of the form: what stands behind it is not its own
    /// The form as a writer of the same values writes it: True is -1 and nothing else, no object has no
    /// bytes.
    std::vector<BYTE> written;
};

/// The form at the beginning of the bytes; nothing where there is none.
std::optional<FormModel> modelOf(std::span<BYTE const> bytes);

/// How many bytes a reader may take at most: the header, and what it says of the rest.
std::uint64_t mayRead(std::span<BYTE const> bytes);

} // namespace quillet::fuzz
