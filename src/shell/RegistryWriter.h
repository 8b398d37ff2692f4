// Writes to the registry all or nothing.
#pragma once

#include "shell/RegistryKey.h"
#include "shell/RegistryRows.h"

#include <optional>
#include <string>
#include <vector>

namespace quillet {

/// Writes rows below one key. What it wrote is undone at the end of its life unless it was committed: keys
/// that it made go, values that it replaced come back.
class RegistryWriter {
public:
    /// The key is borrowed and must allow writing.
    explicit RegistryWriter(HKEY root) noexcept : m_root(root) {}
    ~RegistryWriter();
    RegistryWriter(RegistryWriter const&) = delete;
    RegistryWriter& operator=(RegistryWriter const&) = delete;

    /// Throws when the registry refuses.
    void write(RegistryRow const& row);
    void commit() noexcept { m_steps.clear(); }

private:
    struct OldValue {
        DWORD type;
        std::vector<BYTE> data;
    };
    /// What to take back: a key, or a value and what it was before.
    struct Step {
        std::wstring key;
        bool isKey;
        std::wstring name;
        std::optional<OldValue> old;
    };

    UniqueKey makeKey(std::wstring const& path);
    static std::optional<OldValue> valueOf(HKEY key, std::wstring const& name);
    void undo(Step const& step) const noexcept;

    HKEY m_root;
    std::vector<Step> m_steps;
};

} // namespace quillet
