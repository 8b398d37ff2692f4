// The rules of identity, alone and as part of another object.
#include "SurfaceTest.h"

namespace quillet::hosting {
namespace {

/// The object's one identity, uncounted.
IUnknown* identityOf(IUnknown* object) { return query<IUnknown>(object).get(); }

ULONG countOf(IUnknown* object)
{
    object->AddRef();
    return object->Release();
}

class Identity : public SurfaceTest {};

TEST_F(Identity, offersEveryInterfaceThatContainersAskFor)
{
    for (auto const& [name, iid] : kOffered)
        EXPECT_TRUE(query<IUnknown>(control.object(), iid)) << name;
    EXPECT_TRUE(control.as<_qvFlatCommand>());
}

TEST_F(Identity, offersNoInterfaceThatLeadsContainersAstray)
{
    for (auto const& [name, iid] : kNotOffered) {
        auto* poison = reinterpret_cast<void*>(&control);
        EXPECT_EQ(control.object()->QueryInterface(iid, &poison), E_NOINTERFACE) << name;
        EXPECT_EQ(poison, nullptr) << name;
    }
}

TEST_F(Identity, refusesNowhereToPutAnInterface)
{
    EXPECT_EQ(control.object()->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    for (auto const& [name, iid] : kOffered)
        EXPECT_EQ(query<IUnknown>(control.object(), iid)->QueryInterface(IID_IUnknown, nullptr), E_POINTER)
            << name;
}

TEST_F(Identity, isTheSameThroughEveryInterface)
{
    IUnknown* const identity = identityOf(control.object());
    for (auto const& [name, iid] : kOffered)
        EXPECT_EQ(identityOf(query<IUnknown>(control.object(), iid).get()), identity) << name;
}

TEST_F(Identity, everyInterfaceLeadsToEveryOther)
{
    for (auto const& [from, fromId] : kOffered) {
        auto const face = query<IUnknown>(control.object(), fromId);
        ASSERT_TRUE(face) << from;
        for (auto const& [to, toId] : kOffered)
            EXPECT_TRUE(query<IUnknown>(face.get(), toId)) << from << " to " << to;
    }
}

TEST_F(Identity, countsAllInterfacesTogether)
{
    ULONG const before = countOf(control.object());
    {
        auto const first = as<IOleObject>();
        auto const second = as<IDataObject>();
        EXPECT_EQ(countOf(control.object()), before + 2);
    }
    EXPECT_EQ(countOf(control.object()), before);
}

TEST_F(Identity, keepsTheLibraryInMemoryAsLongAsItLives)
{
    EXPECT_EQ(library().canUnloadNow(), S_FALSE);
    control.remove();
    EXPECT_EQ(library().canUnloadNow(), S_OK);
}

TEST_F(Identity, aLockedFactoryKeepsTheLibraryToo)
{
    control.remove();
    auto const factory = library().factory(kQvFlatCommandClass);
    ASSERT_TRUE(factory);
    ASSERT_EQ(factory->LockServer(TRUE), S_OK);
    EXPECT_EQ(library().canUnloadNow(), S_FALSE);
    ASSERT_EQ(factory->LockServer(FALSE), S_OK);
}

TEST_F(Identity, theFactoryRefusesWhatItCannotMake)
{
    auto const factory = library().factory(kQvFlatCommandClass);
    ASSERT_TRUE(factory);
    void* made = &control;
    EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(IOleDocument), &made), E_NOINTERFACE);
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

/// An object that has a control inside it and hands out the control's interfaces as its own.
class Outer final : public kit::Counterpart<IPersistFile> {
public:
    ComPtr<IUnknown> inner;

    STDMETHODIMP GetClassID(CLSID*) override { return E_NOTIMPL; }
    STDMETHODIMP IsDirty() override { return E_NOTIMPL; }
    STDMETHODIMP Load(LPCOLESTR, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Save(LPCOLESTR, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP SaveCompleted(LPCOLESTR) override { return E_NOTIMPL; }
    STDMETHODIMP GetCurFile(LPOLESTR*) override { return E_NOTIMPL; }
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        HRESULT const own = Counterpart::QueryInterface(iid, object);
        return own == E_NOINTERFACE && inner ? inner->QueryInterface(iid, object) : own;
    }

    HRESULT aggregate(kit::Library const& library)
    {
        auto const factory = library.factory(kQvFlatCommandClass);
        return factory->CreateInstance(unknown(), IID_IUnknown, reinterpret_cast<void**>(inner.put()));
    }
};

TEST_F(Identity, insideAnotherObjectIsThatObjects)
{
    auto const outer = kit::make<Outer>();
    ASSERT_EQ(outer->aggregate(library()), S_OK);
    EXPECT_NE(outer->inner.get(), outer->unknown());
    for (auto const& [name, iid] : kOffered) {
        auto const face = query<IUnknown>(outer->unknown(), iid);
        ASSERT_TRUE(face) << name;
        EXPECT_EQ(identityOf(face.get()), outer->unknown()) << name;
        EXPECT_TRUE(query<IPersistFile>(face.get())) << name << " does not lead to the outer object's own";
    }
}

TEST_F(Identity, insideAnotherObjectIsCountedByThatObject)
{
    auto const outer = kit::make<Outer>();
    ASSERT_EQ(outer->aggregate(library()), S_OK);
    ULONG const before = outer->references();
    {
        auto const face = query<IOleObject>(outer->unknown());
        EXPECT_EQ(outer->references(), before + 1);
        face->AddRef();
        EXPECT_EQ(outer->references(), before + 2);
        face->Release();
    }
    EXPECT_EQ(outer->references(), before);
}

TEST_F(Identity, insideAnotherObjectIsAskedForByIUnknownAlone)
{
    auto const outer = kit::make<Outer>();
    auto const factory = library().factory(kQvFlatCommandClass);
    void* made = &control;
    EXPECT_TRUE(FAILED(factory->CreateInstance(outer->unknown(), IID_IDispatch, &made)));
    EXPECT_EQ(made, nullptr);
}

TEST_F(Identity, insideAnotherObjectWorksAndEndsWithIt)
{
    control.remove();
    auto outer = kit::make<Outer>();
    ASSERT_EQ(outer->aggregate(library()), S_OK);
    auto inside = query<_qvFlatCommand>(outer->unknown());
    ASSERT_TRUE(inside);
    EXPECT_EQ(inside->put_Caption(Bstr(L"inside").get()), S_OK);
    EXPECT_EQ(query<IPersistStreamInit>(outer->unknown())->InitNew(), S_OK);
    inside.reset();
    EXPECT_EQ(library().canUnloadNow(), S_FALSE);
    outer.reset();
    EXPECT_EQ(library().canUnloadNow(), S_OK);
}

} // namespace
} // namespace quillet::hosting
