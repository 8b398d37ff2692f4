// The gallery's entry point.
#include "gallery/Gallery.h"

#include <windows.h>

#include <shellapi.h>

namespace {

std::vector<std::wstring> commandLineWords()
{
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (!words)
        return {};
    std::vector<std::wstring> const result(words + (count > 0 ? 1 : 0), words + count);
    ::LocalFree(words);
    return result;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int)
{
    ::SetProcessDPIAware(); // forms are measured in twips, so they scale themselves
    return quillet::gallery::runGallery(commandLineWords());
}
