// What an inner button is.
#pragma once

namespace quillet {

enum class InnerKind { Option, Check };

} // namespace quillet
