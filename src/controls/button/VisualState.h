// The looks of a command button.
#pragma once

namespace quillet {

/// Decided by the Paint handler, painted by DrawButton.
enum class VisualState : long { Normal = 0, Hot = 1, Pressed = 2, Disabled = 3 };

} // namespace quillet
