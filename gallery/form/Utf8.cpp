// Text as it leaves the program.
#include "gallery/form/Utf8.h"

#include <windows.h>

namespace quillet::gallery {

std::string utf8(std::wstring_view text)
{
    int const count = static_cast<int>(text.size());
    int const needed = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), count, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), count, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

} // namespace quillet::gallery
