// The file system: a few files in memory.
#pragma once

#include <map>
#include <string>

namespace quillet::fuzz {

/// The files that can be opened, by path. One may be said to be larger than it is.
struct File {
    std::string bytes;
    long long said = 0;
};
std::map<std::wstring, File>& files();

} // namespace quillet::fuzz
