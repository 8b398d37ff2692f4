// Standard picture objects.
#pragma once

#include "base/ComPtr.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet {

/// A picture object that holds no picture, of type PICTYPE_NONE.
ComPtr<IPictureDisp> emptyPicture();

/// A picture object that is to load its data.
ComPtr<IPictureDisp> unloadedPicture();

/// PICTYPE_…; PICTYPE_NONE for no object and for one that cannot say.
SHORT pictureType(IUnknown* picture) noexcept;

/// Whether there is nothing to show: no object, or one without a picture.
bool isEmptyPicture(IUnknown* picture) noexcept;

/// Whether it is a metafile, of the old format or of the enhanced one.
bool isMetafile(IUnknown* picture) noexcept;

/// What the picture object holds and keeps: an HBITMAP or an HICON, by its type. Null when there is none.
HANDLE pictureHandle(IPicture& picture) noexcept;

} // namespace quillet
