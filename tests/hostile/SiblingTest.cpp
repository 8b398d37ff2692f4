// Containers whose lists of controls have no end.
#include "HostileTest.h"
#include "Life.h"
#include "kit/ByName.h"

namespace quillet::hostile {
namespace {

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
        control.reset();
        plain.reset();
        HostileTest::TearDown();
        expectNothingLeft();
    }
    /// Chooses the option, which then looks for the others of its group; answers how many it looked at.
    int choose(IUnknown* sibling)
    {
        Journal::begin("an endless list of controls");
        auto const container = kit::make<EndlessContainer>();
        container->object = sibling;
        query<IOleObject>(control.get())->SetClientSite(kit::make<EndlessSite>(*container.get()).get());
        EXPECT_EQ(kit::putByName(*query<IDispatch>(control.get()).get(), L"Value", Variant::ofLong(0)).result,
                  S_OK);
        EXPECT_EQ(kit::putByName(*query<IDispatch>(control.get()).get(), L"Value", Variant::ofLong(1)).result,
                  S_OK);
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
    EXPECT_EQ(kit::getByName(*query<IDispatch>(control.get()).get(), L"Value").value.toLong(), 1);
}

} // namespace
} // namespace quillet::hostile
