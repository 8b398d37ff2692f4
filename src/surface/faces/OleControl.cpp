// IOleControl: access keys, ambient changes, freezing of events.
#include "surface/faces/OleControl.h"

#include "base/RunTimeError.h"
#include "surface/Surface.h"

#include <vector>

namespace quillet {

namespace {

wchar_t lowered(wchar_t character) noexcept
{
    return static_cast<wchar_t>(
        reinterpret_cast<UINT_PTR>(::CharLowerW(reinterpret_cast<LPWSTR>(UINT_PTR{character}))));
}

wchar_t raised(wchar_t character) noexcept
{
    return static_cast<wchar_t>(
        reinterpret_cast<UINT_PTR>(::CharUpperW(reinterpret_cast<LPWSTR>(UINT_PTR{character}))));
}

/// Plain characters with Alt in both cases: some containers compare the character exactly.
std::vector<ACCEL> acceleratorsOf(std::wstring_view keys)
{
    std::vector<ACCEL> rows;
    for (wchar_t const key : keys) {
        rows.push_back({FALT, static_cast<WORD>(lowered(key)), 0});
        if (raised(key) != lowered(key))
            rows.push_back({FALT, static_cast<WORD>(raised(key)), 0});
    }
    return rows;
}

} // namespace

HRESULT OleControl::GetControlInfo(CONTROLINFO* info)
{
    return m_surface.call([&] {
        if (deref(info).cb < sizeof(CONTROLINFO))
            throw RunTimeError(E_INVALIDARG);
        if (!m_accelerators && !m_accessKeys.empty()) {
            std::vector<ACCEL> rows = acceleratorsOf(m_accessKeys);
            m_acceleratorCount = static_cast<WORD>(rows.size());
            m_accelerators = UniqueAccelerators(::CreateAcceleratorTableW(rows.data(), m_acceleratorCount));
        }
        info->hAccel = m_accelerators.get();
        info->cAccel = m_accelerators ? m_acceleratorCount : WORD{0};
        info->dwFlags = 0;
    });
}

HRESULT OleControl::OnMnemonic(LPMSG message)
{
    return m_surface.call([&] {
        bool const byAccessKey =
            message && (message->message == WM_SYSCHAR || message->message == WM_SYSKEYDOWN);
        // An access key brings the focus along; Enter for a default button leaves it where it is.
        if (byAccessKey && m_surface.inPlace().isActive())
            m_surface.inPlace().activate(InPlace::Activation::WithFocus);
        if (m_surface.enabled())
            m_surface.onAccessKeyPress(message ? static_cast<short>(message->wParam) : short{0});
    });
}

HRESULT OleControl::OnAmbientPropertyChange(DISPID property)
{
    return m_surface.call([&] { m_surface.onAmbientChanged(property); });
}

HRESULT OleControl::FreezeEvents(WINBOOL freeze)
{
    m_surface.events().freeze(freeze != FALSE);
    return S_OK;
}

void OleControl::setAccessKeys(std::wstring_view keys)
{
    if (keys == m_accessKeys)
        return;
    m_accessKeys = keys;
    m_accelerators.reset();
    m_surface.container().controlInfoChanged();
}

} // namespace quillet
