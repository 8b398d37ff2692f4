// What a process and a thread hold at a moment, to see what many lives one after another leave behind.
#pragma once

#include <cstddef>
#include <functional>

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

/// Windows of the calling thread, children included.
int windowsOfThread();

/// Runs a number of rounds, 280 or more, after a few that fill the system's caches, and expects that nothing
/// is held for them: windows and places stay, and in one half of the rounds at least the heaps did not grow
/// by as much as the smallest block a round. (What is kept grows in both halves; a group of blocks is made in
/// one.) A fatal failure in a round ends them.
void expectNothingIsLeft(int rounds, std::function<void(int)> const& round);

} // namespace quillet::kit
