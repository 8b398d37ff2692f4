// What the flat option button and the flat check box share: properties, events and window services.
#include "controls/optioncheck/OptionCheckButton.h"

#include "surface/window/MouseCapture.h"
#include "typelib/DispatchIds.h"

namespace quillet {

OptionCheckButton::OptionCheckButton(ControlClass const& controlClass, IUnknown* outer, InnerKind kind,
                                     std::wstring_view caption, PropertyTable const& properties)
    : Surface(controlClass, outer), m_properties(properties), m_inner(*this, kind, caption)
{
    // A container may leave out both loading and initialising.
    m_properties.setPlainDefaults(*this);
}

void OptionCheckButton::onInitProperties()
{
    m_properties.init(*this);
    ignoringErrors(
        [&] { m_inner.setCaption(container().requiredExtenderProperty(L"Name").toString().view()); });
}

void OptionCheckButton::readProperties(PropertyBag& bag)
{
    m_properties.read(*this, bag);
    onResize();
    m_toolTip.CreateToolTip(m_inner.existing());
}

void OptionCheckButton::onWriteProperties(PropertyBag& bag) { m_properties.write(*this, bag); }

void OptionCheckButton::onTerminate()
{
    m_toolTip.Terminate();
    m_inner.destroy();
}

void OptionCheckButton::onResize()
{
    m_inner.cover();
    raiseEvent(eventid::optionCheck::Resize);
}

void OptionCheckButton::onCommand(WORD code, HWND from)
{
    if (from && from == m_inner.existing())
        m_inner.notified(code);
}

void OptionCheckButton::onMouseDown(MouseArguments const& mouse)
{
    raiseMouseEvent(eventid::optionCheck::MouseDown, mouse);
}

void OptionCheckButton::onMouseUp(MouseArguments const& mouse)
{
    raiseMouseEvent(eventid::optionCheck::MouseUp, mouse);
}

void OptionCheckButton::onKeyDown(short& keyCode, short shift)
{
    raiseEvent(eventid::optionCheck::KeyDown, {Variant::ofShortRef(&keyCode), Variant::ofShortRef(&shift)});
}

void OptionCheckButton::onKeyUp(short& keyCode, short shift)
{
    raiseEvent(eventid::optionCheck::KeyUp, {Variant::ofShortRef(&keyCode), Variant::ofShortRef(&shift)});
}

void OptionCheckButton::onCharacter(short& keyAscii)
{
    raiseEvent(eventid::optionCheck::KeyPress, {Variant::ofShortRef(&keyAscii)});
}

/// Without the capture no move tells that the mouse leaves a hot button.
void OptionCheckButton::onCaptureLost()
{
    if (m_hot)
        awaitLeaving(m_inner.existing());
}

void OptionCheckButton::onMouseLeft()
{
    if (m_hot)
        repaint();
}

void OptionCheckButton::followMouse(MouseArguments const& mouse)
{
    ignoringErrors([&] { m_toolTipText = container().requiredExtenderProperty(L"ToolTipText").toString(); });
    HWND const window = m_inner.existing();
    if (!window)
        return;
    bool const over = isMouseOver();
    bool const draggedOverEdge =
        mouse.button == MouseButtons::kLeft && hasMouseCapture(window) && m_lastHover != over;
    if (draggedOverEdge || (mouse.button == 0 && setMouseCapture(window, over)))
        repaint();
}

AccessibleLook OptionCheckButton::accessibleLook() const
{
    constexpr LONG kStates[] = {0, STATE_SYSTEM_CHECKED, STATE_SYSTEM_MIXED};
    bool const option = m_inner.kind() == InnerKind::Option;
    return {option ? ROLE_SYSTEM_RADIOBUTTON : ROLE_SYSTEM_CHECKBUTTON, kStates[m_inner.value()],
            m_inner.shownCaption(), std::wstring(m_inner.accessKey()),
            option || m_inner.value() == 0 ? L"Check" : L"Uncheck"};
}

HRESULT OptionCheckButton::getValue(OLE_TRISTATE* value) noexcept
{
    return call([&] { deref(value) = static_cast<OLE_TRISTATE>(m_inner.value()); });
}

HRESULT OptionCheckButton::getWindow(LONG* value) noexcept
{
    // 32 bits of a handle are significant on every Windows.
    return call([&] { deref(value) = HandleToLong(m_inner.handle()); });
}

HRESULT OptionCheckButton::runWindowProc(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam,
                                         LONG* result) noexcept
{
    return call([&] { deref(result) = m_toolTip.WindowProc(hwnd, uMsg, wParam, lParam); });
}

} // namespace quillet
