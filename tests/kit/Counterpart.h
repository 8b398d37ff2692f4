// The base of every counterpart: a counted object whose interfaces a test can hide, and what it was asked, in
// order.
#pragma once

#include "base/ComPtr.h"
#include "base/Module.h"

#include <oaidl.h>
#include <windows.h>

#include <unknwn.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet::kit {

/// A list of calls that several counterparts share, so that their order can be compared.
/// A call is noted as "Who.Method" or "Who.Method(details)"; answers are set by "Who.Method".
class Record {
public:
    void note(std::string const& call)
    {
        m_calls.push_back(call);
        if (auto const run = whenNoted)
            run(call);
    }
    /// Runs inside every call, before it is answered: what a counterpart does when it is asked.
    std::function<void(std::string const&)> whenNoted;

    std::vector<std::string> const& calls() const noexcept { return m_calls; }
    /// The calls since the last time, forgotten from here on.
    std::vector<std::string> take() { return std::exchange(m_calls, {}); }
    void forget() { m_calls.clear(); }

    /// How many calls are equal to the text, and how many begin with it.
    int count(std::string_view call) const { return static_cast<int>(std::ranges::count(m_calls, call)); }
    int countFrom(std::string_view beginning) const
    {
        auto const begins = [&](std::string const& call) { return call.starts_with(beginning); };
        return static_cast<int>(std::ranges::count_if(m_calls, begins));
    }

    /// From here on the method answers the result without doing anything.
    void answer(std::string const& method, HRESULT result) { m_results[method] = result; }
    /// From here on the method succeeds but hands out a null pointer.
    void answerNothing(std::string const& method) { m_nothing.insert(method); }
    void answerAsUsual(std::string const& method)
    {
        m_results.erase(method);
        m_nothing.erase(method);
    }

    /// Notes the call. False when the method is to answer only result.
    bool asked(std::string const& method, HRESULT& result, std::string const& details = {})
    {
        note(details.empty() ? method : method + '(' + details + ')');
        auto const found = m_results.find(method);
        if (found == m_results.end())
            return true;
        result = found->second;
        return false;
    }
    bool handsOutNothing(std::string const& method) const { return m_nothing.contains(method); }

private:
    std::vector<std::string> m_calls;
    std::map<std::string, HRESULT> m_results;
    std::set<std::string> m_nothing;
};

using SharedRecord = std::shared_ptr<Record>;

/// The rectangle as "left,top,right,bottom"; "null" for none.
inline std::string textOf(RECT const* rectangle)
{
    if (!rectangle)
        return "null";
    return std::to_string(rectangle->left) + ',' + std::to_string(rectangle->top) + ',' +
           std::to_string(rectangle->right) + ',' + std::to_string(rectangle->bottom);
}

/// Implements IUnknown for the interfaces named. It lives on the heap and counts as alive, so that a
/// reference that somebody keeps too long shows at the end of the test.
template <class First, class... Rest> class Counterpart : public First, public Rest... {
public:
    Counterpart() = default;
    Counterpart(Counterpart const&) = delete;
    Counterpart& operator=(Counterpart const&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        if (!object)
            return E_POINTER;
        *object = has(m_hidden, iid) ? nullptr : has(m_pretended, iid) ? unknown() : faceOf(iid);
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override
    {
        return static_cast<ULONG>(::InterlockedIncrement(&m_references));
    }
    STDMETHODIMP_(ULONG) Release() override
    {
        LONG const left = ::InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

    /// From here on the interface is answered with E_NOINTERFACE, or offered again.
    void hide(REFIID iid) { m_hidden.push_back(iid); }
    void show(REFIID iid) { std::erase(m_hidden, iid); }
    /// From here on it is known by that interface, too, which nobody calls.
    void pretend(REFIID iid) { m_pretended.push_back(iid); }

    IUnknown* unknown() noexcept { return static_cast<First*>(this); }
    ULONG references() const noexcept { return static_cast<ULONG>(m_references); }

protected:
    virtual ~Counterpart() = default;

    /// The interface, uncounted; null when the object has none of that name.
    virtual void* faceOf(REFIID iid) noexcept
    {
        if (iid == IID_IUnknown || iid == __uuidof(First))
            return static_cast<First*>(this);
        void* found = nullptr;
        ((iid == __uuidof(Rest) ? static_cast<void>(found = static_cast<Rest*>(this)) : void()), ...);
        return found;
    }

private:
    static bool has(std::vector<IID> const& list, REFIID iid)
    {
        return std::ranges::find(list, iid) != list.end();
    }

    LiveObject m_live;
    LONG volatile m_references = 1;
    std::vector<IID> m_hidden;
    std::vector<IID> m_pretended;
};

/// An object that can be called by name and has no member: a derived one overrides what it is asked for.
template <class... Faces> class DispatchCounterpart : public Counterpart<Faces...> {
public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }
};

/// A new counterpart, owned.
template <class T, class... Arguments> ComPtr<T> make(Arguments&&... arguments)
{
    return ComPtr<T>::adopt(new T(std::forward<Arguments>(arguments)...));
}

} // namespace quillet::kit
