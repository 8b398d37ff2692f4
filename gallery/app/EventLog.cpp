// A file of lines that others can read while it grows.
#include "gallery/app/EventLog.h"

#include "gallery/app/Console.h"
#include "gallery/form/FormReader.h"

namespace quillet::gallery {

EventLog::EventLog(std::wstring const& path)
    : m_path(path), m_file(::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr))
{
    if (m_file.get() == INVALID_HANDLE_VALUE)
        throw FormError{path, 0, L"the file cannot be written"};
}

void EventLog::add(std::wstring_view line)
{
    if (!m_file)
        return;
    std::string const bytes = utf8(line) + "\n";
    DWORD written = 0;
    if (::WriteFile(m_file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
        return;
    m_file.reset();
    say(Stream::Error, L"gallery: " + m_path + L": the log ends here, the file cannot be written any more\n");
}

} // namespace quillet::gallery
