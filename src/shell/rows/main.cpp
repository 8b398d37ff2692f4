// Lists what registration writes, for the installer: registryrows COMPONENT PATH HELPFOLDER
// The type library is read from COMPONENT; PATH and HELPFOLDER stand in the rows as they are given.
// A line is a row: the key below the one of all classes, and unless the key says something by being there,
// the value's name and its text, with tabs between.
#include "base/ComPtr.h"
#include "base/RunTimeError.h"
#include "shell/ClassTable.h"
#include "shell/RegistryRows.h"
#include "shell/TypeLibraryRows.h"

#include <cstdio>
#include <string>
#include <vector>

using namespace quillet;

namespace {

void print(std::vector<RegistryRow> const& rows)
{
    for (RegistryRow const& row : rows)
        if (row.hasValue)
            std::printf("%ls\t%ls\t%ls\n", row.key.c_str(), row.name.c_str(), row.text.c_str());
        else
            std::printf("%ls\n", row.key.c_str());
}

void list(std::wstring const& component, std::wstring const& path, std::wstring const& helpFolder)
{
    for (ClassRow const& row : classTable())
        print(registryRows(row, path));
    for (PageClass const* const page : kPageClasses)
        print(registryRows(*page, path));
    ComPtr<ITypeLib> library;
    check(::LoadTypeLibEx(component.c_str(), REGKIND_NONE, library.put()));
    print(typeLibraryRows(*library.get(), path, helpFolder));
}

/// The words that an installer is built with are plain ASCII.
std::wstring wide(std::string const& text) { return {text.begin(), text.end()}; }

} // namespace

int main(int count, char* arguments[])
{
    if (count != 4) {
        std::fputs("usage: registryrows COMPONENT PATH HELPFOLDER\n", stderr);
        return 2;
    }
    try {
        list(wide(arguments[1]), wide(arguments[2]), wide(arguments[3]));
        return 0;
    } catch (RunTimeError const& error) {
        std::fprintf(stderr, "registryrows: failed with %08lx\n", static_cast<unsigned long>(error.result()));
        return 1;
    }
}
