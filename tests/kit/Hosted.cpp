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
    auto const object = as<IOleObject>();
    m_site->inPlaceObject = as<IOleInPlaceObject>().get();
    return object ? object->SetClientSite(m_site.get()) : E_NOINTERFACE;
}

HRESULT Hosted::initNew()
{
    auto const bag = as<IPersistStreamInit>();
    return bag ? bag->InitNew() : E_NOINTERFACE;
}

HRESULT Hosted::load(IPropertyBag& bag)
{
    auto const persistent = as<IPersistPropertyBag>();
    return persistent ? persistent->Load(&bag, nullptr) : E_NOINTERFACE;
}

HRESULT Hosted::save(IPropertyBag& bag, bool clearDirty, bool allProperties)
{
    auto const persistent = as<IPersistPropertyBag>();
    return persistent ? persistent->Save(&bag, clearDirty, allProperties) : E_NOINTERFACE;
}

HRESULT Hosted::setExtent()
{
    auto const object = as<IOleObject>();
    RECT const& at = m_site->position;
    SIZEL extent = himetricOf({at.right - at.left, at.bottom - at.top});
    return object ? object->SetExtent(DVASPECT_CONTENT, &extent) : E_NOINTERFACE;
}

HRESULT Hosted::doVerb(LONG verb, MSG* message)
{
    auto const object = as<IOleObject>();
    return object ? object->DoVerb(verb, message, m_site.get(), 0, m_form.window(), &m_site->position)
                  : E_NOINTERFACE;
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
    auto const inPlace = as<IOleWindow>();
    HWND window = nullptr;
    if (inPlace)
        inPlace->GetWindow(&window);
    return window;
}

void Hosted::remove()
{
    if (auto const inPlace = as<IOleInPlaceObject>())
        inPlace->InPlaceDeactivate();
    if (auto const object = as<IOleObject>()) {
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
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
