// Several controls alive at once on one form, and the steps that a generator takes them through.
#include "World.h"

#include "HostileTest.h"
#include "kit/Pump.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillet::hostile {

namespace {

constexpr int kMostNested = 3;

Step const& anyStep(Random& random)
{
    static std::vector<Step const*> const all = [] {
        std::vector<Step const*> rows;
        for (std::vector<Step> const* table : {&containerSteps(), &otherSteps()})
            for (Step const& step : *table)
                rows.insert(rows.end(), static_cast<size_t>(step.weight), &step);
        return rows;
    }();
    return *all[random() % all.size()];
}

} // namespace

RECT anyRectangle(Random& random)
{
    constexpr LONG kEdges[] = {0,   1,    17,    60,         200,
                               -50, 1300, 33000, 0x7FFFFFFF, static_cast<LONG>(0x80000000)};
    auto const edge = [&] { return kEdges[below(random, random() % 8 ? 5 : 10)]; };
    return {edge(), edge(), edge(), edge()};
}

HWND Slot::anyWindow(Random& random) const
{
    HWND window = nullptr;
    if (auto const own = as<IOleWindow>(); own && random() % 2)
        own->GetWindow(&window);
    HWND const inner = window ? ::GetWindow(window, GW_CHILD) : nullptr;
    return inner && random() % 2 ? inner : window;
}

World::World(unsigned seed) : otherSite(kit::make<kit::FakeSite>(otherForm, kPlace, L"Other")), random(seed)
{
    form.record().whenNoted = [this](std::string const&) { called(); };
    otherForm.record().whenNoted = [this](std::string const&) { called(); };
}

World::~World()
{
    for (Slot& slot : slots)
        drop(slot);
    form.record().whenNoted = nullptr;
    otherForm.record().whenNoted = nullptr;
    otherSite->dismantle();
    kit::pumpPending();
    for (kit::FakeForm* const each : {&form, &otherForm}) {
        each->frame().forgetActiveObject();
        kit::Record const& record = each->record();
        EXPECT_EQ(record.count("Site.OnInPlaceActivate"), record.count("Site.OnInPlaceDeactivate"));
        EXPECT_EQ(record.count("Site.OnUIActivate"), record.count("Site.OnUIDeactivate"));
    }
    kit::pumpPending();
}

void World::create(Slot& slot)
{
    drop(slot);
    if (slot.control)
        m_former.push_back(std::move(slot.control));
    slot.kind = &oneOf(random, kControls);
    slot.control = std::make_unique<kit::Hosted>(HostileTest::library(), slot.kind->classId, form, kPlace);
    slot.events = kit::make<kit::EventRecorder>(slot.kind->eventsId);
    slot.changes = kit::make<kit::ChangeRecorder>();
    slot.views = kit::make<kit::ViewRecorder>();
    slot.isOver = false;
    slot.events->action = [this, &slot](auto const& event) {
        EXPECT_FALSE(slot.isOver) << "event " << event.id << " of a control that has ended, after\n"
                                  << Journal::text();
        called();
    };
    slot.changes->action = [this](DISPID) { called(); };
    slot.views->action = [this](std::string const&) { called(); };
}

void World::drop(Slot& slot)
{
    if (!slot.control)
        return;
    slot.control->remove();
    std::exchange(slot.connections, {}).clear();
}

void World::begin(Slot& slot, std::function<void()> const& call)
{
    slot.isOver = false;
    ++slot.beginning;
    call();
    --slot.beginning;
}

void World::end(Slot& slot, Afterwards what, std::function<void()> const& call)
{
    HWND window = nullptr;
    if (auto const own = slot.as<IOleWindow>(); own && m_steps % 2) // asking makes one
        own->GetWindow(&window);
    unsigned const before = m_steps;
    call();
    if (before != m_steps || slot.beginning) // another step has come between
        return;
    HWND const captured = ::GetCapture();
    EXPECT_FALSE(captured && (captured == window || ::IsChild(window, captured)))
        << "the mouse is kept after\n"
        << Journal::text();
    if (what == Afterwards::Parked)
        return;
    slot.isOver = true;
    EXPECT_FALSE(::IsWindow(window)) << "the window lives on after\n" << Journal::text();
}

void World::step()
{
    ++m_steps;
    Slot& slot = slots[random() % slots.size()];
    Step const& next = anyStep(random);
    Journal::step(std::string(static_cast<size_t>(m_depth) * 2, ' ') + "control " +
                  std::to_string(&slot - slots.data()) + ' ' +
                  (slot.kind ? slot.kind->name : "not made yet") + ": " + next.name);
    ++m_depth;
    if (!slot.control)
        create(slot);
    else
        next.run(*this, slot);
    --m_depth;
}

void World::called()
{
    if (m_depth < kMostNested && random() % 12 == 0)
        step();
}

} // namespace quillet::hostile
