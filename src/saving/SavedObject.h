// Fonts and pictures as bytes, through their own persistence.
#pragma once

#include "base/ComPtr.h"

#include <windows.h>

#include <vector>

namespace quillet {

/// An object's saved bytes. There are only the two kinds that controls keep: data that could name a class
/// could make any object.
struct SavedObject {
    enum class Kind : WORD { None = 0, Font = 1, Picture = 2 };
    Kind kind;
    std::vector<BYTE> bytes;
};

/// Saves a font or a picture; TypeMismatch for another object.
SavedObject savedObjectOf(IUnknown* object);

/// Makes the object anew; empty for none. E_FAIL for bytes that are no such object.
ComPtr<IUnknown> objectOf(SavedObject const& saved);

} // namespace quillet
