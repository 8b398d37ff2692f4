// A caption in an ANSI code page, as the text calls of GDI take it.
#include "drawing/AnsiText.h"

#include <algorithm>

namespace quillet {

namespace {

/// Stores the bytes of the text and answers how many they are; 0 where there is no room for all of them.
int convert(unsigned codePage, std::wstring_view text, char* target, int room) noexcept
{
    return ::WideCharToMultiByte(codePage, 0, text.data(), static_cast<int>(text.size()), target, room,
                                 nullptr, nullptr);
}

} // namespace

AnsiText::AnsiText(std::wstring_view text, unsigned codePage)
{
    if (text.empty())
        return;
    int bytes = convert(codePage, text, m_stack, kStackBytes);
    if (bytes == 0) {
        m_heap.resize(static_cast<std::size_t>(convert(codePage, text, nullptr, 0)));
        bytes = convert(codePage, text, m_heap.data(), static_cast<int>(m_heap.size()));
    }
    m_count = static_cast<unsigned>(std::min<std::size_t>(text.size(), static_cast<std::size_t>(bytes)));
}

SIZE AnsiText::extent(HDC dc) const noexcept
{
    SIZE size = {};
    ::GetTextExtentPoint32A(dc, data(), static_cast<int>(m_count), &size);
    return size;
}

} // namespace quillet
