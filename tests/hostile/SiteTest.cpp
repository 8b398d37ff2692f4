// Containers whose sites, frames, extenders and listeners fail, answer nothing, take themselves away, or do
// something to the control in the middle of a call.
#include "Deeds.h"
#include "HostileTest.h"
#include "kit/ByName.h"
#include "kit/Canvas.h"
#include "kit/Counterpart.h"
#include "kit/FakeForm.h"
#include "kit/Memory.h"

#include <ocidl.h>
#include <olectl.h>

namespace quillet::hostile {
namespace {

struct Answer {
    char const* name;
    HRESULT result;
    bool nothing; ///< success that hands out nothing
};

constexpr Answer kAnswers[] = {
    {"E_FAIL", E_FAIL, false},   {"E_NOTIMPL", E_NOTIMPL, false}, {"E_UNEXPECTED", E_UNEXPECTED, false},
    {"S_FALSE", S_FALSE, false}, {"nothing", S_OK, true},         {"nothing and fails", E_FAIL, true},
};

constexpr size_t kAnswersTaken = 20;

constexpr char const* kAsked[] = {"Site.GetWindow",
                                  "Site.GetWindowContext",
                                  "Site.CanInPlaceActivate",
                                  "Site.OnInPlaceActivate",
                                  "Site.OnUIActivate",
                                  "Site.OnUIDeactivate",
                                  "Site.OnInPlaceDeactivate",
                                  "Site.ShowObject",
                                  "Site.OnFocus",
                                  "Site.TranslateAccelerator",
                                  "Site.GetExtendedControl",
                                  "Site.OnControlInfoChanged",
                                  "Site.SaveObject",
                                  "Frame.SetActiveObject",
                                  "Ambient(-709)",
                                  "Ambient(-703)",
                                  "Event(4)",
                                  "Event(7)",
                                  "Event(8)",
                                  "Changed",
                                  "ViewChanged",
                                  "Saved",
                                  "Closed"};

void give(Answer const& answer, std::string const& call, Life& life)
{
    if (!answer.nothing || FAILED(answer.result))
        life.form.record().answer(call, answer.result);
    if (answer.nothing)
        life.form.record().answerNothing(call);
}

class HostileSite : public HostileControlTest {};
QV_ALL_CONTROLS(HostileSite);

TEST_P(HostileSite, isAskedWhatTheTablesOfThisRoomGoThrough)
{
    auto const occasions = occasionsOf(kind());
    for (char const* const expected : kAsked)
        EXPECT_TRUE(occasions.contains(expected)) << expected;
}

TEST_P(HostileSite, thatFailsInAnyOfItsCallsIsLivedWith)
{
    for (auto const& [call, times] : occasionsOf(kind()))
        for (Answer const& answer : kAnswers) {
            if (!isDue(kAnswersTaken))
                continue;
            live(kind(), call + " answers " + answer.name,
                 [&, call = call](Life& life) { give(answer, call, life); });
            ASSERT_FALSE(HasFailure());
        }
}

TEST_P(HostileSite, thatFailsInEveryCallIsLivedWith)
{
    auto const occasions = occasionsOf(kind());
    for (Answer const& answer : kAnswers)
        live(kind(), std::string("everything answers ") + answer.name, [&](Life& life) {
            for (auto const& [call, times] : occasions)
                give(answer, call, life);
        });
}

TEST_P(HostileSite, thatDoesSomethingToTheControlInAnyOfItsCallsIsLivedWith)
{
    std::vector<Occasion> calls;
    for (auto const& [call, times] : occasionsOf(kind()))
        if (call.find('.') != std::string::npos || call.starts_with("Ambient"))
            calls.push_back({call, times});
    liveThroughDeeds(kind(), calls, 50);
}

class HostileSink : public HostileControlTest {};
QV_ALL_CONTROLS(HostileSink);

TEST_P(HostileSink, thatDoesSomethingToTheControlInAnyEventIsLivedWith)
{
    std::vector<Occasion> events;
    for (auto const& [call, times] : occasionsOf(kind()))
        if (call.starts_with("Event("))
            events.push_back({call, times});
    EXPECT_THAT(events, testing::SizeIs(testing::Ge(7U)));
    liveThroughDeeds(kind(), events, 60);
}

TEST_P(HostileSink, thatDoesSomethingToTheControlInANoticeIsLivedWith)
{
    liveThroughDeeds(kind(), {{"Changed", 40}, {"ViewChanged", 40}, {"Saved", 2}, {"Closed", 2}}, 50);
}

/// What became of a site, kept outside it.
struct Fate {
    int calls = 0;
    int goneInACall = 0; ///< it was released for the last time while a call of its own ran
    IOleObject* control = nullptr;
    HWND form = nullptr;
};

/// Offers what a control asks most, and at the given call takes itself away from the control.
class PassingSite final : public kit::DispatchCounterpart<IOleClientSite, IOleControlSite, IOleInPlaceSite,
                                                          IOleContainer, IDispatch> {
public:
    PassingSite(Fate& fate, int leavesAt) : m_fate(fate), m_leavesAt(leavesAt) {}

    STDMETHODIMP SaveObject() override { return passing(S_OK); }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer** container) override
    {
        *container = ComPtr<IOleContainer>(this).detach();
        return passing(S_OK);
    }
    STDMETHODIMP ShowObject() override { return passing(S_OK); }
    STDMETHODIMP OnShowWindow(BOOL) override { return passing(S_OK); }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
    STDMETHODIMP OnControlInfoChanged() override { return passing(S_OK); }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return passing(S_OK); }
    STDMETHODIMP GetExtendedControl(IDispatch** extender) override
    {
        *extender = nullptr;
        return passing(E_NOTIMPL);
    }
    STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override { return passing(S_FALSE); }
    STDMETHODIMP OnFocus(BOOL) override { return passing(S_OK); }
    STDMETHODIMP ShowPropertyFrame() override { return passing(S_OK); }
    STDMETHODIMP GetWindow(HWND* window) override
    {
        *window = m_fate.form;
        return passing(S_OK);
    }
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP CanInPlaceActivate() override { return passing(S_OK); }
    STDMETHODIMP OnInPlaceActivate() override { return passing(S_OK); }
    STDMETHODIMP OnUIActivate() override { return passing(S_OK); }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT*, RECT*,
                                  OLEINPLACEFRAMEINFO*) override
    {
        *frame = nullptr;
        *document = nullptr;
        return passing(E_NOTIMPL);
    }
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return passing(S_OK); }
    STDMETHODIMP OnInPlaceDeactivate() override { return passing(S_OK); }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(RECT const*) override { return passing(S_OK); }
    STDMETHODIMP ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP EnumObjects(DWORD, IEnumUnknown** objects) override
    {
        *objects = nullptr;
        return passing(E_NOTIMPL);
    }
    STDMETHODIMP LockContainer(BOOL) override { return S_OK; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return passing(DISP_E_MEMBERNOTFOUND);
    }

private:
    ~PassingSite() override
    {
        if (m_inCall)
            ++m_fate.goneInACall;
    }
    /// Whoever calls has to keep what he calls: nothing of the site is used after it has left.
    HRESULT passing(HRESULT answer)
    {
        Fate& fate = m_fate;
        if (++fate.calls != m_leavesAt)
            return answer;
        AddRef();
        m_inCall = true;
        fate.control->SetClientSite(nullptr);
        m_inCall = m_inCall && references() == 1; // the last reference is ours: the caller has none
        Release();
        return answer;
    }

    Fate& m_fate;
    int m_leavesAt;
    bool m_inCall = false;
};

class HostilePassingSite : public HostileControlTest {
protected:
    kit::FakeForm form;

    /// Everything in which a control asks its site, with a site that leaves at one of its calls.
    Fate live(int leavesAt)
    {
        Fate fate;
        auto const control = library().create(kind().classId);
        auto const object = query<IOleObject>(control.get());
        fate.control = object.get();
        fate.form = form.window();
        object->SetClientSite(kit::make<PassingSite>(fate, leavesAt).get());
        auto const stream = query<IPersistStreamInit>(control.get());
        stream->InitNew();
        object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, nullptr, 0, form.window(), nullptr);
        auto const own = query<IDispatch>(control.get());
        kit::callByName(*own.get(), L"Refresh");
        kit::putByName(*own.get(), L"AutoSizeWidth", Variant::ofBool(true));
        kit::putByName(*own.get(), L"Caption", Variant::ofString(L"&Passing"));
        kit::putByName(*own.get(), L"Value", Variant::ofLong(1));
        stream->Save(kit::streamOf().get(), FALSE);
        MSG key{nullptr, WM_KEYDOWN, VK_TAB, 0, 0, {}};
        query<IOleInPlaceActiveObject>(control.get())->TranslateAccelerator(&key);
        object->Close(OLECLOSE_SAVEIFDIRTY);
        return fate;
    }
};
QV_ALL_CONTROLS(HostilePassingSite);

TEST_P(HostilePassingSite, isKeptToTheEndOfEachOfItsCalls)
{
    int const calls = live(0).calls;
    EXPECT_GT(calls, 15);
    for (int leavesAt = 1; leavesAt <= calls; ++leavesAt) {
        Journal::begin("leaves at call " + std::to_string(leavesAt));
        EXPECT_EQ(live(leavesAt).goneInACall, 0) << "call " << leavesAt << " of " << calls;
        expectNothingLeft();
    }
}

} // namespace
} // namespace quillet::hostile
