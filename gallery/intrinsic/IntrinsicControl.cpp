// The form's own simple controls: making them, their values and what they raise.
#include "gallery/intrinsic/IntrinsicControl.h"

#include "drawing/Colour.h"
#include "drawing/SystemColours.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/FormValues.h"
#include "gallery/form/Names.h"
#include "gallery/host/Form.h"
#include "gallery/intrinsic/BoxWindow.h"
#include "gallery/intrinsic/IntrinsicObject.h"
#include "gallery/intrinsic/WindowStyle.h"

#include <windowsx.h>

namespace quillet::gallery {

namespace {

struct KindRow {
    wchar_t const* fullClass;
    IntrinsicKind kind;
};

constexpr KindRow kKinds[] = {
    {L"VB.Label", IntrinsicKind::Label},
    {L"VB.TextBox", IntrinsicKind::TextBox},
    {L"VB.CommandButton", IntrinsicKind::CommandButton},
    {L"VB.OptionButton", IntrinsicKind::OptionButton},
    {L"VB.CheckBox", IntrinsicKind::CheckBox},
    {L"VB.Frame", IntrinsicKind::Frame},
    {L"VB.Timer", IntrinsicKind::Invisible},
    {L"VB.Menu", IntrinsicKind::Invisible},
};

IntrinsicKind kindOf(std::wstring_view fullClass) noexcept
{
    for (KindRow const& row : kKinds)
        if (sameName(row.fullClass, fullClass))
            return row.kind;
    return IntrinsicKind::Placeholder;
}

constexpr OLE_COLOR kWindow = colour::ofDesktop(COLOR_WINDOW);
constexpr OLE_COLOR kWindowText = colour::ofDesktop(COLOR_WINDOWTEXT);

/// The node's own font; a control that says nothing has the form's.
ComPtr<IFont> fontOf(FormNode const& node, Form const& form)
{
    if (PropertyBlock const* const block = FormValues(node).findBlock(L"Font"))
        return makeFont(fontFaceOf(*block));
    return form.font();
}

/// Whether the caption underlines that character, in either case. Doubled ampersands name none.
bool isMnemonic(std::wstring_view caption, wchar_t character) noexcept
{
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&')
            continue;
        if (caption[i + 1] != L'&')
            return sameName(caption.substr(i + 1, 1), std::wstring_view(&character, 1));
        ++i;
    }
    return false;
}

} // namespace

IntrinsicControl::IntrinsicControl(Form& form, FormControl* container, FormNode const& node)
    : IntrinsicControl(form, container, node, kindOf(node.fullClass()))
{}

IntrinsicControl::IntrinsicControl(Form& form, FormControl* container, FormNode const& node,
                                   IntrinsicKind kind)
    : FormControl(form, container, node), m_kind(kind),
      m_foreColor(FormValues(node).colour(
          L"ForeColor", kind == IntrinsicKind::TextBox ? kWindowText : colour::kButtonText)),
      m_backColor(FormValues(node).colour(L"BackColor",
                                          kind == IntrinsicKind::TextBox ? kWindow : colour::kButtonFace)),
      m_edge(FormValues(node).whole(L"BorderStyle", 1) == 0 ? BoxEdge::None : BoxEdge::Etched),
      m_font(fontOf(node, form)), m_object(makeCounted<IntrinsicObject>(*this)),
      m_brush(::CreateSolidBrush(resolvedColour(m_backColor, 0)))
{
    if (kind != IntrinsicKind::Invisible)
        makeWindow(node);
    if (isOption() || kind == IntrinsicKind::CheckBox)
        ::SendMessageW(window(), BM_SETCHECK, FormValues(node).flag(L"Value", false), 0);
}

IntrinsicControl::~IntrinsicControl() { m_object->disconnect(); }

void IntrinsicControl::makeWindow(FormNode const& node)
{
    FormValues const values(node);
    WindowStyle const style = windowStyleOf(m_kind, values);
    std::wstring text = values.text(m_kind == IntrinsicKind::TextBox ? L"Text" : L"Caption");
    if (m_kind == IntrinsicKind::Placeholder)
        text = className();
    RECT const place = pixels();
    DWORD const visible = state().visible ? WS_VISIBLE : 0;
    m_window.reset(::CreateWindowExW(
        style.extended, style.windowClass, text.c_str(), WS_CHILD | WS_CLIPSIBLINGS | visible | style.style,
        place.left, place.top, place.right - place.left, place.bottom - place.top, parentWindow(), nullptr,
        ::GetModuleHandleW(nullptr), isBox() ? this : nullptr));
    SetWindowFont(m_window.get(), handleOf(m_font.get()), FALSE);
    setEnabled(values.flag(L"Enabled", true));
    if (m_kind == IntrinsicKind::TextBox)
        ::SendMessageW(m_window.get(), EM_SETLIMITTEXT, static_cast<WPARAM>(values.whole(L"MaxLength", 0)),
                       0);
}

IUnknown* IntrinsicControl::object() noexcept { return m_object.get(); }

IDispatch* IntrinsicControl::automation() noexcept { return m_object.get(); }

bool IntrinsicControl::takesFocus() const noexcept
{
    return m_kind != IntrinsicKind::Label && m_kind != IntrinsicKind::Invisible && !isBox();
}

void IntrinsicControl::raise(std::wstring_view event)
{
    DISPPARAMS const none{};
    form().raise(*this, event, none);
}

void IntrinsicControl::press(WPARAM) { raise(L"Click"); }

void IntrinsicControl::choose() { setValue(1); }

bool IntrinsicControl::ownsAccessKey(MSG const& message)
{
    if (message.message != WM_SYSCHAR || m_kind == IntrinsicKind::TextBox ||
        m_kind == IntrinsicKind::Placeholder)
        return false;
    return isMnemonic(text(), static_cast<wchar_t>(message.wParam));
}

void IntrinsicControl::runAccessKey(MSG const&)
{
    if (m_kind == IntrinsicKind::CommandButton)
        raise(L"Click");
    else if (isOption())
        setValue(1);
    else if (m_kind == IntrinsicKind::CheckBox)
        setValue(value() == 0);
}

void IntrinsicControl::showDefaultChanged()
{
    bool const isShown = form().focus().shownDefault() == this;
    ::SendMessageW(m_window.get(), BM_SETSTYLE, isShown ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

std::wstring IntrinsicControl::text() const
{
    int const length = ::GetWindowTextLengthW(m_window.get());
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    int const copied = ::GetWindowTextW(m_window.get(), text.data(), length + 1);
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

void IntrinsicControl::setText(std::wstring const& text)
{
    ::SetWindowTextW(m_window.get(), text.c_str());
    if (isBox())
        ::InvalidateRect(m_window.get(), nullptr, TRUE);
}

long IntrinsicControl::value() const noexcept
{
    return static_cast<long>(::SendMessageW(m_window.get(), BM_GETCHECK, 0, 0));
}

void IntrinsicControl::setValue(long wanted)
{
    if (value() == wanted)
        return;
    ::SendMessageW(m_window.get(), BM_SETCHECK, static_cast<WPARAM>(wanted), 0);
    if (isOption() && wanted)
        for (auto const& other : form().controls())
            if (auto* const option = dynamic_cast<IntrinsicControl*>(other.get());
                option && option != this && option->isOption() && option->container() == container())
                option->setValue(0);
    if (wanted || !isOption())
        raise(L"Click");
}

void IntrinsicControl::setForeColor(OLE_COLOR color) noexcept
{
    m_foreColor = color;
    ::InvalidateRect(m_window.get(), nullptr, TRUE);
}

void IntrinsicControl::setBackColor(OLE_COLOR color)
{
    m_backColor = color;
    m_brush.reset(::CreateSolidBrush(resolvedColour(color, 0)));
    ::InvalidateRect(m_window.get(), nullptr, TRUE);
}

void IntrinsicControl::notified(WORD code)
{
    if (m_kind == IntrinsicKind::TextBox) {
        if (code == EN_CHANGE)
            raise(L"Change");
        if (code == EN_SETFOCUS)
            form().focus().update();
        return;
    }
    if (code == BN_SETFOCUS)
        return form().focus().update();
    if (code != BN_CLICKED)
        return;
    if (isOption())
        return setValue(1);
    if (m_kind == IntrinsicKind::CheckBox)
        return setValue(value() == 0);
    raise(L"Click");
}

HBRUSH IntrinsicControl::colours(HDC dc) const noexcept
{
    ::SetTextColor(dc, resolvedColour(m_foreColor, 0));
    ::SetBkColor(dc, resolvedColour(m_backColor, 0));
    return m_brush.get();
}

void IntrinsicControl::paintBox(HDC dc) const
{
    RECT area{};
    ::GetClientRect(m_window.get(), &area);
    BoxLook const look{text(),
                       handleOf(m_font.get()),
                       resolvedColour(m_foreColor, 0),
                       m_brush.get(),
                       ::IsWindowEnabled(m_window.get()) ? BoxState::Enabled : BoxState::Disabled,
                       m_edge};
    if (m_kind == IntrinsicKind::Frame)
        drawFrame(dc, area, look);
    else
        drawPlaceholder(dc, area, look);
}

void IntrinsicControl::placeChanged()
{
    RECT const place = pixels();
    ::MoveWindow(m_window.get(), place.left, place.top, place.right - place.left, place.bottom - place.top,
                 TRUE);
}

void IntrinsicControl::visibleChanged()
{
    ::ShowWindow(m_window.get(), state().visible ? SW_SHOWNA : SW_HIDE);
}

} // namespace quillet::gallery
