// Reads a form from its file.
#include "gallery/form/FileBytes.h"
#include "gallery/form/FormReader.h"

namespace quillet::gallery {

FormTree readFormFile(std::wstring const& path) { return readForm(fileBytes(path), path); }

} // namespace quillet::gallery
