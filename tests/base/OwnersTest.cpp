// Counted references and owners of handles: every way in and out, and everything closed once, at the right
// moment.
#include "base/ComPtr.h"
#include "base/Handles.h"
#include "kit/Counterpart.h"

#include <ocidl.h>

#include <gtest/gtest.h>

#include <vector>

namespace quillet {
namespace {

/// An object with two interfaces.
class Object final : public kit::Counterpart<IObjectWithSite, IServiceProvider> {
public:
    STDMETHODIMP SetSite(IUnknown*) override { return E_NOTIMPL; }
    STDMETHODIMP GetSite(REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP QueryService(REFGUID, REFIID, void**) override { return E_NOTIMPL; }
};

/// Says yes to every interface and hands out nothing.
class EmptyHanded final : public IUnknown {
public:
    STDMETHODIMP QueryInterface(REFIID, void** object) override
    {
        *object = nullptr;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
};

class ComPtrTest : public testing::Test {
protected:
    ~ComPtrTest() override { EXPECT_EQ(m_object->references(), 1U) << "a reference was lost or kept"; }

    ComPtr<Object> m_object = kit::make<Object>();
};

TEST_F(ComPtrTest, isEmptyUntilItIsGivenSomething)
{
    EXPECT_FALSE(ComPtr<IUnknown>());
    EXPECT_FALSE(ComPtr<IUnknown>(nullptr));
    EXPECT_EQ(ComPtr<Object>(static_cast<Object*>(nullptr)).get(), nullptr);
}

TEST_F(ComPtrTest, countsAReferenceOfItsOwnToABorrowedPointer)
{
    ComPtr<Object> const pointer(m_object.get());
    EXPECT_EQ(m_object->references(), 2U);
    ComPtr<Object> const copy(pointer);
    EXPECT_EQ(m_object->references(), 3U);
}

TEST_F(ComPtrTest, adoptCountsNothingAndDetachGivesNothingUp)
{
    m_object->AddRef();
    ComPtr<Object> pointer = ComPtr<Object>::adopt(m_object.get());
    EXPECT_EQ(m_object->references(), 2U);
    Object* const raw = pointer.detach();
    EXPECT_FALSE(pointer);
    EXPECT_EQ(m_object->references(), 2U);
    raw->Release();
}

TEST_F(ComPtrTest, movingCountsNothingAndLeavesTheSourceEmpty)
{
    ComPtr<Object> first(m_object.get());
    ComPtr<Object> const second(std::move(first));
    EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move): that is the question
    EXPECT_EQ(m_object->references(), 2U);
}

TEST_F(ComPtrTest, assignmentGivesUpTheOldObjectAndMayBeToItself)
{
    auto const other = kit::make<Object>();
    ComPtr<Object> pointer(m_object.get());
    pointer = other;
    EXPECT_EQ(m_object->references(), 1U);
    EXPECT_EQ(other->references(), 2U);
    ComPtr<Object> const& same = pointer;
    pointer = same;
    EXPECT_EQ(other->references(), 2U);
    pointer = nullptr;
    EXPECT_EQ(other->references(), 1U);
}

TEST_F(ComPtrTest, aCopyForAnOutParameterIsCounted)
{
    ComPtr<Object> const pointer(m_object.get());
    Object* const given = pointer.copy();
    EXPECT_EQ(m_object->references(), 3U);
    given->Release();
    EXPECT_EQ(ComPtr<Object>().copy(), nullptr);
}

TEST_F(ComPtrTest, putGivesUpWhatWasHeldBeforeSomethingElseIsStored)
{
    ComPtr<Object> pointer(m_object.get());
    Object** const place = pointer.put();
    EXPECT_EQ(m_object->references(), 1U);
    EXPECT_FALSE(pointer);
    *place = m_object.copy();
    EXPECT_EQ(pointer.get(), m_object.get());
}

/// Looks at the pointer that holds it when it is given up.
class Curious final : public IUnknown {
public:
    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override
    {
        m_holderWasEmpty = m_holder && !*m_holder;
        return 1;
    }

    ComPtr<Curious> const* m_holder = nullptr;
    bool m_holderWasEmpty = false;
};

TEST_F(ComPtrTest, isAlreadyEmptyWhenTheObjectHearsThatItIsGivenUp)
{
    Curious object;
    ComPtr<Curious> pointer(&object);
    object.m_holder = &pointer;
    pointer.reset();
    EXPECT_TRUE(object.m_holderWasEmpty);
}

TEST_F(ComPtrTest, givesTheSameObjectByAnotherInterfaceAndNothingForOneThatItHasNot)
{
    ComPtr<IObjectWithSite> const pointer(m_object.get());
    ComPtr<IServiceProvider> const provider = pointer.as<IServiceProvider>();
    EXPECT_EQ(provider.get(), static_cast<IServiceProvider*>(m_object.get()));
    EXPECT_EQ(m_object->references(), 3U);
    EXPECT_FALSE(pointer.as<IPersist>());
    EXPECT_FALSE(ComPtr<IObjectWithSite>().as<IServiceProvider>());
}

TEST_F(ComPtrTest, aBorrowedPointerIsAskedForAnInterfaceWithoutBeingKept)
{
    {
        ComPtr<IServiceProvider> const provider = query<IServiceProvider>(m_object->unknown());
        EXPECT_TRUE(provider);
        EXPECT_EQ(m_object->references(), 2U);
    }
    EXPECT_FALSE(query<IServiceProvider>(nullptr));
}

TEST_F(ComPtrTest, aSuccessThatHandsOutNothingIsARefusal)
{
    EmptyHanded object;
    EXPECT_FALSE(query<IServiceProvider>(&object));
}

std::vector<int> g_closed;

struct NumberTraits {
    using Handle = int;
    static void close(int number) noexcept { g_closed.push_back(number); }
};
using UniqueNumber = UniqueHandle<NumberTraits>;

class Handles : public testing::Test {
protected:
    Handles() { g_closed.clear(); }
};

TEST_F(Handles, anOwnerClosesItsHandleOnceAndAnEmptyOneNothing)
{
    {
        UniqueNumber const owner(7);
        UniqueNumber const empty;
        EXPECT_TRUE(owner);
        EXPECT_FALSE(empty);
    }
    EXPECT_EQ(g_closed, std::vector{7});
}

TEST_F(Handles, movingTransfersTheHandle)
{
    {
        UniqueNumber first(7);
        UniqueNumber second(std::move(first));
        EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move): that is the question
        UniqueNumber third(8);
        third = std::move(second);
        EXPECT_EQ(g_closed, std::vector{8});
        EXPECT_EQ(third.get(), 7);
    }
    EXPECT_EQ(g_closed, (std::vector{8, 7}));
}

TEST_F(Handles, releaseLetsGoWithoutClosingAndResetClosesWhatWasHeld)
{
    UniqueNumber owner(7);
    EXPECT_EQ(owner.release(), 7);
    EXPECT_FALSE(owner);
    owner.reset(8);
    owner.reset(9);
    owner.reset();
    EXPECT_EQ(g_closed, (std::vector{8, 9}));
}

TEST_F(Handles, gdiObjectsAreGoneAfterTheirOwners)
{
    HGDIOBJ handle = nullptr;
    {
        UniquePen const pen(::CreatePen(PS_SOLID, 1, 0));
        handle = pen.get();
        EXPECT_EQ(::GetObjectType(handle), DWORD{OBJ_PEN});
    }
    EXPECT_EQ(::GetObjectType(handle), 0U);
}

TEST_F(Handles, aSelectionLastsForItsScope)
{
    UniqueMemoryDc const dc(::CreateCompatibleDC(nullptr));
    HGDIOBJ const before = ::GetCurrentObject(dc.get(), OBJ_PEN);
    {
        SelectScope const selected(dc.get(), ::GetStockObject(WHITE_PEN));
        EXPECT_EQ(::GetCurrentObject(dc.get(), OBJ_PEN), ::GetStockObject(WHITE_PEN));
    }
    EXPECT_EQ(::GetCurrentObject(dc.get(), OBJ_PEN), before);
}

} // namespace
} // namespace quillet
