// The command line of the gallery.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillet::gallery {

struct Options {
    bool help = false;
    bool design = false;
    bool announceReady = false;
    std::wstring readyFile;  ///< where to announce it; empty for the standard output
    std::wstring saveFolder; ///< where to save the form instead of showing it; empty for nowhere
    std::wstring logFile;    ///< where to write the events; empty for nowhere
    std::wstring form;       ///< empty for the gallery's own
};

constexpr wchar_t kUsage[] =
    L"usage: gallery [--design] [--log FILE] [--save FOLDER] [--screenshot-ready[=FILE]] [FORM]\n"
    L"  Opens FORM, or without one the first of its own.\n"
    L"  --design            open the form as a designer shows it\n"
    L"  --log FILE          write every event of the form's controls to FILE, one on a line,\n"
    L"                      as in cmdSave.MouseDown(1, 0, 120, 90); the list of events beside\n"
    L"                      the form leaves Paint out and shows of MouseMoves in a row the newest\n"
    L"  --save FOLDER       open the form as a designer does, save it and its pictures into FOLDER\n"
    L"                      under their names, and end; what nothing changed stays as it is\n"
    L"  --screenshot-ready  say \"ready LEFT TOP WIDTH HEIGHT\" when everything is painted,\n"
    L"                      on the standard output or in FILE\n"
    L"  --help              say this\n";

/// What the words after the program's name ask for; nothing when they make no sense.
std::optional<Options> parseOptions(std::vector<std::wstring> const& words);

} // namespace quillet::gallery
