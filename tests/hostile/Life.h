// One control's life in a container, from its making to its release, with somebody who misbehaves in it.
#pragma once

#include "HostileTest.h"
#include "kit/FakeBag.h"
#include "kit/FakeForm.h"
#include "kit/Hosted.h"
#include "kit/NotCopied.h"
#include "kit/Sinks.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillet::hostile {

class Life;

/// A message that a life posts to its control's window.
constexpr UINT kPosted = WM_APP + 7;

/// What a counterpart does when it is asked or told something.
struct Deed {
    char const* name;
    std::function<void(Life&)> run;
};

/// A control on a form of its own, with every kind of sink joined. Every step may be taken in any state of
/// the control, also when it is gone.
class Life : kit::NotCopied {
public:
    explicit Life(ControlKind const& kind);
    ~Life();

    kit::FakeForm form;
    kit::Hosted control;

    ControlKind const& kind() const noexcept { return m_kind; }
    template <class T> ComPtr<T> as() const { return control.as<T>(); }

    /// The deed is done each time that the occasion comes: a call of the form's record ("Site.OnFocus"), an
    /// event ("Event(4)"), "Changed", "ViewChanged", "Closed", or a message of the control's windows
    /// ("Before(15)", "After(15)").
    /// The first few occasions may be let pass.
    void arm(std::string const& occasion, Deed const& deed, int letPass = 0);
    /// How often the deed was done.
    int done() const noexcept { return m_done; }
    void noted(std::string const& call);
    /// Hears of every occasion.
    std::function<void(std::string const&)> heard;
    bool asksAccessibleObject = true; ///< not where memory is counted: some systems keep some of it each time

    /// Every step of a standard life, in order, and the end.
    void live();
    /// Closes, takes the site away, releases, and looks at what the container was told.
    void end();

    // The steps.
    void begin();
    void joinSinks();
    void cutSinks();
    void initOrLoad();
    void show();
    void useKeys();
    void useAccessibleObject();
    void useMouse();
    void draw();
    void putProperties();
    void changeAmbients();
    void saveAndLoad();
    void resize(int width, int height);
    void hideAndShow();
    void leave();

    /// The window that takes keys and mouse: the control's or the one inside it; null when there is none.
    HWND inputWindow() const;
    /// The control's own window while it has one in the form.
    HWND ownWindow() const;
    /// A second site on another form, made at the first need.
    kit::FakeSite& otherSite();
    HWND otherForm();

private:
    void watchWindows();

    ControlKind const& m_kind;
    ComPtr<kit::EventRecorder> m_events;
    ComPtr<kit::ChangeRecorder> m_changes;
    ComPtr<kit::ViewRecorder> m_views;
    std::vector<std::unique_ptr<kit::Connection>> m_connections;
    std::unique_ptr<kit::FakeForm> m_otherForm;
    ComPtr<kit::FakeSite> m_otherSite;
    std::string m_occasion;
    Deed const* m_deed = nullptr;
    bool m_doing = false;
    int m_letPass = 0;
    int m_done = 0;
    bool m_ended = false;
};

/// A bag with a value of its own for every property that the control saves as a number, flag or text.
ComPtr<kit::FakeBag> filledBag();

} // namespace quillet::hostile
