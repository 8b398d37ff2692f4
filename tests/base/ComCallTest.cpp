// The boundary: what a host sees of what was thrown, that nothing passes; and the count of what is alive.
#include "base/ComCall.h"

#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "base/Module.h"
#include "kit/Errors.h"

#include <ocidl.h>

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace quillet {
namespace {

constexpr ErrorSource kSource{
    L"Quillet.qvFlatCommand", {0x12345678, 0x1234, 0x5678, {1, 2, 3, 4, 5, 6, 7, 8}}, 77};

/// What was left as error info; taking it clears it, as a host does.
struct Report {
    static Report take()
    {
        Report report;
        ComPtr<IErrorInfo> info;
        if (::GetErrorInfo(0, info.put()) != S_OK)
            return report;
        report.present = true;
        info->GetGUID(&report.interfaceId);
        info->GetSource(report.source.put());
        info->GetDescription(report.description.put());
        info->GetHelpFile(report.helpFile.put());
        info->GetHelpContext(&report.helpContext);
        return report;
    }

    bool present = false;
    GUID interfaceId{};
    Bstr source;
    Bstr description;
    Bstr helpFile;
    DWORD helpContext = 0;
};

/// Beside whoever holds the library's code: here the program.
std::wstring besideTheProgram(wchar_t const* file)
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring const whole(program);
    return whole.substr(0, whole.rfind(L'\\') + 1) + file;
}

class Boundary : public testing::Test {
protected:
    Boundary() { ::SetErrorInfo(0, nullptr); }
};

TEST_F(Boundary, aBodyThatAnswersNothingSucceedsAndLeavesNoErrorInfo)
{
    bool ran = false;
    EXPECT_EQ(comCall(kSource, [&] { ran = true; }), S_OK);
    EXPECT_TRUE(ran);
    EXPECT_FALSE(Report::take().present);
}

TEST_F(Boundary, aBodyThatAnswersAResultAnswersForTheCall)
{
    EXPECT_EQ(comCall(kSource, [] { return S_FALSE; }), S_FALSE);
    EXPECT_EQ(comCall([] { return HRESULT{E_NOTIMPL}; }), E_NOTIMPL);
    EXPECT_FALSE(Report::take().present);
}

TEST_F(Boundary, aRunTimeErrorIsItsNumberWithSourceTextInterfaceAndHelp)
{
    EXPECT_EQ(comCall(kSource, [] { throw RunTimeError(ErrorNumber::Overflow); }), kOverflow);
    Report const report = Report::take();
    ASSERT_TRUE(report.present);
    EXPECT_EQ(report.source.view(), L"Quillet.qvFlatCommand");
    EXPECT_EQ(report.description.view(), L"Overflow");
    EXPECT_EQ(report.helpFile.view(), besideTheProgram(L"quillet.chm"));
    EXPECT_EQ(report.helpContext, 77U);
    EXPECT_TRUE(report.interfaceId == kSource.interfaceId);
}

TEST_F(Boundary, everyErrorOfOurOwnHasItsNumberAndItsText)
{
    struct Row {
        ErrorNumber number;
        HRESULT result;
        wchar_t const* text;
    };
    for (Row const& row : {
             Row{ErrorNumber::InvalidProcedureCall, runTimeError(5), L"Invalid procedure call or argument"},
             Row{ErrorNumber::Overflow, runTimeError(6), L"Overflow"},
             Row{ErrorNumber::TypeMismatch, runTimeError(13), L"Type mismatch"},
             Row{ErrorNumber::ObjectNotSet, runTimeError(91),
                 L"Object variable or With block variable not set"},
             Row{ErrorNumber::InvalidPropertyValue, runTimeError(380), L"Invalid property value"},
             Row{ErrorNumber::InvalidPicture, runTimeError(481), L"Invalid picture"},
         }) {
        EXPECT_EQ(comCall(kSource, [&] { throw RunTimeError(row.number); }), row.result);
        EXPECT_EQ(Report::take().description.view(), row.text);
    }
}

TEST_F(Boundary, aFailedCallsResultPassesWithTheSystemsTextAndNoLineBreakAtItsEnd)
{
    EXPECT_EQ(comCall(kSource, [] { check(E_ACCESSDENIED); }), E_ACCESSDENIED);
    Report const report = Report::take();
    ASSERT_TRUE(report.present);
    EXPECT_FALSE(report.description.view().empty());
    EXPECT_EQ(report.description.view().find_first_of(L"\r\n"), std::wstring_view::npos);
}

TEST_F(Boundary, aResultThatTheSystemHasNoTextForIsAnAutomationError)
{
    HRESULT const unknown = static_cast<HRESULT>(0x80047ABC);
    EXPECT_EQ(comCall(kSource, [&] { check(unknown); }), unknown);
    EXPECT_EQ(Report::take().description.view(), L"Automation error");
}

TEST_F(Boundary, aFailedCallOfAnotherInterfaceNamesThatInterface)
{
    EXPECT_EQ(comCall(kSource, [] { check(E_FAIL, IID_IFont); }), E_FAIL);
    Report const report = Report::take();
    EXPECT_TRUE(report.interfaceId == IID_IFont);
    EXPECT_EQ(report.source.view(), L"Quillet.qvFlatCommand");
}

TEST_F(Boundary, lackOfMemoryIsReportedAsSuch)
{
    EXPECT_EQ(comCall(kSource, [] { throw std::bad_alloc(); }), E_OUTOFMEMORY);
    EXPECT_TRUE(Report::take().present);
    EXPECT_EQ(comCall([] { throw std::bad_alloc(); }), E_OUTOFMEMORY);
}

TEST_F(Boundary, anythingElseThatIsThrownIsUnexpected)
{
    EXPECT_EQ(comCall(kSource, [] { throw std::logic_error("mistake"); }), E_UNEXPECTED);
    EXPECT_TRUE(Report::take().present);
    EXPECT_EQ(comCall(kSource, [] { throw 7; }), E_UNEXPECTED);
    EXPECT_EQ(comCall([] { throw "text"; }), E_UNEXPECTED);
}

TEST_F(Boundary, withoutASourceNoErrorInfoIsLeft)
{
    EXPECT_EQ(comCall([] { throw RunTimeError(ErrorNumber::Overflow); }), kOverflow);
    EXPECT_FALSE(Report::take().present);
}

TEST_F(Boundary, aThrowingBodyThatWouldHaveAnsweredAResultFails)
{
    EXPECT_EQ(comCall(kSource, []() -> HRESULT { throw RunTimeError(E_FAIL); }), E_FAIL);
}

TEST_F(Boundary, aNullPointerThatAHostHandsInIsRefused)
{
    EXPECT_EQ(comCall([] { deref(static_cast<int*>(nullptr)) = 1; }), E_POINTER);
    int place = 0;
    EXPECT_EQ(comCall([&] { deref(&place) = 1; }), S_OK);
    EXPECT_EQ(place, 1);
}

TEST_F(Boundary, whatAHostMayNotOfferFallsBack)
{
    EXPECT_EQ(orFallback(3, [] { return 4; }), 4);
    EXPECT_EQ(orFallback(3, []() -> int { throw RunTimeError(E_FAIL); }), 3);
    EXPECT_EQ(orFallback(3, []() -> int { throw 7; }), 3);
}

TEST_F(Boundary, errorsThatAreIgnoredEndTheBodyAndLeaveNoErrorInfo)
{
    bool reached = false;
    ignoringErrors([&] {
        check(E_FAIL);
        reached = true;
    });
    EXPECT_FALSE(reached);
    ignoringErrors([] { throw 7; });
    EXPECT_FALSE(Report::take().present);
}

TEST_F(Boundary, aResultThatIsNoFailureThrowsNothing)
{
    EXPECT_EQ(thrownBy([] { check(S_FALSE); }), S_OK);
    EXPECT_EQ(thrownBy([] { check(S_FALSE, IID_IFont); }), S_OK);
}

TEST(Module, countsAnObjectForAsLongAsItLives)
{
    long const before = liveObjects();
    {
        LiveObject const first;
        LiveObject const second;
        EXPECT_EQ(liveObjects(), before + 2);
    }
    EXPECT_EQ(liveObjects(), before);
}

TEST(Module, countsALockUntilItIsTakenBack)
{
    long const before = liveObjects();
    addLiveObject();
    EXPECT_EQ(liveObjects(), before + 1);
    removeLiveObject();
    EXPECT_EQ(liveObjects(), before);
}

DWORD WINAPI makeAndFree(void*)
{
    for (int i = 0; i < 100000; ++i)
        LiveObject const object;
    return 0;
}

TEST(Module, countsWhatSeveralThreadsMakeAndFree)
{
    long const before = liveObjects();
    HANDLE const threads[] = {::CreateThread(nullptr, 0, &makeAndFree, nullptr, 0, nullptr),
                              ::CreateThread(nullptr, 0, &makeAndFree, nullptr, 0, nullptr)};
    EXPECT_EQ(::WaitForMultipleObjects(2, threads, TRUE, 60000), DWORD{WAIT_OBJECT_0});
    for (HANDLE const handle : threads)
        ::CloseHandle(handle);
    EXPECT_EQ(liveObjects(), before);
}

TEST(Module, remembersItsInstance)
{
    HINSTANCE const before = moduleInstance();
    setModuleInstance(::GetModuleHandleW(nullptr));
    EXPECT_EQ(moduleInstance(), ::GetModuleHandleW(nullptr));
    setModuleInstance(before);
}

} // namespace
} // namespace quillet
