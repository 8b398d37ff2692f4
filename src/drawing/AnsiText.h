// A caption in an ANSI code page, as the text calls of GDI take it.
#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace quillet {

/// Converts at once. Captions of ordinary length stay on the stack: every paint converts several.
class AnsiText {
public:
    explicit AnsiText(std::wstring_view text, unsigned codePage = CP_ACP);
    AnsiText(AnsiText const&) = delete;
    AnsiText& operator=(AnsiText const&) = delete;

    char const* data() const noexcept { return m_heap.empty() ? m_stack : m_heap.data(); }
    /// How many bytes to write: as many as the caption has characters, which cuts a caption short whose
    /// characters take more than one byte. Never more bytes than there are.
    unsigned count() const noexcept { return m_count; }
    /// The size of what is written, in a DC's font and in pixels.
    SIZE extent(HDC dc) const noexcept;

private:
    static constexpr int kStackBytes = 256;

    char m_stack[kStackBytes];
    std::vector<char> m_heap;
    unsigned m_count = 0;
};

} // namespace quillet
