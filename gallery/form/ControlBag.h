// Turns the lines of a form that belong to a control into the property bag that the control loads.
#pragma once

#include "base/ComPtr.h"
#include "gallery/form/FormTree.h"
#include "gallery/form/PropertyBag.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillet::gallery {

/// Whether a line of that name is the extender's, so that the control never sees it.
bool isExtenderProperty(std::wstring_view name) noexcept;

/// The name that the control knows a line by, without the mark of those whose name the extender has taken;
/// nothing for a line of the extender's.
std::optional<std::wstring_view> ownName(std::wstring_view name) noexcept;

/// The name under which a form has a property of the control.
std::wstring writtenName(std::wstring_view own);

/// Whether a block describes a font; every other one is left alone.
bool isFont(PropertyBlock const& block) noexcept;

/// A value of a form as the variant that a bag holds; nothing for what lies in the companion file.
std::optional<Variant> variantOf(FormValue const& value);

/// What a bag takes from outside the form's text.
struct BagSources {
    /// A record of the companion file; throws ValueFault.
    std::function<std::string_view(ResourceReference const&)> record;
    /// Told of each property that could not be read, with its line.
    std::function<void(int line, std::wstring reason)> onFailure;
    /// Of the long texts among the records.
    FormCoding coding = FormCoding::Windows1252;
};

/// The bag of one control: its own properties only, fonts and pictures as standard objects. What cannot be
/// read is told and left out: the control takes its default.
ComPtr<PropertyBag> controlBag(FormNode const& node, BagSources const& sources = {});

} // namespace quillet::gallery
