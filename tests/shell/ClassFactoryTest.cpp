// The entry points that the component runtime calls, and the factory that they hand out.
#include "kit/Library.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <ole2.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <functional>

namespace quillet {
namespace {

class ClassFactory : public testing::Test {
protected:
    ~ClassFactory() override { EXPECT_EQ(library.canUnloadNow(), S_OK); }

    ComPtr<IClassFactory> factory() const { return library.factory(kQvFlatCommandClass); }
    /// The call answers that and hands out nothing.
    static void expectRefusal(HRESULT expected, std::function<HRESULT(void** object)> const& call)
    {
        void* object = reinterpret_cast<void*>(static_cast<ULONG_PTR>(0xDEAD));
        EXPECT_EQ(call(&object), expected);
        EXPECT_EQ(object, nullptr);
    }

    kit::Library const library;
};

TEST_F(ClassFactory, ofAnUnknownClassIsRefused)
{
    expectRefusal(CLASS_E_CLASSNOTAVAILABLE, [&](void** object) {
        return library.getClassObject(IID_IOleObject, IID_IClassFactory, object);
    });
}

TEST_F(ClassFactory, hasNoOtherInterface)
{
    expectRefusal(E_NOINTERFACE, [&](void** object) {
        return library.getClassObject(kQvFlatCommandClass, IID_IOleObject, object);
    });
    EXPECT_EQ(library.getClassObject(kQvFlatCommandClass, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(ClassFactory, makesAnObjectOfTheInterfaceAskedFor)
{
    ComPtr<IClassFactory> const made = factory();
    ASSERT_TRUE(made);
    ComPtr<_qvFlatCommand> button;
    EXPECT_EQ(made->CreateInstance(nullptr, __uuidof(_qvFlatCommand), reinterpret_cast<void**>(button.put())),
              S_OK);
    EXPECT_TRUE(button);
    EXPECT_TRUE(button.as<IOleObject>());
}

TEST_F(ClassFactory, leavesNothingBehindWhereTheInterfaceIsUnknown)
{
    expectRefusal(E_NOINTERFACE,
                  [&](void** object) { return factory()->CreateInstance(nullptr, IID_IMoniker, object); });
    EXPECT_EQ(factory()->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ClassFactory, keepsTheComponentLoaded)
{
    EXPECT_EQ(library.canUnloadNow(), S_OK);
    {
        ComPtr<IClassFactory> const made = factory();
        EXPECT_EQ(library.canUnloadNow(), S_FALSE);
        made->LockServer(TRUE);
    }
    EXPECT_EQ(library.canUnloadNow(), S_FALSE) << "a locked component may be unloaded";
    factory()->LockServer(FALSE);
    EXPECT_EQ(library.canUnloadNow(), S_OK);
}

TEST_F(ClassFactory, anObjectKeepsTheComponentLoaded)
{
    ComPtr<IUnknown> object = library.create(kQvFlatCommandClass);
    ASSERT_TRUE(object);
    EXPECT_EQ(library.canUnloadNow(), S_FALSE);
    object.reset();
    EXPECT_EQ(library.canUnloadNow(), S_OK);
}

/// An object that a control becomes a part of. It lives on the stack and counts for itself alone.
class Outer final : public IUnknown {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        if (iid == IID_IUnknown) {
            AddRef();
            *object = static_cast<IUnknown*>(this);
            return S_OK;
        }
        *object = nullptr;
        return inner ? inner->QueryInterface(iid, object) : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }

    ULONG references = 1;
    ComPtr<IUnknown> inner;
};

TEST_F(ClassFactory, refusesToAggregateByAnotherInterfaceThanIUnknown)
{
    Outer outer;
    expectRefusal(CLASS_E_NOAGGREGATION,
                  [&](void** object) { return factory()->CreateInstance(&outer, IID_IOleObject, object); });
    EXPECT_EQ(outer.references, 1u);
}

TEST_F(ClassFactory, makesAPartOfAnotherObject)
{
    Outer outer;
    ASSERT_EQ(factory()->CreateInstance(&outer, IID_IUnknown, reinterpret_cast<void**>(outer.inner.put())),
              S_OK);
    {
        ComPtr<IOleObject> const part = query<IOleObject>(&outer);
        ASSERT_TRUE(part);
        ComPtr<IUnknown> const identity = part.as<IUnknown>();
        EXPECT_EQ(identity.get(), static_cast<IUnknown*>(&outer));
        EXPECT_NE(outer.inner.get(), static_cast<IUnknown*>(&outer));
    }
    EXPECT_EQ(outer.references, 1u);
    outer.inner.reset();
}

} // namespace
} // namespace quillet
