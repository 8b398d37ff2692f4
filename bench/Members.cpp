// A property read and written by its name, as scripts do, and through the interface, against a control that
// does nothing else.
#include "base/RunTimeError.h"
#include "bench/Container.h"
#include "bench/MinimalControl.h"
#include "bench/Rounds.h"
#include "kit/HostWindow.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

namespace quillet::bench {

namespace {

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
        bool const full = effort == Effort::Full;
        return rowOf(what, compare(full ? 201 : 3, full ? 1000 : 5, ours, floor), "–");
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
