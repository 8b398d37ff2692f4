// A property read and written by its name, as scripts do, and through the interface, against a control that
// does nothing else.
#include "base/RunTimeError.h"
#include "bench/Container.h"
#include "bench/Rounds.h"
#include "kit/HostWindow.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

namespace quillet::bench {

namespace {

/// The property as a vtable has it.
class Number {
public:
    virtual HRESULT STDMETHODCALLTYPE get(LONG* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put(LONG value) = 0;

protected:
    ~Number() = default;
};

/// A control that does nothing but hold one number, through the vtable and by name: the least that a member
/// of an object can cost.
class MinimalControl final : public LateBound, public Number {
public:
    HRESULT STDMETHODCALLTYPE get(LONG* value) override;
    HRESULT STDMETHODCALLTYPE put(LONG value) override;

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO*, UINT*) override;

private:
    LONG m_value = 0;
};

HRESULT MinimalControl::get(LONG* value)
{
    *value = m_value;
    return S_OK;
}

HRESULT MinimalControl::put(LONG value)
{
    m_value = value;
    return S_OK;
}

HRESULT MinimalControl::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids)
{
    bool const known = ::lstrcmpiW(names[0], L"Number") == 0;
    ids[0] = known ? 1 : DISPID_UNKNOWN;
    return known ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT MinimalControl::Invoke(DISPID, REFIID, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                               EXCEPINFO*, UINT*)
{
    if (kind & DISPATCH_PROPERTYPUT)
        return put(arguments->rgvarg->lVal);
    result->vt = VT_I4;
    return get(&result->lVal);
}

constexpr RECT kPlace{20, 20, 140, 52};
constexpr OLE_COLOR kColor = 0x00D8E9EC;

/// A property of an object that is reached by its name.
struct Member {
    IDispatch& object;
    wchar_t const* name;

    void invoke(WORD kind, DISPPARAMS& arguments, VARIANT* result) const
    {
        auto* text = const_cast<wchar_t*>(name);
        DISPID id = 0;
        check(object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id));
        check(object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &arguments, result, nullptr, nullptr));
    }
    void read() const
    {
        DISPPARAMS none{};
        VARIANT result{};
        invoke(DISPATCH_PROPERTYGET, none, &result);
    }
    void write(LONG number) const
    {
        VARIANT value{};
        value.vt = VT_I4;
        value.lVal = number;
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS arguments{&value, &named, 1, 1};
        invoke(DISPATCH_PROPERTYPUT, arguments, nullptr);
    }
};

} // namespace

Rows measureMembers(kit::Library const& library, Effort effort)
{
    kit::HostWindow const window(40, 40, 200, 100);
    Frame frame(window.handle());
    SavedButton saved;
    ComPtr<IClassFactory> const factory = library.factory(kQvFlatCommandClass);
    Hosted const hosted(deref(factory.get()), saved, frame, window.handle(), kPlace);
    ComPtr<_qvFlatCommand> const button = hosted.as<_qvFlatCommand>();
    Member const color{*button.get(), L"HotBackColor"}; // one whose change repaints nothing
    MinimalControl minimal;
    Member const number{minimal, L"Number"};
    Number& slot = minimal;

    auto const row = [&](char const* what, auto ours, auto floor) {
        return Row{what, compare(effort, 1000, ours, floor)};
    };
    OLE_COLOR read = 0;
    LONG readNumber = 0;
    return {
        row(
            "a property read by name", [&] { color.read(); }, [&] { number.read(); }),
        row(
            "a property written by name", [&] { color.write(static_cast<LONG>(kColor)); },
            [&] { number.write(static_cast<LONG>(kColor)); }),
        row(
            "a property read through the interface", [&] { button->get_HotBackColor(&read); },
            [&] { slot.get(&readNumber); }),
        row(
            "a property written through the interface", [&] { button->put_HotBackColor(kColor); },
            [&] { slot.put(static_cast<LONG>(kColor)); }),
    };
}

} // namespace quillet::bench
