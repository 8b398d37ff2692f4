// A caption in the system's ANSI code page, as the text calls of GDI take it.
#include "drawing/AnsiText.h"

#include <windows.h>

#include <algorithm>

namespace quillet {

namespace {

/// The number of bytes of the text, which are stored where there is room for all of them; 0 where not.
int convert(std::wstring_view text, char* target, int room) noexcept
{
    return ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), target, room, nullptr,
                                 nullptr);
}

} // namespace

AnsiText::AnsiText(std::wstring_view text)
{
    if (text.empty())
        return;
    int bytes = convert(text, m_stack, kStackBytes);
    if (bytes == 0) {
        m_heap.resize(static_cast<std::size_t>(convert(text, nullptr, 0)));
        bytes = convert(text, m_heap.data(), static_cast<int>(m_heap.size()));
    }
    m_count = static_cast<unsigned>(std::min<std::size_t>(text.size(), static_cast<std::size_t>(bytes)));
}

} // namespace quillet
