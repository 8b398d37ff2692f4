// An ActiveX control on a form: its life, from the site to the end.
#include "gallery/host/HostedControl.h"

#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "gallery/form/ControlBag.h"
#include "gallery/host/Form.h"

#include <olectl.h>

#include <utility>

namespace quillet::gallery {

namespace {

/// Answered for methods that a control leaves out; nothing that a form fails over.
bool isLeftOut(HRESULT result) noexcept { return result == E_NOTIMPL || result == E_NOINTERFACE; }

template <class T> ComPtr<T> needed(IUnknown* object)
{
    ComPtr<T> face = query<T>(object);
    if (!face)
        throw RunTimeError(E_NOINTERFACE);
    return face;
}

} // namespace

HostedControl::HostedControl(Form& form, FormControl* container, FormNode const& node,
                             ComPtr<IUnknown> object)
    : FormControl(form, container, node), m_object(std::move(object)),
      m_ole(needed<IOleObject>(m_object.get())), m_automation(query<IDispatch>(m_object.get())),
      m_control(query<IOleControl>(m_object.get())), m_inPlace(query<IOleInPlaceObject>(m_object.get())),
      m_view(query<IViewObject>(m_object.get())), m_site(makeCounted<Site>(*this))
{
    if (FAILED(m_ole->GetMiscStatus(DVASPECT_CONTENT, &m_status)))
        m_status = 0;
}

HostedControl::~HostedControl() { close(); }

void HostedControl::load(FormNode const& node, ITypeInfo* classInfo)
{
    bool const siteFirst = (m_status & OLEMISC_SETCLIENTSITEFIRST) != 0;
    if (siteFirst)
        setSite();
    loadProperties(node);
    if (!siteFirst)
        setSite();
    rememberAsLoaded();
    advise(classInfo);
    setExtent();
    m_ole->SetHostNames(form().name().c_str(), form().name().c_str());
}

void HostedControl::setSite() { check(m_ole->SetClientSite(m_site.get())); }

void HostedControl::loadProperties(FormNode const& node)
{
    if (auto const bagLoader = m_object.as<IPersistPropertyBag>()) {
        ComPtr<PropertyBag> const bag =
            controlBag(node, {form().options().record,
                              [&](int line, std::wstring reason) { form().warn(line, std::move(reason)); },
                              form().coding()});
        HRESULT const loaded = bagLoader->Load(bag.get(), nullptr);
        if (!isLeftOut(loaded))
            return check(loaded);
    }
    if (auto const stream = m_object.as<IPersistStreamInit>())
        if (HRESULT const made = stream->InitNew(); !isLeftOut(made))
            check(made);
}

void HostedControl::advise(ITypeInfo* classInfo)
{
    m_viewSink = makeCounted<ViewSink>([this] {
        if (!m_window && state().visible)
            ::InvalidateRect(parentWindow(), nullptr, TRUE);
    });
    if (m_view)
        m_view->SetAdvise(DVASPECT_CONTENT, 0, m_viewSink.get());
    EventSource source = eventSourceOf(m_object.get(), classInfo);
    IID const iid = source.interfaceId;
    m_events = makeCounted<EventSink>(std::move(source),
                                      [this](std::wstring_view name, DISPPARAMS const& arguments) {
                                          form().raise(*this, name, arguments);
                                      });
    if (iid != IID_NULL)
        m_eventConnection = Connection(m_object.get(), iid, m_events.get());
}

void HostedControl::setExtent()
{
    SIZEL size{himetricOfTwips(state().place.width), himetricOfTwips(state().place.height)};
    m_ole->SetExtent(DVASPECT_CONTENT, &size);
}

HRESULT HostedControl::doVerb(LONG verb, MSG* message) noexcept
{
    RECT const place = pixels();
    return m_ole->DoVerb(verb, message, m_site.get(), 0, parentWindow(), &place);
}

void HostedControl::activate()
{
    bool const isHidden = (m_status & OLEMISC_INVISIBLEATRUNTIME) != 0 && !form().isDesign();
    if (!m_inPlace || isHidden || !state().visible)
        return;
    bool const isFirst = !std::exchange(m_wasActive, true);
    if (FAILED(doVerb(OLEIVERB_INPLACEACTIVATE, nullptr)) || FAILED(m_inPlace->GetWindow(&m_window)))
        m_window = nullptr;
    if (isFirst)
        rememberAsLoaded(); // some controls save other values once they have painted
}

void HostedControl::rememberAsLoaded()
{
    if (form().isDesign())
        m_asLoaded = save(false);
}

void HostedControl::placeChanged()
{
    setExtent();
    RECT const place = pixels();
    if (m_inPlace && m_window)
        m_inPlace->SetObjectRects(&place, &place);
}

void HostedControl::visibleChanged()
{
    if (!m_window)
        return activate();
    doVerb(state().visible ? OLEIVERB_SHOW : OLEIVERB_HIDE, nullptr);
}

void HostedControl::showDefaultChanged()
{
    if (m_control)
        m_control->OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYASDEFAULT);
}

void HostedControl::drawWithoutWindow(HDC dc)
{
    RECT const place = pixels();
    if (m_view && !m_window)
        ::OleDraw(m_view.get(), DVASPECT_CONTENT, dc, &place);
}

void HostedControl::showPages() noexcept { doVerb(OLEIVERB_PROPERTIES, nullptr); }

ComPtr<PropertyBag> HostedControl::save(bool allProperties)
{
    ComPtr<PropertyBag> bag = makeCounted<PropertyBag>();
    if (auto const saver = m_object.as<IPersistPropertyBag>())
        check(saver->Save(bag.get(), FALSE, allProperties));
    return bag;
}

void HostedControl::close()
{
    if (!m_ole)
        return;
    m_eventConnection.end();
    if (m_events)
        m_events->disconnect();
    if (m_viewSink)
        m_viewSink->disconnect();
    if (m_inPlace && m_window)
        m_inPlace->InPlaceDeactivate();
    m_window = nullptr;
    if (m_view)
        m_view->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
    m_ole->Close(OLECLOSE_NOSAVE);
    m_ole->SetClientSite(nullptr);
    m_site->disconnect();
    m_asLoaded.reset();
    m_view.reset();
    m_inPlace.reset();
    m_control.reset();
    m_automation.reset();
    m_ole.reset();
    m_object.reset();
}

} // namespace quillet::gallery
