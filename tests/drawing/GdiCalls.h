// Notes the GDI calls of this program or of one that it has loaded, in order, and makes some of them fail.
#pragma once

#include "kit/Counterpart.h"
#include "kit/NotCopied.h"

#include <windows.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace quillet {

/// While it lives, the calls that one image (this program, unless another is named) makes to the functions a
/// surface uses go through it: it notes them in the record as "SelectObject dc1 pen1 -> BLACK_PEN" and passes
/// them on. Objects that are made are numbered by kind; others that have no name are "?". Calls that Windows'
/// own libraries make are not seen. One at a time.
class GdiCalls : kit::NotCopied {
public:
    explicit GdiCalls(kit::SharedRecord record, HMODULE caller = ::GetModuleHandleW(nullptr));
    ~GdiCalls();

    /// Calls a handle by a name in the notes.
    void name(void const* handle, std::string name) { m_names[handle] = std::move(name); }
    /// The handle that was last noted by that name; null for none.
    void* handle(std::string const& name) const;
    /// From here on the function is not called: it answers 0.
    void fail(std::string const& function) { m_failing.insert(function); }
    void work(std::string const& function) { m_failing.erase(function); }

    bool isFailing(std::string const& function) const { return m_failing.contains(function); }
    void note(std::string call) { m_record->note(std::move(call)); }
    std::string nameOf(void const* handle) const;
    void nameNew(void const* handle, std::string const& kind);

private:
    kit::SharedRecord m_record;
    HMODULE m_caller;
    std::map<void const*, std::string> m_names;
    std::map<std::string, int> m_made;
    std::set<std::string> m_failing;
};

} // namespace quillet
