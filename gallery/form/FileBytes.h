// Whole files as bytes.
#pragma once

#include <string>
#include <string_view>

namespace quillet::gallery {

/// Throws FormError for a file that cannot be read, or is larger than anything of a form.
std::string fileBytes(std::wstring const& path);

/// Replaces the file; throws FormError when that fails.
void writeFileBytes(std::wstring const& path, std::string_view bytes);

/// What stands before the last backslash or slash, and behind it.
std::wstring folderOf(std::wstring const& path);
std::wstring fileNameOf(std::wstring const& path);

/// The path with another extension, which has its dot.
std::wstring withExtension(std::wstring const& path, std::wstring_view extension);

} // namespace quillet::gallery
