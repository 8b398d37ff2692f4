// The fuzzer's bytes, taken one value after the other; zeros behind their end.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <span>
#include <string>
#include <vector>

namespace quillet::fuzz {

class Input {
public:
    Input(BYTE const* data, size_t size) noexcept : m_rest(data, size) {}

    template <class T> T take() noexcept
    {
        T value{};
        size_t const size = std::min(sizeof value, m_rest.size());
        if (size > 0)
            std::memcpy(&value, m_rest.data(), size);
        m_rest = m_rest.subspan(size);
        return value;
    }
    std::vector<BYTE> takeBytes(size_t atMost)
    {
        auto const taken = m_rest.first(std::min(atMost, m_rest.size()));
        m_rest = m_rest.subspan(taken.size());
        return {taken.begin(), taken.end()};
    }
    std::wstring takeText(size_t atMost)
    {
        std::wstring text(std::min(atMost, m_rest.size() / sizeof(wchar_t)), L'\0');
        for (wchar_t& c : text)
            c = take<wchar_t>();
        return text;
    }
    bool isEmpty() const noexcept { return m_rest.empty(); }
    size_t rest() const noexcept { return m_rest.size(); }

private:
    std::span<BYTE const> m_rest;
};

} // namespace quillet::fuzz
