// The properties of the flat option button and the flat check box: their order, types and defaults.
#pragma once

#include "controls/button/RowWords.h"
#include "controls/optioncheck/OptionCheckButton.h"
#include "typelib/DispatchIds.h"

#include <array>

namespace quillet {

/// OLEMISC flags of both: they fill a place on a form, and Enter presses neither.
inline constexpr DWORD kOptionCheckStatus = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                                            OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_RECOMPOSEONRESIZE |
                                            OLEMISC_CANTLINKINSIDE;

inline InnerButton& innerOf(Surface& surface)
{
    return static_cast<OptionCheckButton&>(surface).innerButton();
}
inline InnerButton const& innerOf(Surface const& surface)
{
    return static_cast<OptionCheckButton const&>(surface).innerButton();
}

/// What the inner button keeps.
struct InnerAccess {
    /// The colour that is shown. The property's own colour changes first: the inner button repaints at once,
    /// and the paint goes by that one.
    static constexpr PropertyAccess kForeColor = {
        [](Surface const& s) { return fieldValue(innerOf(s).foreColor()); },
        [](Surface& s, Variant const& v) {
            s.setForeColor(colourOf(v));
            innerOf(s).setForeColor(s.foreColor());
        }};
    static constexpr PropertyAccess kBackColor = {
        [](Surface const& s) { return fieldValue(innerOf(s).backColor()); },
        [](Surface& s, Variant const& v) { innerOf(s).setBackColor(colourOf(v)); }};
    static constexpr PropertyAccess kFont = {[](Surface const& s) { return fieldValue(s.font()); },
                                             [](Surface& s, Variant const& v) {
                                                 s.setFont(query<IFont>(v.toObject().get()));
                                                 innerOf(s).fontChanged();
                                             }};
    static constexpr PropertyAccess kCaption = {
        [](Surface const& s) { return fieldValue(innerOf(s).caption()); },
        [](Surface& s, Variant const& v) { innerOf(s).setCaption(v.toString().view()); }};
    static constexpr PropertyAccess kHotForeColor = {
        [](Surface const& s) { return fieldValue(static_cast<OptionCheckButton const&>(s).hotForeColor()); },
        [](Surface& s, Variant const& v) {
            static_cast<OptionCheckButton&>(s).setHotForeColor(colourOf(v));
        }};
};

/// Where the two differ.
struct OptionCheckDifferences {
    wchar_t const* caption; ///< as laid out
    AtStart shownForeColor;
    PropertyKind valueKind;
    PropertyAccess value;
    Saved secondForeColor;
};

using OptionCheckRows = std::array<PropertyRow, 8>;

/// In the order of reading and writing. ForeColor stands twice, as the colour that the inner button shows and
/// as the one that the user chose: the last one written counts.
constexpr OptionCheckRows optionCheckRows(OptionCheckDifferences const& own)
{
    namespace id = dispid::qvFlatOption; // the check box has the same
    using namespace rowwords;
    using Inner = InnerAccess;
    // clang-format off
    return {{
        {L"ForeColor",    DISPID_UNKNOWN,   Kind::Colour,  kText, Inner::kForeColor,    kSaved,              own.shownForeColor, kQuiet},
        {L"Enabled",      id::Enabled,      Kind::Flag,    true,  Held::kEnabled,       kSaved,              kAsSurface,         kPaint},
        {L"Font",         id::Font,         Kind::OwnFont, 0,     Inner::kFont,         kSaved,              kAsSurface,         kByItself},
        {L"Caption",      id::Caption,      Kind::Text,    0,     Inner::kCaption,      kSaved,              kAsSurface,         kByItself, nullptr, own.caption},
        {L"Value",        id::Value,        own.valueKind, 0,     own.value,            kSaved,              kAsSurface,         kPaint},
        {L"HotForeColor", id::HotForeColor, Kind::Colour,  kText, Inner::kHotForeColor, kSaved,              kNew,               kPaint},
        {L"BackColor",    id::BackColor,    Kind::Colour,  kFace, Inner::kBackColor,    kSaved,              kAsSurface,         kByItself},
        {L"ForeColor",    id::ForeColor,    Kind::Colour,  kText, Held::kForeColor,     own.secondForeColor, kAsSurface,         kPaint},
    }};
    // clang-format on
}

} // namespace quillet
