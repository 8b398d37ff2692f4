// Makes the type library at build time: maketlb win32|win64 FILE
#include "base/RunTimeError.h"
#include "typelib/maker/LibraryWriter.h"
#include "typelib/maker/SetterNames.h"

#include <objbase.h>

#include <cstdio>
#include <string>

namespace {

int make(SYSKIND system, std::wstring const& file)
{
    try {
        quillet::writeLibrary(system, file.c_str());
        quillet::moveSetterNames(file.c_str());
        return 0;
    } catch (quillet::RunTimeError const& error) {
        std::fprintf(stderr, "maketlb: failed with %08lx\n", static_cast<unsigned long>(error.result()));
        return 1;
    }
}

} // namespace

int main(int count, char* arguments[])
{
    if (count != 3) {
        std::fputs("usage: maketlb win32|win64 FILE\n", stderr);
        return 2;
    }
    std::string const file = arguments[2];
    SYSKIND const system = arguments[1] == std::string("win64") ? SYS_WIN64 : SYS_WIN32;
    if (FAILED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
        return 1;
    int const result = make(system, std::wstring(file.begin(), file.end()));
    ::CoUninitialize();
    return result;
}
