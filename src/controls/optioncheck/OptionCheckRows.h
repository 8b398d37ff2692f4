// The properties of the flat option button and the flat check box: their order, types and defaults.
#pragma once

#include "controls/button/SystemColours.h"
#include "controls/optioncheck/OptionCheckButton.h"
#include "typelib/DispatchIds.h"

#include <array>

namespace quillet {

/// What neither needs to be told apart for: both fill a place on a form and none is pressed by Enter.
inline constexpr DWORD kOptionCheckStatus = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                                            OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_RECOMPOSEONRESIZE |
                                            OLEMISC_CANTLINKINSIDE;

/// What the inner button keeps.
struct InnerAccess {
    using Control = OptionCheckButton;
    using Access = PropertyAccess<Control>;

    /// The colour that is shown. The user's changes first: a shown button paints within, and goes by that
    /// one.
    static constexpr Access kForeColor = {
        [](Control const& c) { return fieldValue(c.innerButton().foreColor()); },
        [](Control& c, Variant const& v) {
            c.setForeColor(static_cast<OLE_COLOR>(v.toLong()));
            c.innerButton().setForeColor(c.foreColor());
        }};
    static constexpr Access kBackColor = {
        [](Control const& c) { return fieldValue(c.innerButton().backColor()); },
        [](Control& c, Variant const& v) {
            c.innerButton().setBackColor(static_cast<OLE_COLOR>(v.toLong()));
        }};
    static constexpr Access kFont = {[](Control const& c) { return Variant::ofUnknown(c.font()); },
                                     [](Control& c, Variant const& v) {
                                         c.setFont(query<IFont>(v.toObject().get()));
                                         c.innerButton().fontChanged();
                                     }};
    static constexpr Access kCaption = {
        [](Control const& c) { return fieldValue(c.innerButton().caption()); },
        [](Control& c, Variant const& v) { c.innerButton().setCaption(v.toString().view()); }};
    static constexpr Access kHotForeColor = {
        [](Control const& c) { return fieldValue(c.hotForeColor()); },
        [](Control& c, Variant const& v) { c.setHotForeColor(static_cast<OLE_COLOR>(v.toLong())); }};
};

/// Where the two differ.
struct OptionCheckDifferences {
    wchar_t const* caption; ///< as laid out
    AtStart shownForeColor;
    PropertyKind valueKind;
    InnerAccess::Access value;
    Saved secondForeColor;
};

using OptionCheckRows = std::array<PropertyRow<OptionCheckButton>, 8>;

/// In the order of reading and writing. ForeColor stands twice, as the colour that the inner button shows and
/// as the one that the user chose: the last one written counts.
constexpr OptionCheckRows optionCheckRows(OptionCheckDifferences const& own)
{
    namespace id = dispid::qvFlatOption; // the check box has the same
    using Kind = PropertyKind;
    using Held = SurfaceAccess<OptionCheckButton>;
    using Inner = InnerAccess;
    constexpr auto kButtonFace = static_cast<long>(colour::kButtonFace);
    constexpr auto kButtonText = static_cast<long>(colour::kButtonText);
    constexpr auto kNew = AtStart::Default;
    constexpr auto kAsLaidOut = AtStart::Surface;
    // clang-format off
    return {{
        {L"ForeColor",    DISPID_UNKNOWN,   Kind::Colour,  kButtonText, Inner::kForeColor,    Saved::Yes,          own.shownForeColor, Repaint::No},
        {L"Enabled",      id::Enabled,      Kind::Flag,    true,        Held::kEnabled,       Saved::Yes,          kAsLaidOut,         Repaint::Yes},
        {L"Font",         id::Font,         Kind::OwnFont, 0,           Inner::kFont,         Saved::Yes,          kAsLaidOut,         Repaint::ByItself},
        {L"Caption",      id::Caption,      Kind::Text,    0,           Inner::kCaption,      Saved::Yes,          kAsLaidOut,         Repaint::ByItself, nullptr, own.caption},
        {L"Value",        id::Value,        own.valueKind, 0,           own.value,            Saved::Yes,          kAsLaidOut,         Repaint::Yes},
        {L"HotForeColor", id::HotForeColor, Kind::Colour,  kButtonText, Inner::kHotForeColor, Saved::Yes,          kNew,               Repaint::Yes},
        {L"BackColor",    id::BackColor,    Kind::Colour,  kButtonFace, Inner::kBackColor,    Saved::Yes,          kAsLaidOut,         Repaint::ByItself},
        {L"ForeColor",    id::ForeColor,    Kind::Colour,  kButtonText, Held::kForeColor,     own.secondForeColor, kAsLaidOut,         Repaint::Yes},
    }};
    // clang-format on
}

} // namespace quillet
