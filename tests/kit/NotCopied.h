// What every owner and every scope is.
#pragma once

namespace quillet::kit {

/// The base of classes that are neither copied nor moved.
struct NotCopied {
    NotCopied() = default;
    NotCopied(NotCopied const&) = delete;
    NotCopied& operator=(NotCopied const&) = delete;
};

} // namespace quillet::kit
