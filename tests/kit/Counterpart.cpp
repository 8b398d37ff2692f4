// What counterparts were asked, in order, and how they are to answer.
#include "kit/Counterpart.h"

#include <algorithm>

namespace quillet::kit {

int Record::count(std::string_view call) const { return static_cast<int>(std::ranges::count(m_calls, call)); }

int Record::countFrom(std::string_view beginning) const
{
    return static_cast<int>(
        std::ranges::count_if(m_calls, [&](std::string const& call) { return call.starts_with(beginning); }));
}

void Record::answerAsUsual(std::string const& method)
{
    m_results.erase(method);
    m_nothing.erase(method);
}

bool Record::asked(std::string const& method, HRESULT& result, std::string const& details)
{
    note(details.empty() ? method : method + '(' + details + ')');
    auto const found = m_results.find(method);
    if (found == m_results.end())
        return true;
    result = found->second;
    return false;
}

std::string textOf(RECT const* rectangle)
{
    if (!rectangle)
        return "null";
    return std::to_string(rectangle->left) + ',' + std::to_string(rectangle->top) + ',' +
           std::to_string(rectangle->right) + ',' + std::to_string(rectangle->bottom);
}

} // namespace quillet::kit
