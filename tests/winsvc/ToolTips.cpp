// The tooltip windows of a thread, and what is sent to them.
#include "ToolTips.h"

#include <gtest/gtest.h>

namespace quillet::winsvc {

namespace {

BOOL CALLBACK collect(HWND window, LPARAM found)
{
    if (kit::isOfClass(window, TOOLTIPS_CLASSW))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

} // namespace

std::vector<HWND> toolTipWindows()
{
    std::vector<HWND> found;
    ::EnumThreadWindows(::GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND theToolTipWindow()
{
    auto const found = toolTipWindows();
    EXPECT_EQ(found.size(), 1U) << "tooltip windows on this thread";
    return found.size() == 1 ? found.front() : nullptr;
}

std::string textOf(HWND toolTip)
{
    char text[256] = "";
    ::GetWindowTextA(toolTip, text, 256);
    return text;
}

ToolTipWatch::ToolTipWatch() : m_watch(kit::Passing::Sent, [this](MSG const& passing) { note(passing); }) {}

void ToolTipWatch::note(MSG const& passing)
{
    bool const isOrder = passing.message == TTM_ACTIVATE || passing.message == TTM_ADDTOOLA ||
                         passing.message == TTM_ADDTOOLW || passing.message == TTM_RELAYEVENT ||
                         passing.message == TTM_DELTOOLA;
    if (!isOrder || !kit::isOfClass(passing.hwnd, TOOLTIPS_CLASSW))
        return;
    ToolTipMessage noted{passing.hwnd, passing.message, passing.wParam, passing.lParam, {}, {}};
    if (passing.message == TTM_ADDTOOLA)
        ::CopyMemory(&noted.tool, reinterpret_cast<void const*>(passing.lParam), TTTOOLINFOA_V1_SIZE);
    if (passing.message == TTM_RELAYEVENT)
        noted.relayed = *reinterpret_cast<MSG const*>(passing.lParam);
    messages.push_back(noted);
}

std::vector<UINT> ToolTipWatch::numbers() const
{
    std::vector<UINT> result;
    for (ToolTipMessage const& each : messages)
        result.push_back(each.message);
    return result;
}

std::vector<UINT> ToolTipWatch::relayed() const
{
    std::vector<UINT> result;
    for (ToolTipMessage const& each : messages)
        if (each.message == TTM_RELAYEVENT)
            result.push_back(each.relayed.message);
    return result;
}

} // namespace quillet::winsvc
