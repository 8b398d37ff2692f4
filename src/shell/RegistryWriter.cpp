// Writes to the registry all or nothing.
#include "shell/RegistryWriter.h"

namespace quillet {

RegistryWriter::~RegistryWriter()
{
    for (auto step = m_steps.rbegin(); step != m_steps.rend(); ++step)
        undo(*step);
}

void RegistryWriter::write(RegistryRow const& row)
{
    UniqueKey const key = makeKey(row.key);
    if (!row.hasValue)
        return;
    m_steps.push_back({row.key, false, row.name, valueOf(key.get(), row.name)});
    DWORD const length = static_cast<DWORD>(row.text.size()) + 1; // with the terminator
    checkStatus(::RegSetValueExW(key.get(), row.name.c_str(), 0, REG_SZ,
                                 reinterpret_cast<BYTE const*>(row.text.c_str()), length * sizeof(wchar_t)));
}

/// One level after the other, to know which ones are new.
UniqueKey RegistryWriter::makeKey(std::wstring const& path)
{
    UniqueKey key;
    std::size_t end = 0;
    do {
        end = path.find(L'\\', end + 1);
        std::wstring const level = path.substr(0, end);
        HKEY opened = nullptr;
        DWORD made = 0;
        checkStatus(::RegCreateKeyExW(m_root, level.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                      KEY_READ | KEY_WRITE, nullptr, &opened, &made));
        key.reset(opened);
        if (made == REG_CREATED_NEW_KEY)
            m_steps.push_back({level, true, {}, {}});
    } while (end != std::wstring::npos);
    return key;
}

std::optional<RegistryWriter::OldValue> RegistryWriter::valueOf(HKEY key, std::wstring const& name)
{
    OldValue old{};
    DWORD size = 0;
    if (::RegQueryValueExW(key, name.c_str(), nullptr, &old.type, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    old.data.resize(size);
    checkStatus(::RegQueryValueExW(key, name.c_str(), nullptr, &old.type, old.data.data(), &size));
    return old;
}

void RegistryWriter::undo(Step const& step) const noexcept
{
    if (step.isKey) {
        ::RegDeleteKeyW(m_root, step.key.c_str());
        return;
    }
    HKEY opened = nullptr;
    if (::RegOpenKeyExW(m_root, step.key.c_str(), 0, KEY_WRITE, &opened) != ERROR_SUCCESS)
        return;
    UniqueKey const key(opened);
    if (step.old)
        ::RegSetValueExW(key.get(), step.name.c_str(), 0, step.old->type, step.old->data.data(),
                         static_cast<DWORD>(step.old->data.size()));
    else
        ::RegDeleteValueW(key.get(), step.name.c_str());
}

} // namespace quillet
