// Reads a form from its file.
#include "gallery/FileBytes.h"
#include "gallery/FormReader.h"

namespace quillet::gallery {

FormTree readFormFile(std::wstring const& path) { return readForm(fileBytes(path), path); }

} // namespace quillet::gallery
