// Handling waiting messages in the middle of something else.
#pragma once

namespace quillet {

/// Handles the thread's waiting messages but for input, until there are none. The caller may find its window
/// destroyed, or more, when this comes back. Called while it runs it does nothing, as the call that is
/// running goes on with the messages that came meanwhile.
void letMessagesRun();

} // namespace quillet
