// Hostile containers: hosts, sinks and saved data that break every rule, against all five controls.
//
//     hostile_tests.exe                          what "make test" runs: a fixed seed, a few thousand steps
//     hostile_tests.exe --runs=20000             the long form, from a fresh seed that is printed
//     hostile_tests.exe --runs=20000 --seed=17   the same runs again
//
// A run that fails, crashes or hangs tells its seed and its steps so far. "make hostile RUNS=20000" runs the
// long form on both architectures.
#include "Journal.h"

#include <ole2.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace quillet::hostile {

Options& options() noexcept
{
    static Options values;
    return values;
}

bool isDue(std::size_t every) noexcept
{
    static std::size_t rows = options().seed;
    return options().isLong() || ++rows % every == 0;
}

namespace {

/// The number behind a word of the command line; false for another word.
template <class Number> bool takeNumber(char const* word, char const* name, Number& number)
{
    size_t const length = std::strlen(name);
    if (std::strncmp(word, name, length) != 0)
        return false;
    number = static_cast<Number>(std::strtoul(word + length, nullptr, 10));
    return true;
}

void readCommandLine(int count, char** words)
{
    unsigned seed = 0;
    for (int i = 1; i < count; ++i)
        if (!takeNumber(words[i], "--runs=", options().runs))
            takeNumber(words[i], "--seed=", seed);
    if (!seed && options().isLong())
        seed = ::GetTickCount() ^ (::GetCurrentProcessId() << 16);
    if (seed)
        options().seed = seed;
    std::printf("hostile: --seed=%u%s\n", options().seed, options().isLong() ? ", the long form" : "");
}

} // namespace
} // namespace quillet::hostile

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    quillet::hostile::readCommandLine(argc, argv);
    quillet::hostile::Journal::watch();
    HRESULT const started = ::OleInitialize(nullptr);
    int const result = RUN_ALL_TESTS();
    std::printf("hostile: %d runs\n", quillet::hostile::Journal::runs());
    if (SUCCEEDED(started))
        ::OleUninitialize();
    return result;
}
