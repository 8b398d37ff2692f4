// The gallery's entry point.
#include "base/Handles.h"
#include "gallery/app/Gallery.h"

#include <windows.h>

#include <shellapi.h>

namespace {

struct WordsTraits {
    using Handle = wchar_t**;
    static void close(wchar_t** words) noexcept { ::LocalFree(words); }
};

/// The words after the program's name.
std::vector<std::wstring> commandLineWords()
{
    int count = 0;
    quillet::UniqueHandle<WordsTraits> const words(::CommandLineToArgvW(::GetCommandLineW(), &count));
    if (!words || count < 1)
        return {};
    return std::vector<std::wstring>(words.get() + 1, words.get() + count);
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int)
{
    return quillet::gallery::runGallery(commandLineWords());
}
