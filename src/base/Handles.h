// Owner types of Windows and GDI handles, and the scopes that select objects into device contexts.
#pragma once

#include <windows.h>

#include <utility>

namespace quillet {

/// Owns one handle of the kind that Traits describes and closes it at the end of its life.
template <class Traits> class UniqueHandle {
public:
    using Handle = typename Traits::Handle;

    UniqueHandle() noexcept = default;
    explicit UniqueHandle(Handle owned) noexcept : m_handle(owned) {}
    UniqueHandle(UniqueHandle&& other) noexcept : m_handle(other.release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept
    {
        reset(other.release());
        return *this;
    }
    UniqueHandle(UniqueHandle const&) = delete;
    UniqueHandle& operator=(UniqueHandle const&) = delete;
    ~UniqueHandle() { reset(); }

    Handle get() const noexcept { return m_handle; }
    explicit operator bool() const noexcept { return m_handle != Handle{}; }
    Handle release() noexcept { return std::exchange(m_handle, Handle{}); }
    void reset(Handle owned = Handle{}) noexcept
    {
        if (Handle const old = std::exchange(m_handle, owned))
            Traits::close(old);
    }

private:
    Handle m_handle{};
};

struct MemoryDcTraits {
    using Handle = HDC;
    static void close(HDC dc) noexcept { ::DeleteDC(dc); }
};
using UniqueMemoryDc = UniqueHandle<MemoryDcTraits>;

template <class H> struct GdiObjectTraits {
    using Handle = H;
    static void close(H object) noexcept { ::DeleteObject(object); }
};
using UniqueBitmap = UniqueHandle<GdiObjectTraits<HBITMAP>>;
using UniquePen = UniqueHandle<GdiObjectTraits<HPEN>>;
using UniqueBrush = UniqueHandle<GdiObjectTraits<HBRUSH>>;
using UniqueFont = UniqueHandle<GdiObjectTraits<HFONT>>;
using UniqueRegion = UniqueHandle<GdiObjectTraits<HRGN>>;

struct AcceleratorTraits {
    using Handle = HACCEL;
    static void close(HACCEL table) noexcept { ::DestroyAcceleratorTable(table); }
};
using UniqueAccelerators = UniqueHandle<AcceleratorTraits>;

struct WindowTraits {
    using Handle = HWND;
    static void close(HWND window) noexcept { ::DestroyWindow(window); }
};
using UniqueWindow = UniqueHandle<WindowTraits>;

struct LibraryTraits {
    using Handle = HMODULE;
    static void close(HMODULE library) noexcept { ::FreeLibrary(library); }
};
using UniqueLibrary = UniqueHandle<LibraryTraits>;

/// A function that a library exports; null where it does not, or where there is no library.
template <class Function> Function* functionOf(HMODULE library, char const* name) noexcept
{
    // By way of a plain function pointer, as compilers mistrust the direct conversion.
    auto const plain = library ? reinterpret_cast<void (*)()>(::GetProcAddress(library, name)) : nullptr;
    return reinterpret_cast<Function*>(plain);
}

/// Selects an object into a DC for one scope. Declare it after the object that it selects.
class SelectScope {
public:
    SelectScope(HDC dc, HGDIOBJ object) noexcept : m_dc(dc), m_previous(::SelectObject(dc, object)) {}
    ~SelectScope() { ::SelectObject(m_dc, m_previous); }
    SelectScope(SelectScope const&) = delete;
    SelectScope& operator=(SelectScope const&) = delete;
    bool succeeded() const noexcept { return m_previous != nullptr; }

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

/// Borrows a window's DC (the screen's for no window) for one scope.
class WindowDc {
public:
    explicit WindowDc(HWND window) noexcept : m_window(window), m_dc(::GetDC(window)) {}
    ~WindowDc() { ::ReleaseDC(m_window, m_dc); }
    WindowDc(WindowDc const&) = delete;
    WindowDc& operator=(WindowDc const&) = delete;
    HDC get() const noexcept { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

} // namespace quillet
