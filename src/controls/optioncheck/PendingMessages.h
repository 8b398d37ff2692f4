// Letting the messages that wait run, in the middle of something.
#pragma once

namespace quillet {

/// Handles the thread's waiting messages, input apart, until there are none. Whatever they lead to happens
/// before this comes back: the caller may have lost its window, or more. Within itself it does nothing:
/// whoever began it goes on to the messages that came meanwhile.
void letMessagesRun();

} // namespace quillet
