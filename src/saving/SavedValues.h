// Named values in memory, and their binary form for streams and storages.
#pragma once

#include "base/RunTimeError.h"
#include "saving/PropertyBag.h"

#include <objidl.h>

#include <optional>
#include <string>
#include <vector>

namespace quillet {

/// A property bag in memory. Its binary form is, all little-endian:
///   "QVPB", version (16 bits), number of values (16 bits), length in bytes of what follows (32 bits), then
///   each value: length of the name in characters (16 bits), the name in UTF-16, the variant type (16 bits)
///   and its data: VT_I2 and VT_BOOL 2 bytes; VT_I4 4 bytes; VT_BSTR length in characters (32 bits) and
///   UTF-16; VT_UNKNOWN a kind (16 bits: 0 none, 1 font, 2 picture), a length in bytes (32 bits) and what
///   the object itself wrote.
class SavedValues final : public PropertyBag {
public:
    /// Reads the binary form. E_FAIL for anything malformed; nothing outside the form is read. A font or
    /// picture whose own bytes are damaged is left out: it has nothing to do with the values round it.
    static SavedValues fromStream(IStream& stream);
    void toStream(IStream& stream) const;

    /// What is to be told of an object that was left out; nothing where all are there. In reading that is a
    /// damaged one, in writing a metafile: whoever shows one plays its records and believes them all, so no
    /// reader could take it from a form.
    std::optional<ErrorNumber> loss() const noexcept { return m_loss; }

    /// The binary form's size in bytes.
    ULONG size() const;

    Variant readProperty(wchar_t const* name, VARTYPE type) override;
    void writeProperty(wchar_t const* name, Variant value) override;

private:
    struct Named {
        std::wstring name;
        Variant value;
    };

    std::vector<BYTE> bytes() const;

    std::vector<Named> m_values;
    std::optional<ErrorNumber> m_loss;
};

} // namespace quillet
