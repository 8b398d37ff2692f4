// The size of the component's file.
#include "bench/Bench.h"
#include "bench/Rounds.h"

#include <windows.h>

namespace quillet::bench {

Rows measureSize(kit::Library const&, Effort)
{
    WIN32_FILE_ATTRIBUTE_DATA file{};
    require(::GetFileAttributesExW(kit::Library::path().c_str(), GetFileExInfoStandard, &file) != FALSE,
            "quilbt.ocx cannot be found");
    return {{"size of quilbt.ocx", std::to_string((file.nFileSizeLow + 512) / 1024) + " KiB", "–", "–", "–"}};
}

} // namespace quillet::bench
