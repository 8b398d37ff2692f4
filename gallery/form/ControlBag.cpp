// Turns the lines of a form that belong to a control into the property bag that the control loads.
#include "gallery/form/ControlBag.h"

#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/FormText.h"
#include "gallery/form/FormValue.h"
#include "gallery/form/Names.h"
#include "gallery/form/Pictures.h"

#include <windows.h>

#include <optional>

namespace quillet::gallery {

namespace {

constexpr std::wstring_view kExtenderNames[] = {
    L"Left",
    L"Top",
    L"Width",
    L"Height",
    L"TabIndex",
    L"TabStop",
    L"Default",
    L"Cancel",
    L"Visible",
    L"Tag",
    L"Index",
    L"ToolTipText",
    L"Name",
    L"Align",
    L"DragIcon",
    L"DragMode",
    L"HelpContextID",
    L"WhatsThisHelpID",
    L"CausesValidation",
    L"DataField",
    L"DataSource",
    L"DataMember",
    L"DataFormat",
};

/// How a form writes a property of the control whose name the extender has taken.
constexpr std::wstring_view kOwnPrefix = L"Object.";

bool isMarkedOwn(std::wstring_view name) noexcept
{
    return name.size() > kOwnPrefix.size() && sameName(name.substr(0, kOwnPrefix.size()), kOwnPrefix);
}

struct ToVariant {
    std::optional<Variant> operator()(long value) const { return Variant::ofLong(value); }
    std::optional<Variant> operator()(double value) const
    {
        Variant result;
        result.put()->vt = VT_R8;
        result.address()->dblVal = value;
        return result;
    }
    std::optional<Variant> operator()(std::wstring const& text) const { return Variant::ofString(text); }
    std::optional<Variant> operator()(Unquoted const& raw) const { return Variant::ofString(raw.text); }
    std::optional<Variant> operator()(ResourceReference const&) const { return std::nullopt; }
};

/// What lies in the companion file: a picture or a long text.
Variant referredTo(ResourceReference const& reference, BagSources const& sources)
{
    std::string_view const record = sources.record(reference);
    if (reference.isText)
        return Variant::ofString(decoded(record, sources.coding));
    try {
        return Variant::ofDispatch(pictureOf(record).get());
    } catch (RunTimeError const&) {
        throw ValueFault{L"it is no picture"};
    }
}

void addReferred(PropertyBag& bag, std::wstring_view name, FormProperty const& property,
                 BagSources const& sources)
{
    if (!sources.record)
        return;
    try {
        bag.set(name, referredTo(std::get<ResourceReference>(property.value), sources));
    } catch (ValueFault const& fault) {
        if (sources.onFailure)
            sources.onFailure(property.line, std::wstring(name) + L" cannot be read: " + fault.reason);
    }
}

} // namespace

std::optional<std::wstring_view> ownName(std::wstring_view name) noexcept
{
    if (isMarkedOwn(name))
        return name.substr(kOwnPrefix.size());
    return isExtenderProperty(name) ? std::nullopt : std::optional(name);
}

std::wstring writtenName(std::wstring_view own)
{
    bool const isTaken = isExtenderProperty(own) || isMarkedOwn(own);
    return isTaken ? std::wstring(kOwnPrefix).append(own) : std::wstring(own);
}

bool isFont(PropertyBlock const& block) noexcept
{
    return block.classId.empty() || sameName(block.classId, kStandardFont);
}

std::optional<Variant> variantOf(FormValue const& value) { return std::visit(ToVariant(), value); }

bool isExtenderProperty(std::wstring_view name) noexcept
{
    for (std::wstring_view const known : kExtenderNames)
        if (sameName(known, name))
            return true;
    return false;
}

ComPtr<PropertyBag> controlBag(FormNode const& node, BagSources const& sources)
{
    ComPtr<PropertyBag> bag = makeCounted<PropertyBag>();
    for (FormProperty const& property : node.properties) {
        std::optional<std::wstring_view> const name = ownName(property.name);
        if (!name)
            continue;
        if (std::optional<Variant> value = variantOf(property.value))
            bag->set(*name, std::move(*value));
        else
            addReferred(*bag.get(), *name, property, sources);
    }
    for (PropertyBlock const& block : node.blocks)
        if (isFont(block))
            ignoringErrors([&] {
                bag->set(block.name, Variant::ofDispatch(makeFont(fontFaceOf(block)).as<IDispatch>().get()));
            });
    return bag;
}

} // namespace quillet::gallery
