// An ActiveX control on a form: focus and keys.
#include "base/ComCall.h"
#include "base/LateBound.h"
#include "gallery/host/Form.h"
#include "gallery/host/HostedControl.h"
#include "gallery/host/InPlaceFrame.h"

#include <olectl.h>

namespace quillet::gallery {

bool HostedControl::takesFocus() const noexcept
{
    return m_window && !(m_status & (OLEMISC_NOUIACTIVATE | OLEMISC_ACTSLIKELABEL));
}

bool HostedControl::isOption() const noexcept
{
    // The window that takes the keys may stand inside the control's.
    HWND const inner = m_window ? ::GetWindow(m_window, GW_CHILD) : nullptr;
    HWND const asked = inner ? inner : m_window;
    return asked && (::SendMessageW(asked, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON);
}

bool HostedControl::isSelectedOption() const noexcept
{
    return m_automation &&
           orFallback(false, [&] { return propertyByName(m_automation.get(), L"Value").toLong() != 0; });
}

void HostedControl::focus()
{
    if (!m_window)
        return;
    HWND const window = m_window;
    doVerb(OLEIVERB_UIACTIVATE, nullptr);
    if (window == m_window && form().controlOf(::GetFocus()) != this)
        ::SetFocus(window);
}

void HostedControl::focusLost()
{
    if (m_inPlace && m_window)
        m_inPlace->UIDeactivate();
}

void HostedControl::press(WPARAM key)
{
    ComPtr<IDispatch> const automation = m_automation;
    DISPPARAMS none{};
    if (automation && SUCCEEDED(automation->Invoke(DISPID_DOCLICK, IID_NULL, LOCALE_USER_DEFAULT,
                                                   DISPATCH_METHOD, &none, nullptr, nullptr, nullptr)))
        return;
    // A control without the click method is told as if the key were its access key.
    MSG message{m_window, WM_KEYDOWN, key, 1, 0, {}};
    if (m_control)
        m_control->OnMnemonic(&message);
}

void HostedControl::choose()
{
    if (m_automation)
        ignoringErrors([&] { putPropertyByName(m_automation.get(), L"Value", Variant::ofLong(1)); });
}

CONTROLINFO HostedControl::controlInfo() const noexcept
{
    CONTROLINFO info{};
    info.cb = sizeof info;
    if (!m_control || FAILED(m_control->GetControlInfo(&info)))
        info = {};
    return info;
}

bool HostedControl::ownsAccessKey(MSG const& message)
{
    CONTROLINFO const info = controlInfo();
    WORD command = 0;
    MSG asked = message;
    return info.hAccel && info.cAccel && ::IsAccelerator(info.hAccel, info.cAccel, &asked, &command);
}

void HostedControl::runAccessKey(MSG const& message)
{
    MSG told = message;
    if (m_control)
        m_control->OnMnemonic(&told);
}

bool HostedControl::translateKey(MSG& message)
{
    auto active = m_object.as<IOleInPlaceActiveObject>();
    if (!active)
        active = form().frame().active();
    return active && active->TranslateAccelerator(&message) == S_OK;
}

bool HostedControl::eatsKey(WPARAM key)
{
    DWORD const flag = key == VK_RETURN ? CTRLINFO_EATS_RETURN : CTRLINFO_EATS_ESCAPE;
    return (controlInfo().dwFlags & flag) != 0;
}

} // namespace quillet::gallery
