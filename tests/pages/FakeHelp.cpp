// A help viewer that records what it is asked to show, in the place of the system's.
#include "FakeHelp.h"

#include "FakeViewer.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillet::pages {

FakeHelp::FakeHelp() : m_viewer(::LoadLibraryW(QUILLET_FAKE_VIEWER))
{
    EXPECT_TRUE(m_viewer) << "the viewer is not where it is built";
}

HelpCall FakeHelp::takeLast() const
{
    auto const last = functionOf<ViewerCall&()>(m_viewer.get(), "lastCall");
    if (!last)
        return {};
    ViewerCall const call = std::exchange(last(), {});
    return {call.caller, call.file, call.command, call.topic};
}

void FakeHelp::fail() const
{
    if (auto const last = functionOf<ViewerCall&()>(m_viewer.get(), "lastCall"))
        last().fails = true;
}

} // namespace quillet::pages
