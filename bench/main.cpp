// Measures the built component from outside, as a host uses it, and writes one line for each figure, then
// what falls short of its goal and how long it took: bench [--smoke]
// [fills|paint|pictures|mouse|focus|creation|forms|members|saving|options|footprint|size]… bench requests
// makes what the requests to the window server are counted at, and nothing else.
#include "base/RunTimeError.h"
#include "bench/Bench.h"
#include "bench/Goals.h"
#include "bench/Rounds.h"
#include "kit/UiThread.h"

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
        std::printf("%s\t%s\t%s\t%s : %s\n", row.what.c_str(), goalText(row).c_str(),
                    ratioText(row.measured.ratio).c_str(), figureText(row.measured.ours, row.unit).c_str(),
                    figureText(row.measured.floor, row.unit).c_str());
    std::fflush(stdout);
}

/// A measurement and the word that asks for it alone.
struct Part {
    char const* word;
    Rows (*measure)(kit::Library const&, Effort);
};

constexpr Part kParts[] = {
    {"fills", &measureFills}, // first, while the table of GDI has no holes that others left
    {"paint", &measurePaint},         {"pictures", &measurePictures}, {"mouse", &measureMouse},
    {"focus", &measureFocus},         {"creation", &measureCreation}, {"forms", &measureForms},
    {"members", &measureMembers},     {"saving", &measureSaving},     {"options", &measureOptions},
    {"footprint", &measureFootprint}, {"size", &measureSize},
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

/// Runs a body on a thread of its own: the tooltip window that controls share is gone for good on a thread
/// where the last of them has gone, and each part is to have one.
template <class Body> void onOwnThread(Body const& body)
{
    std::exception_ptr failure;
    kit::onNewThread([&] {
        try {
            body();
        } catch (...) {
            failure = std::current_exception();
        }
    });
    if (failure)
        std::rethrow_exception(failure);
}

void sumUp(Rows const& rows, double microseconds)
{
    std::string missed;
    for (Row const& row : rows)
        if (isShortOfGoal(row))
            missed += (missed.empty() ? "" : "; ") + row.what;
    std::printf("# short of its goal: %s\n", missed.empty() ? "nothing" : missed.c_str());
    std::printf("# minutes: %s\n", fixedText(microseconds / 60e6, 1).c_str());
}

void run(Wish const& wish)
{
    kit::Library const library;
    require(library.loaded(), "quilbt.ocx beside this program cannot be loaded");
    if (std::ranges::find(wish.words, "requests") != wish.words.end())
        return onOwnThread([&] { makeWhatIsCounted(library); });
    Rows all;
    double const taken = microsecondsOf([&] {
        for (Part const& part : kParts) {
            if (!wish.words.empty() && std::ranges::find(wish.words, part.word) == wish.words.end())
                continue;
            Rows rows;
            onOwnThread([&] { rows = part.measure(library, wish.effort); });
            print(rows);
            all.insert(all.end(), rows.begin(), rows.end());
        }
    });
    sumUp(all, taken);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        run(wishOf(argc, argv));
        return 0;
    } catch (RunTimeError const& error) {
        std::fprintf(stderr, "bench: a call failed with 0x%08lx\n",
                     static_cast<unsigned long>(error.result()));
    } catch (std::exception const& error) {
        std::fprintf(stderr, "bench: %s\n", error.what());
    }
    return 1;
}
