// Ambient properties and extenders with values of every type but the one that was meant, and lists without an
// end.
#include "HostileTest.h"
#include "Life.h"
#include "Values.h"
#include "kit/ByName.h"

#include <olectl.h>

namespace quillet::hostile {
namespace {

constexpr DISPID kEachAmbient[] = {
    DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FONT,   DISPID_AMBIENT_FORECOLOR,       DISPID_AMBIENT_LOCALEID,
    DISPID_AMBIENT_USERMODE,  DISPID_AMBIENT_UIDEAD, DISPID_AMBIENT_DISPLAYASDEFAULT};
constexpr wchar_t const* kExtended[] = {L"Name",      L"ToolTipText", L"Default", L"TabStop",
                                        L"Container", L"Parent",      L"Object",  L"Width"};
constexpr size_t kTaken = 28;

class HostileAmbient : public HostileControlTest {};
QV_ALL_CONTROLS(HostileAmbient);

TEST_P(HostileAmbient, ofAnyTypeIsLivedWith)
{
    for (NamedValue const& row : strangeValues()) {
        for (DISPID const id : kEachAmbient)
            if (isDue(kTaken * 4))
                live(kind(), row.name + " as ambient " + std::to_string(id),
                     [&](Life& life) { life.control.site().setAmbient(id, row.value); });
        if (isDue(kTaken))
            live(kind(), row.name + " as every ambient", [&](Life& life) {
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
                live(kind(), row.name + " as " + kit::narrow(name),
                     [&](Life& life) { life.control.site().extender().offer(name, row.value); });
        if (isDue(kTaken))
            live(kind(), row.name + " as every member of the form", [&](Life& life) {
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
        live(kind(), "no " + kit::narrow(name),
             [&](Life& life) { life.control.site().extender().remove(name); });
        live(kind(), "error in " + kit::narrow(name),
             [&](Life& life) { life.control.site().extender().refuse(name, DISP_E_EXCEPTION); });
    }
    live(kind(), "nothing at all", [](Life& life) { life.control.site().extender().removeAll(); });
    for (long const count : {-1L, 3L, 100'000L})
        live(kind(), "a wrong count", [&](Life& life) {
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
            live(kind(), "interfaces lacking: " + std::to_string(lacking), [&](Life& life) {
                for (size_t i = 0; i < std::size(optional); ++i)
                    if (lacking & (1U << i))
                        life.control.site().hide(optional[i]);
            });
}

/// Gives one and the same object for ever, or nothing for ever.
class EndlessEnumerator final : public kit::Counterpart<IEnumUnknown> {
public:
    EndlessEnumerator(IUnknown* object, int& asked) : m_object(object), m_asked(asked) {}

    STDMETHODIMP Next(ULONG, IUnknown** objects, ULONG* fetched) override
    {
        ++m_asked;
        *objects = ComPtr<IUnknown>(m_object).detach();
        if (fetched)
            *fetched = 1;
        return S_OK;
    }
    STDMETHODIMP Skip(ULONG) override { return S_OK; }
    STDMETHODIMP Reset() override { return S_OK; }
    STDMETHODIMP Clone(IEnumUnknown**) override { return E_NOTIMPL; }

private:
    IUnknown* m_object;
    int& m_asked;
};

class EndlessContainer final : public kit::Counterpart<IOleContainer> {
public:
    IUnknown* object = nullptr;
    int asked = 0;

    STDMETHODIMP ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP EnumObjects(DWORD, IEnumUnknown** enumerator) override
    {
        *enumerator = kit::make<EndlessEnumerator>(object, asked).detach();
        return S_OK;
    }
    STDMETHODIMP LockContainer(BOOL) override { return S_OK; }
};

/// A site that has that container and nothing else.
class EndlessSite final : public kit::Counterpart<IOleClientSite> {
public:
    explicit EndlessSite(EndlessContainer& container) : m_container(&container) {}

    STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer** container) override
    {
        *container = m_container.copy();
        return S_OK;
    }
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

private:
    ComPtr<IOleContainer> m_container;
};

class HostileSiblings : public HostileTest {
protected:
    ComPtr<IUnknown> control = library().create(kQvFlatOptionClass);
    ComPtr<IUnknown> plain = library().create(kQvFlatCheckClass);

    void TearDown() override
    {
        query<IOleObject>(control.get())->SetClientSite(nullptr);
        HostileTest::TearDown();
    }
    ComPtr<IDispatch> own() const { return query<IDispatch>(control.get()); }
    /// Chooses the option, which then looks for the others of its group; answers how many it looked at.
    int choose(IUnknown* sibling)
    {
        Journal::begin("an endless list of controls");
        auto const container = kit::make<EndlessContainer>();
        container->object = sibling;
        query<IOleObject>(control.get())->SetClientSite(kit::make<EndlessSite>(*container.get()).get());
        for (long const value : {0L, 1L})
            EXPECT_EQ(kit::putByName(*own().get(), L"Value", Variant::ofLong(value)).result, S_OK);
        return container->asked;
    }
};

/// Looked at, but not until the memory is full.
void expectALimit(int asked)
{
    EXPECT_GT(asked, 0);
    EXPECT_LT(asked, 1'000'000);
}

TEST_F(HostileSiblings, withoutEndAreLookedAtUpToALimit) { expectALimit(choose(plain.get())); }

TEST_F(HostileSiblings, thatAreNothingAreNotLookedAtForEver) { expectALimit(choose(nullptr)); }

TEST_F(HostileSiblings, thatAreTheControlItselfLeaveItChosen)
{
    choose(control.get());
    EXPECT_EQ(kit::getByName(*own().get(), L"Value").value.toLong(), 1);
}

} // namespace
} // namespace quillet::hostile
