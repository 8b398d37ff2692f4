// A file of lines that others can read while it grows.
#pragma once

#include "gallery/form/FileBytes.h"

#include <string>
#include <string_view>

namespace quillet::gallery {

class EventLog {
public:
    /// Begins the file anew; throws FormError when it cannot be written.
    explicit EventLog(std::wstring const& path);

    /// The line is in the file when this returns. After a failure, which is said once, nothing more is
    /// written.
    void add(std::wstring_view line);

private:
    std::wstring m_path;
    UniqueFile m_file;
};

} // namespace quillet::gallery
