// In-place activation. Every call-out may come back in: state is set before the container is told.
#include "surface/faces/InPlace.h"

#include "base/Checked.h"
#include "surface/Surface.h"

#include <utility>

namespace quillet {

namespace {

bool isKey(UINT message) noexcept { return message >= WM_KEYFIRST && message <= WM_KEYLAST; }

/// Keys that mean something to a form rather than to a button. Space is not one of them: a container that
/// takes everything would swallow the click.
bool isContainerKey(WPARAM key) noexcept
{
    switch (key) {
    case VK_TAB:
    case VK_RETURN:
    case VK_ESCAPE:
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        return true;
    default:
        return false;
    }
}

bool hasSize(RECT const& rect) noexcept { return rect.right > rect.left && rect.bottom > rect.top; }

} // namespace

HRESULT InPlace::GetWindow(HWND* window)
{
    return m_surface.call([&] {
        deref(window) = nullptr;
        *window = m_surface.hWnd();
    });
}

HRESULT InPlace::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

HRESULT InPlace::InPlaceDeactivate()
{
    return m_surface.call([&] { leave(WindowThen::Parked); });
}

HRESULT InPlace::UIDeactivate()
{
    return m_surface.call([&] { leaveKeyboard(); });
}

HRESULT InPlace::SetObjectRects(LPCRECT position, LPCRECT clip)
{
    return m_surface.call([&] { place(deref(position), clip); });
}

HRESULT InPlace::ReactivateAndUndo() { return INPLACE_E_NOTUNDOABLE; }

HRESULT InPlace::TranslateAccelerator(LPMSG message)
{
    return m_surface.call([&] {
        MSG const& key = deref(message);
        if (!isKey(key.message))
            return S_FALSE;
        bool const offered = key.message == WM_KEYDOWN && isContainerKey(key.wParam);
        return offered && m_surface.container().takesKey(key) ? S_OK : S_FALSE;
    });
}

HRESULT InPlace::OnFrameWindowActivate(WINBOOL) { return S_OK; }

HRESULT InPlace::OnDocWindowActivate(WINBOOL) { return S_OK; }

HRESULT InPlace::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, WINBOOL) { return S_OK; }

HRESULT InPlace::EnableModeless(WINBOOL) { return S_OK; }

void InPlace::activate(Activation kind, Offer const& offer)
{
    activateVisibly(offer);
    if (kind == Activation::WithFocus && m_active)
        activateKeyboard();
}

InPlace::Stage InPlace::stage(HWND offered) const
{
    ComPtr<IOleClientSite> const client = m_surface.container().site();
    auto site = query<IOleInPlaceSite>(client.get());
    // Only S_FALSE is a refusal: a site that fails may still be activated in.
    if (!site || site->CanInPlaceActivate() == S_FALSE)
        throw RunTimeError(E_FAIL);
    HWND parent = nullptr;
    if (FAILED(site->GetWindow(&parent)) || !parent)
        parent = offered;
    // A container may take the control out of the site while it is asked.
    if (!parent || client.get() != m_surface.container().site())
        throw RunTimeError(E_FAIL);
    return {std::move(site), parent};
}

void InPlace::activateVisibly(Offer const& offer)
{
    if (m_active) {
        m_surface.window().show();
        return;
    }
    auto const [site, parent] = stage(offer.parent);
    if (m_active) { // the container has activated it while it was asked
        m_surface.window().show();
        return;
    }
    m_active = true;
    ++m_activation;
    m_site = site;
    m_surface.events().begin();
    site->OnInPlaceActivate();

    RECT given = m_position;
    RECT clip = {};
    OLEINPLACEFRAMEINFO info = {};
    info.cb = sizeof(info);
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> document;
    bool const answered =
        isIn(site) && SUCCEEDED(site->GetWindowContext(frame.put(), document.put(), &given, &clip, &info));
    if (!isIn(site)) // the container closed the control meanwhile, or moved it elsewhere
        return;
    if (answered) {
        m_frame = frame;
        m_document = document;
    }
    if (!hasSize(given) && offer.position)
        given = *offer.position;
    m_position = given;
    m_surface.window().attach(parent, hasSize(clip) ? &clip : nullptr);
    if (isIn(site))
        m_surface.window().show();
    if (ComPtr<IOleClientSite> const client = m_surface.container().site(); client && isIn(site))
        client->ShowObject();
}

void InPlace::activateKeyboard()
{
    if (!m_keyboard && !m_leaving) {
        m_keyboard = true;
        auto const site = m_site;
        site->OnUIActivate();
        // Frame and document hold the control by its active-object face until it leaves the keyboard.
        if (auto const frame = m_frame; frame && m_keyboard)
            frame->SetActiveObject(this, m_surface.controlClass().name);
        if (auto const document = m_document; document && m_keyboard)
            document->SetActiveObject(this, m_surface.controlClass().name);
    }
    if (m_keyboard)
        m_surface.window().takeFocus();
}

void InPlace::leaveKeyboard() noexcept
{
    if (!m_keyboard)
        return;
    m_keyboard = false;
    auto const site = m_site;
    if (auto const document = m_document)
        document->SetActiveObject(nullptr, nullptr);
    if (auto const frame = m_frame)
        frame->SetActiveObject(nullptr, nullptr);
    if (site)
        site->OnUIDeactivate(FALSE);
}

void InPlace::hide()
{
    leaveKeyboard();
    m_surface.window().hide();
}

void InPlace::requestWidth(long width)
{
    RECT const wanted = {m_position.left, m_position.top, checkedAdd(m_position.left, width),
                         m_position.bottom};
    if (auto const site = m_site)
        site->OnPosRectChange(&wanted); // the answer comes as SetObjectRects, or not at all
}

void InPlace::leave(WindowThen then) noexcept
{
    if (!m_active) {
        m_surface.window().giveUpCapture(); // a forged press may have reached it all the same
        return;
    }
    unsigned const activation = m_activation;
    m_leaving = true;
    leaveKeyboard();
    m_leaving = false;
    if (!m_active || activation != m_activation) // the container has ended it meanwhile, or begun another
        return;
    // Nothing is left of this activation when the window goes: its messages may begin the next one.
    m_active = false;
    auto const site = std::exchange(m_site, nullptr);
    m_frame.reset();
    m_document.reset();
    if (then == WindowThen::Parked)
        m_surface.window().park();
    else
        m_surface.window().destroy();
    if (site)
        site->OnInPlaceDeactivate();
}

void InPlace::forward(MSG const* message)
{
    if (!message || !m_active)
        return;
    // Only the press that led here: its position has to be told in the window's own coordinates.
    if (message->message != WM_LBUTTONDOWN && message->message != WM_LBUTTONDBLCLK)
        return;
    POINT at = message->pt;
    HWND const window = m_surface.hWnd();
    ::ScreenToClient(window, &at);
    ::SendMessageA(window, message->message, message->wParam, MAKELPARAM(at.x, at.y));
}

void InPlace::place(RECT const& position, RECT const* clip)
{
    m_position = position;
    if (m_active)
        m_surface.window().move(clip);
}

void InPlace::focusGained()
{
    if (m_active && !m_keyboard)
        activateKeyboard();
    m_surface.container().focusChanged(true);
}

void InPlace::focusLost() { m_surface.container().focusChanged(false); }

} // namespace quillet
