// Buttons of the system's own class in a form: the floor of having many.
#pragma once

#include "base/Handles.h"

#include <windows.h>

#include <vector>

namespace quillet::bench {

class SystemButtons {
public:
    explicit SystemButtons(HWND form, int count = 0);

    /// Creates so many more, visible, with caption and font, where the form's own buttons would be.
    void add(int count);
    void clear() { m_windows.clear(); }

private:
    HWND m_form;
    std::vector<UniqueWindow> m_windows;
};

} // namespace quillet::bench
