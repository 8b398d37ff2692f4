// The native window that stands in for each of the environment's own controls.
#include "gallery/intrinsic/WindowStyle.h"

#include "gallery/intrinsic/BoxWindow.h"

#include <iterator>

namespace quillet::gallery {

namespace {

constexpr DWORD kLabelAlignments[] = {SS_LEFT, SS_RIGHT, SS_CENTER};
constexpr DWORD kTextAlignments[] = {ES_LEFT, ES_RIGHT, ES_CENTER};

template <std::size_t count> DWORD aligned(DWORD const (&rows)[count], FormValues const& values)
{
    long const alignment = values.whole(L"Alignment", 0);
    return alignment >= 0 && alignment < static_cast<long>(count) ? rows[alignment] : rows[0];
}

WindowStyle labelStyle(FormValues const& values)
{
    DWORD style = aligned(kLabelAlignments, values) | SS_NOTIFY;
    if (!values.flag(L"UseMnemonic", true))
        style |= SS_NOPREFIX;
    bool const isSunken = values.whole(L"BorderStyle", 0) == 1;
    return {L"STATIC", style, isSunken ? DWORD{WS_EX_CLIENTEDGE} : 0};
}

WindowStyle textBoxStyle(FormValues const& values)
{
    DWORD style = aligned(kTextAlignments, values) | ES_AUTOHSCROLL;
    long const bars = values.whole(L"ScrollBars", 0);
    if (values.flag(L"MultiLine", false)) {
        style |= ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;
        if (!(bars & 1)) // without a horizontal bar the lines wrap
            style &= ~DWORD{ES_AUTOHSCROLL};
        style |= (bars & 1 ? WS_HSCROLL : 0) | (bars & 2 ? WS_VSCROLL : 0);
    }
    if (!values.text(L"PasswordChar").empty())
        style |= ES_PASSWORD;
    if (values.flag(L"Locked", false))
        style |= ES_READONLY;
    bool const isFlat = values.whole(L"Appearance", 1) == 0;
    bool const isBare = values.whole(L"BorderStyle", 1) == 0;
    return {L"EDIT", style | (isFlat && !isBare ? WS_BORDER : 0),
            isFlat || isBare ? 0 : DWORD{WS_EX_CLIENTEDGE}};
}

} // namespace

WindowStyle windowStyleOf(IntrinsicKind kind, FormValues const& values)
{
    switch (kind) {
    case IntrinsicKind::Label:
        return labelStyle(values);
    case IntrinsicKind::TextBox:
        return textBoxStyle(values);
    case IntrinsicKind::CommandButton:
        return {L"BUTTON", BS_PUSHBUTTON | BS_NOTIFY, 0};
    case IntrinsicKind::OptionButton:
        // Not the automatic kind: it groups by window order, the form by container.
        return {L"BUTTON", BS_RADIOBUTTON | BS_NOTIFY, 0};
    case IntrinsicKind::CheckBox:
        return {L"BUTTON", BS_CHECKBOX | BS_NOTIFY, 0};
    case IntrinsicKind::Frame:
    case IntrinsicKind::Invisible:
    case IntrinsicKind::Placeholder:
        break;
    }
    return {boxWindowClass(), WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
}

} // namespace quillet::gallery
