// The binary file beside a form: what has no place in a line of text, such as pictures.
#include "gallery/form/Companion.h"

#include "gallery/form/FileBytes.h"
#include "gallery/form/FormReader.h"
#include "gallery/form/FormValue.h"

#include <cstdint>
#include <cstring>

namespace quillet::gallery {

namespace {

using Length = std::uint32_t;

} // namespace

std::string_view Companion::record(unsigned long offset) const
{
    std::string_view const bytes = m_bytes;
    if (offset > bytes.size() || bytes.size() - offset < sizeof(Length))
        throw ValueFault{L"its companion file has nothing there"};
    Length length = 0;
    std::memcpy(&length, bytes.data() + offset, sizeof length);
    std::string_view const rest = bytes.substr(offset + sizeof length);
    if (length > rest.size())
        throw ValueFault{L"its companion file ends too early"};
    return rest.substr(0, length);
}

unsigned long Companion::add(std::string_view record)
{
    auto const offset = static_cast<unsigned long>(m_bytes.size());
    auto const length = static_cast<Length>(record.size());
    m_bytes.append(reinterpret_cast<char const*>(&length), sizeof length).append(record);
    return offset;
}

Companion const& Companions::file(std::wstring const& name)
{
    auto const found = m_files.find(name);
    if (found != m_files.end())
        return found->second;
    std::string bytes;
    try {
        bytes = fileBytes(m_folder + L"\\" + fileNameOf(name));
    } catch (FormError const&) { // NOLINT(bugprone-empty-catch): an empty file has no records either
    }
    return m_files.emplace(name, Companion(std::move(bytes))).first->second;
}

std::string_view Companions::record(ResourceReference const& reference)
{
    return file(reference.file).record(reference.offset);
}

} // namespace quillet::gallery
