// Memory that a caller of ours frees: texts and arrays handed out.
#pragma once

#include <windows.h>

#include <objbase.h>

#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

namespace quillet {

/// A copy of a text.
inline LPOLESTR taskString(wchar_t const* text)
{
    size_t const bytes = (std::wcslen(text) + 1) * sizeof(wchar_t);
    auto* const copy = static_cast<LPOLESTR>(::CoTaskMemAlloc(bytes));
    if (!copy)
        throw std::bad_alloc();
    std::memcpy(copy, text, bytes);
    return copy;
}

/// An array, zeroed at first. Texts that stand in it belong to it until it is handed out.
template <class T> class TaskArray {
public:
    explicit TaskArray(size_t count)
        : m_count(count), m_items(static_cast<T*>(::CoTaskMemAlloc(count * sizeof(T))))
    {
        if (!m_items)
            throw std::bad_alloc();
        std::memset(m_items, 0, count * sizeof(T));
    }
    ~TaskArray()
    {
        if constexpr (std::is_pointer_v<T>)
            for (size_t i = 0; m_items && i < m_count; ++i)
                ::CoTaskMemFree(m_items[i]);
        ::CoTaskMemFree(m_items);
    }
    TaskArray(TaskArray const&) = delete;
    TaskArray& operator=(TaskArray const&) = delete;

    T& operator[](size_t index) noexcept { return m_items[index]; }
    T* detach() noexcept { return std::exchange(m_items, nullptr); }

private:
    size_t m_count;
    T* m_items;
};

} // namespace quillet
