// A property read and written by its name, as scripts do, against the same through the interface.
#include "base/RunTimeError.h"
#include "bench/Container.h"
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

    auto const row = [&](char const* what, auto byName, auto throughInterface) {
        bool const full = effort == Effort::Full;
        return rowOf(std::string(what) + " by name",
                     compare(full ? 201 : 3, full ? 1000 : 5, byName, throughInterface), "–");
    };
    OLE_COLOR read = 0;
    return {
        row(
            "a property read", [&] { color.read(); }, [&] { button->get_HotBackColor(&read); }),
        row(
            "a property written", [&] { color.write(static_cast<LONG>(kColor)); },
            [&] { button->put_HotBackColor(kColor); }),
    };
}

} // namespace quillet::bench
