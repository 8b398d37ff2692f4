// The default-button test of all button classes.
#pragma once

namespace quillet {

class Surface;

/// Whether the container marks the control as its default button. False where it has no such notion, and
/// for every failure.
bool isDefault(Surface const& control) noexcept;

} // namespace quillet
