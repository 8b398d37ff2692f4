// Several controls alive at once on one form, and the steps that a generator takes them through.
#pragma once

#include "HostileTest.h"
#include "kit/FakeForm.h"
#include "kit/Hosted.h"
#include "kit/NotCopied.h"
#include "kit/Sinks.h"

#include <array>
#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace quillet::hostile {

using Random = std::mt19937;

/// A number from 0 up to, but without, the end.
inline int below(Random& random, int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
template <class Row, size_t count> Row const& oneOf(Random& random, Row const (&rows)[count])
{
    return rows[below(random, static_cast<int>(count))];
}

/// A place for one control, which may be there or not.
struct Slot {
    ControlKind const* kind = nullptr;
    std::unique_ptr<kit::Hosted> control;
    ComPtr<kit::EventRecorder> events;
    ComPtr<kit::ChangeRecorder> changes;
    ComPtr<kit::ViewRecorder> views;
    std::vector<std::unique_ptr<kit::Connection>> connections;
    bool isOver = false; ///< closed, or without the site that it had: no event may come
    int beginning = 0;   ///< calls under way that may begin it anew

    template <class T> ComPtr<T> as() const { return control ? control->as<T>() : ComPtr<T>(); }
    template <class Named = void, class Declaring, class... Parameters>
    HRESULT ask(HRESULT (STDMETHODCALLTYPE Declaring::*method)(Parameters...),
                std::type_identity_t<Parameters>... arguments) const
    {
        return kit::ask<Named>(control ? control->object() : nullptr, method, arguments...);
    }
    /// The control's window in the form or the one inside it, whatever there is.
    HWND anyWindow(Random& random) const;
};

class World : kit::NotCopied {
public:
    explicit World(unsigned seed);
    ~World();

    kit::FakeForm form;
    kit::FakeForm otherForm;
    ComPtr<kit::FakeSite> otherSite;
    Random random;
    std::array<Slot, 4> slots;

    /// One step of the tables with one of the controls.
    void step();
    /// From a counterpart, in the middle of a call of a control's: now and then one more step.
    void called();

    void create(Slot& slot);
    void drop(Slot& slot);

    /// Runs a call that may begin the control anew.
    void begin(Slot& slot, std::function<void()> const& call);
    /// Runs a call that puts the control away or ends it, and looks at what it leaves behind.
    enum class Afterwards { Parked, Over };
    void end(Slot& slot, Afterwards what, std::function<void()> const& call);

private:
    std::vector<std::unique_ptr<kit::Hosted>> m_former; ///< one of their steps may still be running
    int m_depth = 0;
    unsigned m_steps = 0;
};

struct Step {
    char const* name;
    int weight;
    void (*run)(World&, Slot&);
};

/// What containers call.
std::vector<Step> const& containerSteps();
/// What scripts, windows and nobody in his right mind call.
std::vector<Step> const& otherSteps();

/// A rectangle of any size, small ones mostly.
RECT anyRectangle(Random& random);

} // namespace quillet::hostile
