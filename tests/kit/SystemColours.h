// The desktop's colours, changed for one scope.
#pragma once

#include "kit/NotCopied.h"

#include <windows.h>

#include <array>

namespace quillet::kit {

/// Two of the desktop's colours, changed for everybody while it lives.
class SystemColours : NotCopied {
public:
    SystemColours(std::array<INT, 2> const& indexes, std::array<COLORREF, 2> const& colours)
        : m_indexes(indexes), m_previous{::GetSysColor(indexes[0]), ::GetSysColor(indexes[1])}
    {
        ::SetSysColors(2, m_indexes.data(), colours.data());
    }
    ~SystemColours() { ::SetSysColors(2, m_indexes.data(), m_previous.data()); }

private:
    std::array<INT, 2> m_indexes;
    std::array<COLORREF, 2> m_previous;
};

} // namespace quillet::kit
