// Ambient properties and extenders whose values are of every type but the one that was meant.
#include "HostileTest.h"
#include "Life.h"
#include "Values.h"

#include <olectl.h>

namespace quillet::hostile {
namespace {

constexpr DISPID kEachAmbient[] = {
    DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FONT,   DISPID_AMBIENT_FORECOLOR,       DISPID_AMBIENT_LOCALEID,
    DISPID_AMBIENT_USERMODE,  DISPID_AMBIENT_UIDEAD, DISPID_AMBIENT_DISPLAYASDEFAULT};
constexpr wchar_t const* kExtended[] = {L"Name",      L"ToolTipText", L"Default", L"TabStop",
                                        L"Container", L"Parent",      L"Object",  L"Width"};
constexpr size_t kTaken = 28;

class HostileAmbient : public HostileControlTest {
protected:
    static void live(std::string const& title, std::function<void(Life&)> const& prepare)
    {
        Journal::begin(std::string(kind().name) + ": " + title);
        {
            Life life(kind());
            prepare(life);
            life.live();
        }
        expectNothingLeft();
    }
};
QV_ALL_CONTROLS(HostileAmbient);

TEST_P(HostileAmbient, ofAnyTypeIsLivedWith)
{
    for (NamedValue const& row : strangeValues()) {
        for (DISPID const id : kEachAmbient)
            if (isDue(kTaken * 4))
                live(row.name + " as ambient " + std::to_string(id),
                     [&](Life& life) { life.control.site().setAmbient(id, row.value); });
        if (isDue(kTaken))
            live(row.name + " as every ambient", [&](Life& life) {
                for (DISPID const id : kEachAmbient)
                    life.control.site().setAmbient(id, row.value);
            });
    }
}

TEST_P(HostileAmbient, thatAnExtenderHasOfAnyTypeIsLivedWith)
{
    for (NamedValue const& row : strangeValues()) {
        for (wchar_t const* const name : kExtended)
            if (isDue(kTaken * 4))
                live(row.name + " as " + kit::narrow(name),
                     [&](Life& life) { life.control.site().extender().offer(name, row.value); });
        if (isDue(kTaken))
            live(row.name + " as every member of the form", [&](Life& life) {
                life.form.object().offer(L"ActiveControl", row.value);
                life.form.object().offer(L"Controls", row.value);
                life.form.controls().offer(L"Count", row.value);
                life.form.controls().offer(L"Item", row.value);
            });
    }
}

TEST_P(HostileAmbient, orMemberThatAnExtenderLacksOrRaisesAnErrorInIsLivedWith)
{
    for (wchar_t const* const name : kExtended) {
        if (!isDue(4))
            continue;
        live("no " + kit::narrow(name), [&](Life& life) { life.control.site().extender().remove(name); });
        live("error in " + kit::narrow(name),
             [&](Life& life) { life.control.site().extender().refuse(name, DISP_E_EXCEPTION); });
    }
    live("nothing at all", [](Life& life) { life.control.site().extender().removeAll(); });
    for (long const count : {-1L, 3L, 100'000L})
        live("a wrong count", [&](Life& life) {
            life.form.controls().offer(L"Count", Variant::ofLong(count));
            life.form.record().answer("Site.GetContainer", E_NOTIMPL);
        });
}

TEST_P(HostileAmbient, isMissedWhereASiteLacksAnyOfItsInterfaces)
{
    IID const optional[] = {IID_IDispatch, __uuidof(IOleControlSite), __uuidof(IOleInPlaceSite),
                            __uuidof(IOleWindow)};
    for (unsigned lacking = 1; lacking < 16; ++lacking)
        if (isDue(4))
            live("interfaces lacking: " + std::to_string(lacking), [&](Life& life) {
                for (size_t i = 0; i < std::size(optional); ++i)
                    if (lacking & (1U << i))
                        life.control.site().hide(optional[i]);
            });
}

} // namespace
} // namespace quillet::hostile
