// The help file: where it lies.
#include "base/HelpFile.h"

#include "base/Module.h"

namespace quillet {

std::wstring helpFilePath()
{
    std::wstring const component = modulePath();
    return component.substr(0, component.rfind(L'\\') + 1) + kHelpFile;
}

} // namespace quillet
