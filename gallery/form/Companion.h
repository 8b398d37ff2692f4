// The binary file beside a form: what has no place in a line of text, such as pictures.
#pragma once

#include "gallery/form/FormTree.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace quillet::gallery {

/// The records of a companion file. Each begins at an offset that the form names: its length in bytes (32
/// bits, little-endian), then its bytes: of a picture what the picture object itself wrote, of a long text
/// the text as the form's own are coded.
class Companion {
public:
    Companion() = default;
    explicit Companion(std::string bytes) : m_bytes(std::move(bytes)) {}

    std::string const& bytes() const noexcept { return m_bytes; }

    /// The record at the offset. Throws ValueFault where there is none, or only a part of one.
    std::string_view record(unsigned long offset) const;
    /// Adds a record at the end and answers its offset.
    unsigned long add(std::string_view record);

private:
    std::string m_bytes;
};

/// All companion files of a form, read when they are first needed. Only their names count: they lie where the
/// form lies.
class Companions {
public:
    explicit Companions(std::wstring folder) : m_folder(std::move(folder)) {}

    /// Throws ValueFault for what cannot be read.
    std::string_view record(ResourceReference const& reference);
    /// The file of that name; empty where there is none.
    Companion const& file(std::wstring const& name);
    /// From here on the file says this.
    void replace(std::wstring const& name, Companion file) { m_files[name] = std::move(file); }

private:
    std::wstring m_folder;
    std::map<std::wstring, Companion> m_files;
};

} // namespace quillet::gallery
