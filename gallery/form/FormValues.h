// Looks up what a form says of an object, as the type that the reader of it needs.
#pragma once

#include "gallery/form/FormTree.h"

#include <ocidl.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillet::gallery {

/// A value in the wanted form; fallback where it is of another kind.
std::wstring textOf(FormValue const& value, std::wstring_view fallback);
double numberOf(FormValue const& value, double fallback) noexcept;
long wholeOf(FormValue const& value, long fallback) noexcept;

/// The properties of one node, looked up by name whatever their case.
class FormValues {
public:
    explicit FormValues(FormNode const& borrowed) noexcept : m_node(borrowed) {}

    FormValue const* find(std::wstring_view name) const noexcept;
    PropertyBlock const* findBlock(std::wstring_view name) const noexcept;

    std::wstring text(std::wstring_view name, std::wstring_view fallback = {}) const;
    double number(std::wstring_view name, double fallback) const noexcept;
    long whole(std::wstring_view name, long fallback) const noexcept;
    bool flag(std::wstring_view name, bool fallback) const noexcept
    {
        return whole(name, fallback ? -1 : 0) != 0;
    }
    OLE_COLOR colour(std::wstring_view name, OLE_COLOR fallback) const noexcept
    {
        return static_cast<OLE_COLOR>(whole(name, static_cast<long>(fallback)));
    }

private:
    FormNode const& m_node;
};

} // namespace quillet::gallery
