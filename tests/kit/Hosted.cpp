// One control in a site, driven through the steps that a container takes.
#include "kit/Hosted.h"

#include "kit/Pump.h"

namespace quillet::kit {

Hosted::Hosted(Library const& library, REFCLSID classId, FakeForm& form, RECT const& position,
               std::wstring const& name)
    : m_form(form), m_site(make<FakeSite>(form, position, name)), m_object(library.create(classId))
{
    form.container().objects.push_back(m_object.get());
    m_site->extender().provide(L"Object",
                               [this](Variant const&) { return Variant::ofDispatch(as<IDispatch>().get()); });
}

HRESULT Hosted::setSite()
{
    m_site->inPlaceObject = as<IOleInPlaceObject>().get();
    return ask(&IOleObject::SetClientSite, m_site.get());
}

HRESULT Hosted::setExtent()
{
    RECT const& at = m_site->position;
    SIZEL extent = himetricOf({at.right - at.left, at.bottom - at.top});
    return ask(&IOleObject::SetExtent, DVASPECT_CONTENT, &extent);
}

HRESULT Hosted::doVerb(LONG verb, MSG* message)
{
    return ask(&IOleObject::DoVerb, verb, message, m_site.get(), 0, m_form.window(), &m_site->position);
}

void Hosted::start()
{
    setSite();
    initNew();
    setExtent();
    activate();
    pumpPending();
}

void Hosted::start(IPropertyBag& bag)
{
    setSite();
    load(bag);
    setExtent();
    activate();
    pumpPending();
}

HWND Hosted::window() const
{
    HWND window = nullptr;
    ask(&IOleWindow::GetWindow, &window);
    return window;
}

void Hosted::remove()
{
    ask(&IOleInPlaceObject::InPlaceDeactivate);
    ask(&IOleObject::Close, OLECLOSE_NOSAVE);
    ask(&IOleObject::SetClientSite, nullptr);
    release();
}

void Hosted::release()
{
    std::erase(m_form.container().objects, m_object.get());
    m_site->dismantle();
    m_object.reset();
}

SIZEL himetricOf(SIZE pixels)
{
    constexpr int kHimetricPerInch = 2540;
    WindowDc const screen(nullptr);
    return {::MulDiv(pixels.cx, kHimetricPerInch, ::GetDeviceCaps(screen.get(), LOGPIXELSX)),
            ::MulDiv(pixels.cy, kHimetricPerInch, ::GetDeviceCaps(screen.get(), LOGPIXELSY))};
}

} // namespace quillet::kit
