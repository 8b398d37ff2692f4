// What a process and a thread hold at a moment, to see what many lives one after another leave behind.
#pragma once

#include <cstddef>

namespace quillet::kit {

/// The places are those in their tables that a new handle gets: they climb as long as handles are lost.
/// (Some systems answer nothing when they are asked for a process's number of handles.)
struct Usage {
    int windows;       ///< of the calling thread, children included
    int window;        ///< place
    int gdi;           ///< place
    std::size_t bytes; ///< in use on all heaps of the process

    static Usage now();
};

} // namespace quillet::kit
