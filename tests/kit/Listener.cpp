// Everybody who listens to one control: recorders of its events, by name, and of its changed properties.
#include "kit/Listener.h"

#include "kit/Pump.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::kit {

namespace {

constexpr char const* kCommandNames[] = {"MouseEnter", "MouseExit", "Paint",     "Click",
                                         "DblClick",   "MouseDown", "MouseMove", "MouseUp"};
constexpr char const* kOptionCheckNames[] = {"Click",     "KeyDown",   "KeyPress", "KeyUp",
                                             "MouseDown", "MouseMove", "MouseUp",  "Resize"};

} // namespace

EventNames const kCommandEvents = kCommandNames;
EventNames const kOptionCheckEvents = kOptionCheckNames;

std::string eventName(EventNames names, DISPID event)
{
    auto const at = static_cast<size_t>(event) - 1;
    return at < names.size() ? names[at] : "event " + std::to_string(event);
}

void Listener::join(IUnknown* control, REFIID eventsId)
{
    m_events = make<EventRecorder>(eventsId);
    m_toEvents.emplace(control, eventsId, m_events->unknown());
    m_toChanges.emplace(control, __uuidof(IPropertyNotifySink), m_changes->unknown());
    EXPECT_TRUE(m_toEvents->joined()) << "the control refuses its event sink";
    EXPECT_TRUE(m_toChanges->joined()) << "the control refuses a sink for changed properties";
}

void Listener::stopListening()
{
    m_toEvents.reset();
    m_toChanges.reset();
}

void Listener::abandon()
{
    for (auto* const each : {&m_toEvents, &m_toChanges})
        if (*each)
            (*each)->abandon();
    stopListening();
}

std::string Listener::lastEvent() const
{
    return m_events->events.empty() ? std::string() : eventName(m_names, m_events->events.back().id);
}

int Listener::count(std::string_view event) const
{
    return static_cast<int>(std::ranges::count_if(
        m_events->events, [&](auto const& each) { return eventName(m_names, each.id) == event; }));
}

void Listener::once(std::string const& event, std::function<void()> const& act)
{
    m_events->action = [this, event, act](auto const&) {
        if (lastEvent() != event)
            return;
        m_events->action = nullptr;
        act();
    };
}

Names Listener::happened()
{
    Names names;
    for (DISPID const id : m_events->ids())
        names.push_back(eventName(m_names, id));
    m_events->forget();
    auto const bothMoves = [](std::string const& a, std::string const& b) {
        return a == "MouseMove" && b == "MouseMove";
    };
    names.erase(std::unique(names.begin(), names.end(), bothMoves), names.end());
    return names;
}

Names Listener::during(std::function<void()> const& act, char const* last)
{
    pumpPending();
    m_events->forget();
    act();
    EXPECT_TRUE(pumpUntil([&] { return count(last) > 0; })) << last << " did not come";
    pumpPending();
    return happened();
}

} // namespace quillet::kit
