// The user-control surface: identity, life and the services that belong to no single face.
#include "surface/Surface.h"

#include "base/Checked.h"
#include "base/RunTimeError.h"
#include "saving/StandardFont.h"
#include "surface/window/WindowMessages.h"

#include <algorithm>

namespace quillet {

IUnknown* outerOf(Surface const& surface) noexcept { return surface.outer(); }

HRESULT queryFace(Surface& surface, REFIID iid, void** object) noexcept
{
    IUnknown* const asked = iid == kWindowMessagesInterface ? surface.inner() : surface.outer();
    return asked->QueryInterface(iid, object);
}

Surface::Surface(ControlClass const& controlClass, IUnknown* outer)
    : m_class(controlClass), m_outer(outer ? outer : &m_identity)
{}

Surface::~Surface() = default;

HRESULT Surface::Identity::QueryInterface(REFIID iid, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    IUnknown* const face = iid == IID_IUnknown ? this : m_surface.faceOf(iid);
    if (!face)
        return E_NOINTERFACE;
    face->AddRef();
    *object = face;
    return S_OK;
}

ULONG Surface::Identity::AddRef() { return static_cast<ULONG>(::InterlockedIncrement(&m_references)); }

ULONG Surface::Identity::Release()
{
    LONG const left = ::InterlockedDecrement(&m_references);
    if (left > 0)
        return static_cast<ULONG>(left);
    m_references = 1; // references that come and go from here on must not end it a second time
    Surface* const surface = &m_surface;
    surface->terminate();
    delete surface;
    return 0;
}

IUnknown* Surface::faceOf(REFIID iid) noexcept
{
    // Interfaces are asked for thousands of times while a form opens: one row each, one walk.
    struct Row {
        IID const& iid;
        IUnknown* face;
    };
    IDispatch* const own = dual();
    auto* const inPlaceObject = static_cast<IOleInPlaceObject*>(&m_inPlace);
    auto* const stream = static_cast<IPersistStreamInit*>(&m_persistence);
    Row const rows[] = {
        {kWindowMessagesInterface, windowMessages()}, // first: asked for with each message of its window
        {IID_IDispatch, own},
        {m_class.interfaceId, own},
        {IID_IOleObject, &m_oleObject},
        {IID_IOleControl, &m_oleControl},
        {IID_IOleInPlaceObject, inPlaceObject},
        {IID_IOleWindow, inPlaceObject},
        {IID_IOleInPlaceActiveObject, static_cast<IOleInPlaceActiveObject*>(&m_inPlace)},
        {IID_IViewObject, &m_view},
        {IID_IViewObject2, &m_view},
        {IID_IViewObjectEx, &m_view},
        {IID_IDataObject, &m_dataObject},
        {IID_IConnectionPointContainer, &m_events},
        {IID_IProvideClassInfo, &m_classInfo},
        {IID_IProvideClassInfo2, &m_classInfo},
        {IID_IPersist, stream},
        {IID_IPersistStreamInit, stream},
        {IID_IPersistStorage, static_cast<IPersistStorage*>(&m_persistence)},
        {IID_IPersistPropertyBag, static_cast<IPersistPropertyBag*>(&m_persistence)},
        {IID_IQuickActivate, &m_quickActivation},
        {IID_ISupportErrorInfo, &m_errorInfoSupport},
        {IID_IObjectWithSite, &m_objectWithSite},
        {IID_IObjectSafety, &m_objectSafety},
        {IID_IPerPropertyBrowsing, static_cast<IPerPropertyBrowsing*>(&m_browsing)},
        {IID_ISpecifyPropertyPages, static_cast<ISpecifyPropertyPages*>(&m_browsing)},
        {kCategorizeProperties, static_cast<ICategorizeProperties*>(&m_browsing)},
    };
    for (Row const& row : rows)
        if (iid == row.iid)
            return row.face;
    return nullptr;
}

void Surface::close() noexcept
{
    m_events.end(); // first: a window that is destroyed gets messages
    m_inPlace.leave(InPlace::WindowThen::Destroyed);
    if (!m_inPlace.isActive()) // unless its end led to an activation
        m_window.destroy();
}

void Surface::terminate() noexcept
{
    m_outer = &m_identity; // the outer object is going, too, and must not hear of the window's end
    close();
    ignoringErrors([&] { onTerminate(); });
    m_window.destroy();
    m_accessibility.disconnect();
    m_events.disconnect();
    m_view.disconnect();
    m_oleObject.disconnect();
    m_container.setSite(nullptr);
}

void Surface::setEnabled(bool enabled) noexcept
{
    m_enabled = enabled;
    m_window.enable(enabled);
}

void Surface::setMouseIcon(IUnknown* picture)
{
    auto taken = query<IPictureDisp>(picture);
    if (picture && !taken)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    m_mouseIcon = std::move(taken);
}

void Surface::setWidth(long twips)
{
    if (m_container.putExtenderProperty(L"Width", Variant::ofFloat(static_cast<float>(twips))))
        return;
    if (m_inPlace.isActive())
        m_inPlace.requestWidth(roundedToEven(twips / twipsPerPixel().x));
    else
        m_oleObject.setWidth(std::max(0L, himetricOfTwips(twips)));
}

void Surface::raiseMouseEvent(DISPID id, MouseArguments const& mouse)
{
    MouseArguments own = mouse; // a sink may write to the arguments
    raiseEvent(id, {Variant::ofShortRef(&own.button), Variant::ofShortRef(&own.shift),
                    Variant::ofFloatRef(&own.x), Variant::ofFloatRef(&own.y)});
}

void Surface::onFocusMessage()
{
    if (HWND const window = m_window.existing()) {
        ::InvalidateRect(window, nullptr, FALSE);
        ::UpdateWindow(window);
    }
}

void Surface::propertyChanged(DISPID property, ViewChange view)
{
    m_persistence.setDirty();
    m_events.notifyChanged(property);
    if (view == ViewChange::Yes)
        m_view.notifyChanged();
    m_accessibility.propertyChanged(property);
}

void Surface::paintInto(HDC dc, SIZE size)
{
    struct Restore {
        Surface& surface;
        HDC dc;
        SIZE size;
        ~Restore()
        {
            surface.m_paintDc = dc;
            surface.m_paintSize = size;
        }
    } const restore = {*this, m_paintDc, m_paintSize};
    m_paintDc = dc;
    m_paintSize = size;
    onPaint();
}

} // namespace quillet
