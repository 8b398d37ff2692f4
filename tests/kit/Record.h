// What counterparts were asked, in order, and how they are to answer.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet::kit {

/// A list of calls that several counterparts share, so that their order can be compared.
/// A call is noted as "Who.Method" or "Who.Method(details)"; answers are set by "Who.Method".
class Record {
public:
    void note(std::string const& call)
    {
        m_calls.push_back(call);
        if (auto const run = whenNoted)
            run(call);
    }
    /// Runs inside every call, before it is answered: what a counterpart does when it is asked.
    std::function<void(std::string const&)> whenNoted;

    std::vector<std::string> const& calls() const noexcept { return m_calls; }
    /// The calls since the last time, forgotten from here on.
    std::vector<std::string> take() { return std::exchange(m_calls, {}); }
    void forget() { m_calls.clear(); }

    /// How many calls are equal to the text, and how many begin with it.
    int count(std::string_view call) const;
    int countFrom(std::string_view beginning) const;

    /// From here on the method answers the result without doing anything.
    void answer(std::string const& method, HRESULT result) { m_results[method] = result; }
    /// From here on the method succeeds but hands out a null pointer.
    void answerNothing(std::string const& method) { m_nothing.insert(method); }
    void answerAsUsual(std::string const& method);

    /// Notes the call. False when the method is to answer only result.
    bool asked(std::string const& method, HRESULT& result, std::string const& details = {});
    bool handsOutNothing(std::string const& method) const { return m_nothing.contains(method); }

private:
    std::vector<std::string> m_calls;
    std::map<std::string, HRESULT> m_results;
    std::set<std::string> m_nothing;
};

using SharedRecord = std::shared_ptr<Record>;

/// The rectangle as "left,top,right,bottom"; "null" for none.
std::string textOf(RECT const* rectangle);

} // namespace quillet::kit
