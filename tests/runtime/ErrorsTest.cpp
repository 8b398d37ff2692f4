// Errors in a host that has the compiler's shared run time in its process, as programs of other makers have:
// what unwinds that library's frames must not be taken for what unwinds the component's.
#include "kit/Errors.h"

#include "base/Variant.h"
#include "kit/ByName.h"
#include "kit/Library.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace quillet {
namespace {

#ifdef _WIN64
constexpr wchar_t kSharedRunTime[] = L"libgcc_s_seh-1.dll";
#else
constexpr wchar_t kSharedRunTime[] = L"libgcc_s_dw2-1.dll";
#endif

/// The component in a process that has the shared run time: from its start, where the program is linked with
/// it, or else from after the component came.
class ErrorsBesideTheSharedRunTime : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_library = new kit::Library;
        bool const before = ::GetModuleHandleW(kSharedRunTime) != nullptr;
        ASSERT_EQ(before, QUILLET_LINKED_SHARED);
        ASSERT_TRUE(::LoadLibraryW(kSharedRunTime)); // and it stays
    }
    static void TearDownTestSuite() { delete s_library; }
    void SetUp() override { ASSERT_TRUE(s_library->loaded()); }

    ComPtr<IDispatch> control(CLSID const& classId) const
    {
        auto const made = s_library->create(classId);
        return made ? made.as<IDispatch>() : ComPtr<IDispatch>();
    }
    HRESULT putError(CLSID const& classId, wchar_t const* name, Variant const& value) const
    {
        auto const object = control(classId);
        return object ? kit::putByName(*object.get(), name, value).code : E_FAIL;
    }

private:
    inline static kit::Library* s_library = nullptr;
};

TEST_F(ErrorsBesideTheSharedRunTime, aNumberTooLargeIsAnOverflow)
{
    EXPECT_EQ(putError(kQvFlatCommandClass, L"BorderWidth", Variant::ofLong(40000)), runTimeError(6));
}

TEST_F(ErrorsBesideTheSharedRunTime, aWordForANumberIsATypeMismatch)
{
    EXPECT_EQ(putError(kQvImageCommandClass, L"BorderWidth", Variant::ofString(L"wide")), runTimeError(13));
}

TEST_F(ErrorsBesideTheSharedRunTime, aStateThatThereIsNotIsAnInvalidValue)
{
    EXPECT_EQ(putError(kQvFlatCheckClass, L"Value", Variant::ofLong(7)), runTimeError(380));
}

TEST_F(ErrorsBesideTheSharedRunTime, noFontIsAnObjectThatIsNotSet)
{
    auto const object = control(kQvFlatOptionClass);
    ASSERT_TRUE(object);
    EXPECT_EQ(kit::setByName(*object.get(), L"Font", nullptr).code, runTimeError(91));
}

TEST_F(ErrorsBesideTheSharedRunTime, anObjectThatIsNoFontIsATypeMismatch)
{
    auto const object = control(kFlatToolButtonClass);
    auto const button = object.as<_FlatToolButton>();
    ASSERT_TRUE(button);
    EXPECT_EQ(button->putref_Font(static_cast<IFontDisp*>(object.get())), runTimeError(13));
}

TEST_F(ErrorsBesideTheSharedRunTime, anAnswerWithoutAPlaceIsABadPointer)
{
    auto const button = control(kQvFlatCommandClass).as<_qvFlatCommand>();
    ASSERT_TRUE(button);
    EXPECT_EQ(button->get_Caption(nullptr), E_POINTER);
}

TEST_F(ErrorsBesideTheSharedRunTime, aCaptionWhoseMarkIsTooFarAwayDrawsNothing)
{
    auto const button = control(kQvFlatCommandClass).as<_qvFlatCommand>();
    ASSERT_TRUE(button);
    Bstr const caption(std::wstring(70000, L'x') + L"&y");
    EXPECT_EQ(button->put_Caption(caption.get()), S_OK);
    EXPECT_EQ(button->DrawButton(), S_OK);
}

TEST_F(ErrorsBesideTheSharedRunTime, aStreamThatEndsTooSoonIsRefused)
{
    auto const button = control(kQvImageCommandClass).as<IPersistStreamInit>();
    ASSERT_TRUE(button);
    ComPtr<IStream> empty;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, empty.put()), S_OK);
    EXPECT_TRUE(FAILED(button->Load(empty.get())));
}

} // namespace
} // namespace quillet
