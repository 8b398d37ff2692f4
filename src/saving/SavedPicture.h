// Whether a saved picture is safe to hand to the system.
#pragma once

#include <windows.h>

#include <span>

namespace quillet {

/// Whether a picture object's saved bytes are a bitmap, an icon or a cursor, in any format that systems read,
/// or none at all, and every size and place that they name lies within them. To be asked before the system
/// gets them: its loaders believe what they read, and read on behind the end of damaged bytes. Metafiles are
/// refused: whoever shows one plays it and believes each of its records.
bool isSafePicture(std::span<BYTE const> saved) noexcept;

} // namespace quillet
