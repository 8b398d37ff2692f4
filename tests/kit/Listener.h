// Everybody who listens to one control: recorders of its events, by name, and of its changed properties.
#pragma once

#include "kit/Sinks.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillet::kit {

using Names = std::vector<std::string>;

/// In their published order, counted from 1.
using EventNames = std::span<char const* const>;
extern EventNames const kCommandEvents;
extern EventNames const kOptionCheckEvents;
std::string eventName(EventNames names, DISPID event);

/// What a control under test is driven with: acts, and what they lead to.
class Listener {
public:
    explicit Listener(EventNames names) : m_names(names) {}
    /// Listens to the control from now on.
    void join(IUnknown* control, REFIID eventsId);
    /// Stops listening.
    void stopListening();
    /// Forgets the control, which goes on telling: a reference of ours would keep it alive.
    void abandon();

    EventRecorder& events() noexcept { return *m_events.get(); }
    ChangeRecorder& changes() noexcept { return *m_changes.get(); }

    /// The name of the last event; empty when there was none.
    std::string lastEvent() const;
    int count(std::string_view event) const;
    /// Acts once, inside the next event of that name.
    void once(std::string const& event, std::function<void()> const& act);
    /// The events since the last time. Moves that follow each other stand as one: how many messages a
    /// movement makes is the system's choice.
    Names happened();
    /// What happened from the beginning of the act until the last event came and nothing more was to come.
    Names during(std::function<void()> const& act, char const* last);

private:
    EventNames m_names;
    ComPtr<EventRecorder> m_events;
    ComPtr<ChangeRecorder> m_changes = make<ChangeRecorder>();
    std::optional<Connection> m_toEvents;
    std::optional<Connection> m_toChanges;
};

/// Runs an action inside each event of that name, of any where it is empty, as long as it lives.
class Inside : NotCopied {
public:
    Inside(Listener& listener, std::string const& name, std::function<void()> const& action)
        : m_events(&listener.events())
    {
        m_events->action = [&listener, name, action](auto const&) {
            if (name.empty() || listener.lastEvent() == name)
                action();
        };
    }
    ~Inside() { m_events->action = nullptr; }

private:
    ComPtr<EventRecorder> m_events;
};

} // namespace quillet::kit
