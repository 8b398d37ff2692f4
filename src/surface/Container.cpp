// The container as the surface sees it: every answer has a fallback, and no failure leaves this file.
#include "surface/Container.h"

#include "base/ComCall.h"
#include "base/LateBound.h"
#include "saving/StandardFont.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

/// More controls than any form has: a list that never ends must not take all memory.
constexpr long kMostControls = 0x7FFF;

/// The keys that a container reads with a key message: shift 1, control 2, alt 4.
DWORD keyModifiers() noexcept
{
    auto const down = [](int key) { return ::GetKeyState(key) < 0; };
    return (down(VK_SHIFT) ? 1u : 0u) | (down(VK_CONTROL) ? 2u : 0u) | (down(VK_MENU) ? 4u : 0u);
}

} // namespace

ComPtr<IUnknown> controlInterface(IUnknown* object, REFIID iid) noexcept
{
    if (auto own = query<IUnknown>(object, iid))
        return own;
    return orFallback(ComPtr<IUnknown>(), [&] {
        auto const inside = propertyByName(query<IDispatch>(object).get(), L"Object").toObject();
        return query<IUnknown>(inside.get(), iid);
    });
}

ComPtr<IDispatch> extenderOf(IUnknown* control) noexcept
{
    auto const object = query<IOleObject>(controlInterface(control, IID_IOleObject).get());
    ComPtr<IOleClientSite> site;
    if (object)
        object->GetClientSite(site.put());
    auto const controlSite = site.as<IOleControlSite>();
    ComPtr<IDispatch> found;
    if (controlSite && SUCCEEDED(controlSite->GetExtendedControl(found.put())) && found)
        return found;
    return query<IDispatch>(control);
}

void Container::setSite(IOleClientSite* site) noexcept
{
    // The old site goes last: it may call back in, and then finds the new one in every place.
    auto const leaving = std::exchange(m_site, site);
    auto const leavingControlSite = std::exchange(m_controlSite, query<IOleControlSite>(site));
    auto const leavingAmbients = std::exchange(m_ambients, query<IDispatch>(site));
    auto const leavingFont = std::exchange(m_quickFont, nullptr);
    m_quickUserMode = Variant();
}

void Container::setQuickAmbients(QACONTAINER const& block) noexcept
{
    m_quickUserMode = Variant::ofBool((block.dwAmbientFlags & QACONTAINER_USERMODE) != 0);
    m_quickFont = query<IFont>(block.pFont);
}

Variant Container::ambient(DISPID id) const noexcept
{
    auto const ambients = m_ambients; // kept to the end of the call, as the container may leave within it
    if (!ambients)
        return {};
    return orFallback(Variant(), [&] { return propertyById(ambients.get(), id); });
}

bool Container::userMode() const noexcept
{
    Variant const answered = ambient(DISPID_AMBIENT_USERMODE);
    Variant const& mode = answered.type() == VT_EMPTY ? m_quickUserMode : answered;
    if (mode.type() == VT_EMPTY)
        return true;
    return orFallback(true, [&] { return mode.toBool(); });
}

ComPtr<IFont> Container::sharedFont() const noexcept
{
    auto const answered =
        orFallback(ComPtr<IUnknown>(), [&] { return ambient(DISPID_AMBIENT_FONT).toObject(); });
    if (auto font = query<IFont>(answered.get()))
        return font;
    return m_quickFont;
}

ComPtr<IFont> Container::ambientFont() const
{
    if (auto own = copyOfFont(sharedFont().get()))
        return own;
    if (auto own = copyOfFont(m_quickFont.get()))
        return own;
    return systemFont();
}

ComPtr<IDispatch> Container::extender() const noexcept
{
    auto const site = m_controlSite;
    ComPtr<IDispatch> found;
    if (!site || FAILED(site->GetExtendedControl(found.put())))
        return {};
    return found;
}

Variant Container::extenderProperty(wchar_t const* name) const noexcept
{
    return orFallback(Variant(), [&] { return requiredExtenderProperty(name); });
}

Variant Container::requiredExtenderProperty(wchar_t const* name) const
{
    return propertyByName(extender().get(), name);
}

bool Container::putExtenderProperty(wchar_t const* name, Variant value) const noexcept
{
    return orFallback(false, [&] {
        putPropertyByName(extender().get(), name, std::move(value));
        return true;
    });
}

ComPtr<IUnknown> Container::activeControl() const noexcept
{
    return orFallback(ComPtr<IUnknown>(), [&] {
        auto const parent = query<IDispatch>(requiredExtenderProperty(L"Parent").toObject().get());
        return propertyByName(parent.get(), L"ActiveControl").toObject();
    });
}

std::vector<ComPtr<IUnknown>> Container::parentControls() const
{
    std::vector<ComPtr<IUnknown>> found;
    auto const site = m_site;
    ComPtr<IOleContainer> container;
    ComPtr<IEnumUnknown> objects;
    if (site && SUCCEEDED(site->GetContainer(container.put())) && container &&
        SUCCEEDED(container->EnumObjects(OLECONTF_EMBEDDINGS | OLECONTF_OTHERS, objects.put())) && objects) {
        ComPtr<IUnknown> object;
        while (found.size() < static_cast<size_t>(kMostControls) &&
               objects->Next(1, object.put(), nullptr) == S_OK)
            found.push_back(object);
        return found;
    }
    ignoringErrors([&] {
        auto const parent = query<IDispatch>(requiredExtenderProperty(L"Parent").toObject().get());
        auto const controls = query<IDispatch>(propertyByName(parent.get(), L"Controls").toObject().get());
        long const count = std::min(propertyByName(controls.get(), L"Count").toLong(), kMostControls);
        for (long index = 0; index < count; ++index)
            found.push_back(itemByIndex(controls.get(), index).toObject());
    });
    return found;
}

void Container::controlInfoChanged() const noexcept
{
    if (ComPtr<IOleControlSite> const site = m_controlSite)
        site->OnControlInfoChanged();
}

bool Container::showsPropertyFrame() const noexcept
{
    ComPtr<IOleControlSite> const site = m_controlSite;
    return site && site->ShowPropertyFrame() == S_OK;
}

void Container::focusChanged(bool gained) const noexcept
{
    if (ComPtr<IOleControlSite> const site = m_controlSite)
        site->OnFocus(gained);
}

bool Container::takesKey(MSG const& message) const noexcept
{
    ComPtr<IOleControlSite> const site = m_controlSite;
    MSG copy = message;
    return site && site->TranslateAccelerator(&copy, keyModifiers()) == S_OK;
}

} // namespace quillet
