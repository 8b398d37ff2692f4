// The saved properties of qvFlatCommand as the tests expect them, in the order of reading and writing.
#pragma once

#include "base/Variant.h"

#include <windows.h>

#include <string>
#include <vector>

namespace quillet::flat {

struct SavedRow {
    wchar_t const* name;
    VARTYPE type;  ///< in a bag; VT_UNKNOWN stands for an object
    Variant other; ///< a value that is not the default; empty for objects
};

inline std::vector<SavedRow> const& savedRows()
{
    static auto const color = [](wchar_t const* name, long value) {
        return SavedRow{name, VT_I4, Variant::ofLong(value)};
    };
    static auto const number = [](wchar_t const* name, short value) {
        return SavedRow{name, VT_I2, Variant::ofShort(value)};
    };
    static auto const flag = [](wchar_t const* name, bool value) {
        return SavedRow{name, VT_BOOL, Variant::ofBool(value)};
    };
    static std::vector<SavedRow> const rows{
        color(L"BackColor", 0x010203),
        color(L"ForeColor", 0x020304),
        flag(L"Enabled", false),
        {L"Font", VT_UNKNOWN, {}},
        number(L"BorderStyle", 0),
        color(L"BorderColor", 0x030405),
        color(L"HotForeColor", 0x040506),
        color(L"PressedForeColor", 0x050607),
        color(L"HotBackColor", 0x060708),
        color(L"PressedBackColor", 0x070809),
        color(L"HotBorderColor", 0x08090A),
        color(L"PressedBorderColor", 0x090A0B),
        number(L"BorderWidth", 2),
        number(L"HotBorderWidth", 3),
        number(L"PressedBorderWidth", 4),
        color(L"DisabledForeColor", 0x0A0B0C),
        {L"Caption", VT_BSTR, Variant::ofString(L"&Save")},
        flag(L"CentreCaption", true),
        number(L"CaptionIndent", 12),
        number(L"MousePointer", 99),
        {L"MouseIcon", VT_UNKNOWN, {}},
        flag(L"ShowFocusRectangle", false),
        flag(L"OfficeXPColors", true),
    };
    return rows;
}

inline std::vector<std::wstring> savedNames()
{
    std::vector<std::wstring> names;
    for (SavedRow const& row : savedRows())
        names.push_back(row.name);
    return names;
}

} // namespace quillet::flat
