// Standard picture objects, as bytes and back.
#pragma once

#include "base/ComPtr.h"

#include <ocidl.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace quillet::gallery {

/// The picture that wrote those bytes. Throws what the picture object answers to damaged ones.
ComPtr<IPictureDisp> pictureOf(std::string_view bytes);

/// What a picture object writes of itself. Throws where it cannot.
std::string bytesOfPicture(IUnknown* picture);

} // namespace quillet::gallery
