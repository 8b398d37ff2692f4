// Owns one counted reference to a COM object.
#pragma once

#include <unknwn.h>

#include <utility>

namespace quillet {

/// Owns one counted reference; empty when there is none. A raw interface pointer elsewhere means borrowed.
template <class T> class ComPtr {
public:
    ComPtr() noexcept = default;
    ComPtr(std::nullptr_t) noexcept {}
    /// Takes a reference of its own to a borrowed pointer.
    ComPtr(T* borrowed) noexcept : m_object(borrowed)
    {
        if (m_object)
            m_object->AddRef();
    }
    ComPtr(ComPtr const& other) noexcept : ComPtr(other.m_object) {}
    ComPtr(ComPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ~ComPtr() { reset(); }

    ComPtr& operator=(ComPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /// Takes over a reference that the caller counted.
    static ComPtr adopt(T* counted) noexcept
    {
        ComPtr result;
        result.m_object = counted;
        return result;
    }

    /// Gives the reference up. The member is empty before the object hears of it, so it may call back.
    void reset() noexcept
    {
        if (T* old = std::exchange(m_object, nullptr))
            old->Release();
    }

    /// Hands the reference to the caller, who counts it from here on.
    T* detach() noexcept { return std::exchange(m_object, nullptr); }

    /// A reference for an out-parameter of somebody else's method.
    T* copy() const noexcept
    {
        if (m_object)
            m_object->AddRef();
        return m_object;
    }

    /// Where a function that answers a counted reference may store it; what was held is given up first.
    T** put() noexcept
    {
        reset();
        return &m_object;
    }

    T* get() const noexcept { return m_object; }
    T* operator->() const noexcept { return m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    /// The same object by another interface; empty when it has none, or when this is empty.
    template <class U> ComPtr<U> as(REFIID iid = __uuidof(U)) const noexcept
    {
        return query<U>(m_object, iid);
    }

    /// Asks a borrowed pointer for an interface. A success that hands out nothing counts as a refusal.
    template <class U> static ComPtr<U> query(IUnknown* object, REFIID iid = __uuidof(U)) noexcept
    {
        void* found = nullptr;
        if (!object || FAILED(object->QueryInterface(iid, &found)))
            return {};
        return ComPtr<U>::adopt(static_cast<U*>(found));
    }

private:
    T* m_object = nullptr;
};

/// Asks a borrowed pointer for an interface; empty when it has none.
template <class U> ComPtr<U> query(IUnknown* object, REFIID iid = __uuidof(U)) noexcept
{
    return ComPtr<IUnknown>::query<U>(object, iid);
}

} // namespace quillet
