// Measures the built component from outside, as a host uses it, and writes one line for each figure:
// bench [--smoke] [fills|paint|pictures|mouse|focus|creation|members|saving|options|footprint|size]…
#include "base/RunTimeError.h"
#include "bench/Bench.h"
#include "bench/Rounds.h"

#include <ole2.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string_view>
#include <vector>

namespace {

using namespace quillet;
using namespace quillet::bench;

void print(Rows const& rows)
{
    for (Row const& row : rows)
        std::printf("%s\t%s\t%s\t%s\t%s\n", row.what.c_str(), row.ours.c_str(), row.floor.c_str(),
                    row.ratio.c_str(), row.goal.c_str());
    std::fflush(stdout);
}

/// A measurement and the word that asks for it alone.
struct Part {
    char const* word;
    Rows (*measure)(kit::Library const&, Effort);
};

constexpr Part kParts[] = {
    {"fills", &measureFills}, // first, while the table of GDI has no holes that others left
    {"paint", &measurePaint},   {"pictures", &measurePictures}, {"mouse", &measureMouse},
    {"focus", &measureFocus},   {"creation", &measureCreation}, {"members", &measureMembers},
    {"saving", &measureSaving}, {"options", &measureOptions},   {"footprint", &measureFootprint},
    {"size", &measureSize},
};

struct Wish {
    Effort effort = Effort::Full;
    std::vector<std::string_view> words; // none for all parts
};

Wish wishOf(int argc, char** argv)
{
    Wish wish;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--smoke") == 0)
            wish.effort = Effort::Smoke;
        else
            wish.words.emplace_back(argv[i]);
    }
    return wish;
}

void run(Wish const& wish)
{
    kit::Library const library;
    require(library.loaded(), "quilbt.ocx beside this program cannot be loaded");
    for (Part const& part : kParts)
        if (wish.words.empty() || std::ranges::find(wish.words, part.word) != wish.words.end())
            print(part.measure(library, wish.effort));
}

} // namespace

int main(int argc, char** argv)
{
    if (FAILED(::OleInitialize(nullptr)))
        return 1;
    int failed = 0;
    try {
        run(wishOf(argc, argv));
    } catch (RunTimeError const& error) {
        std::fprintf(stderr, "bench: a call failed with 0x%08lx\n",
                     static_cast<unsigned long>(error.result()));
        failed = 1;
    } catch (std::exception const& error) {
        std::fprintf(stderr, "bench: %s\n", error.what());
        failed = 1;
    }
    ::OleUninitialize();
    return failed;
}
