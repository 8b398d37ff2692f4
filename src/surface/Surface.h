// The user-control surface: what a control derives from to live in a container's form.
#pragma once

#include "base/ComCall.h"
#include "base/ComPtr.h"
#include "base/Compiler.h"
#include "base/Module.h"
#include "base/RunTimeError.h"
#include "base/Scale.h"
#include "drawing/SystemColours.h"
#include "surface/Container.h"
#include "surface/ControlClass.h"
#include "surface/SurfaceFont.h"
#include "surface/faces/Accessibility.h"
#include "surface/faces/Automation.h"
#include "surface/faces/Browsing.h"
#include "surface/faces/DataObject.h"
#include "surface/faces/Events.h"
#include "surface/faces/InPlace.h"
#include "surface/faces/OleControl.h"
#include "surface/faces/OleObject.h"
#include "surface/faces/Persistence.h"
#include "surface/faces/QuickActivation.h"
#include "surface/faces/SmallFaces.h"
#include "surface/faces/View.h"
#include "surface/window/MouseMessage.h"
#include "surface/window/SurfaceWindow.h"

#include <ocidl.h>
#include <windows.h>

#include <string>

namespace quillet {

class PropertyBag;

inline bool isEmpty(SIZE size) noexcept { return size.cx <= 0 || size.cy <= 0; }

/// Whether the container that changes a property should hear of a changed look, too.
enum class ViewChange { No, Yes };

/// Keeps an object alive for one scope.
class KeptAlive {
public:
    QV_ALWAYS_INLINE explicit KeptAlive(IUnknown& object) noexcept : m_object(object) { m_object.AddRef(); }
    QV_ALWAYS_INLINE ~KeptAlive() { m_object.Release(); }
    KeptAlive(KeptAlive const&) = delete;
    KeptAlive& operator=(KeptAlive const&) = delete;

private:
    IUnknown& m_object;
};

/// A control derives from this, overrides the handlers that it needs and uses the services. All COM faces
/// but the control's own dual interface are members here. Handlers may throw; the boundary of whoever
/// called the surface turns that into the call's result.
class Surface {
public:
    Surface(Surface const&) = delete;
    Surface& operator=(Surface const&) = delete;

    /// The object's own identity, with one reference that the creator owns.
    IUnknown* inner() noexcept { return &m_identity; }
    IUnknown* outer() const noexcept { return m_outer; }
    ControlClass const& controlClass() const noexcept { return m_class; }

    /// Keeps the control alive while one of its own calls runs: a sink may release it inside any event.
    QV_ALWAYS_INLINE KeptAlive keepAlive() const noexcept { return KeptAlive(*m_outer); }

    /// The control's dual interface, uncounted.
    virtual IDispatch* dual() noexcept = 0;
    /// Where the messages of a subclassed window go, uncounted; null where none is ever subclassed.
    virtual IUnknown* windowMessages() noexcept { return nullptr; }

    /// Runs the body of a method that a host called: alive to its end, errors reported at the boundary.
    template <class Body> HRESULT call(Body&& body) noexcept
    {
        auto const alive = keepAlive();
        try {
            return resultOf(std::forward<Body>(body));
        } catch (...) {
            return reportCaught(m_class.errorSource()); // put together where there is an error
        }
    }

    // Services for the control and for the faces.

    Container& container() noexcept { return m_container; }
    Container const& container() const noexcept { return m_container; }
    SurfaceWindow& window() noexcept { return m_window; }
    InPlace& inPlace() noexcept { return m_inPlace; }
    OleObject& oleObject() noexcept { return m_oleObject; }
    Persistence& persistence() noexcept { return m_persistence; }
    View& view() noexcept { return m_view; }
    Events& events() noexcept { return m_events; }
    SurfaceFont& surfaceFont() noexcept { return m_font; }
    Browsing& browsing() noexcept { return m_browsing; }
    Accessibility& accessibility() noexcept { return m_accessibility; }

    bool userMode() const noexcept { return m_container.userMode(); }

    /// The window, made at first need. Throws when Windows refuses it.
    HWND hWnd() { return m_window.handle(); }
    /// What a container draws the control into at the moment; null while painting goes onto the window.
    HDC paintDc() const noexcept { return m_paintDc; }
    /// The size to paint, in pixels.
    SIZE clientSize() { return m_paintDc ? m_paintSize : m_window.clientSize(); }

    OLE_COLOR backColor() const noexcept { return m_backColor; }
    OLE_COLOR foreColor() const noexcept { return m_foreColor; }
    bool enabled() const noexcept { return m_enabled; }
    short mousePointer() const noexcept { return m_mousePointer; }
    IPictureDisp* mouseIcon() const noexcept { return m_mouseIcon.get(); }
    /// Never null: the system's until the control is given one.
    IFont* font() const { return m_font.get(); }
    void setBackColor(OLE_COLOR colour) noexcept { m_backColor = colour; }
    void setForeColor(OLE_COLOR colour) noexcept { m_foreColor = colour; }
    void setEnabled(bool enabled) noexcept;
    void setMousePointer(short pointer) noexcept { m_mousePointer = pointer; }
    void setMouseIcon(IUnknown* picture);
    /// Takes the font over: nobody else has it.
    void setFont(ComPtr<IFont> own) noexcept { m_font.set(std::move(own)); }

    /// Asks the container for another width, in twips: by its extender, or where there is none by its site;
    /// before activation the control's own extent changes.
    void setWidth(long twips);

    /// The characters that, with Alt, reach onAccessKeyPress.
    void setAccessKeys(std::wstring_view keys) { m_oleControl.setAccessKeys(keys); }

    /// Raises an event unless events are frozen; arguments in their declared order.
    void raiseEvent(DISPID event, std::initializer_list<Variant> arguments = {})
    {
        m_events.raise(event, arguments);
    }
    /// The same for the mouse events, whose arguments a sink may write to.
    void raiseMouseEvent(DISPID event, MouseArguments const& mouse);
    /// Marks the control as changed since it was saved and tells the container which property it was.
    void propertyChanged(DISPID property, ViewChange view);

    /// The container has closed the control: ends its activation and its window, and nothing is raised any
    /// more.
    void close() noexcept;

    /// Runs the Paint handler onto the window at once.
    void repaint() { onPaint(); }
    /// Whether the Paint handler is to paint for a container instead of on the window.
    bool paintsElsewhere() const noexcept { return m_paintDc != nullptr; }
    /// Runs the Paint handler for a picture of the given size in pixels in another DC.
    void paintInto(HDC dc, SIZE size);

    // Handlers. A control overrides what it needs.

    virtual void onInitProperties() {}
    virtual void onReadProperties(PropertyBag&) {}
    virtual void onWriteProperties(PropertyBag&) {}
    virtual void onPaint() {}
    virtual void onClick() {}
    virtual void onDblClick() {}
    virtual void onMouseDown(MouseArguments const&) {}
    virtual void onMouseMove(MouseArguments const&) {}
    virtual void onMouseUp(MouseArguments const&) {}
    virtual void onKeyPress(short /*keyAscii*/) {}
    virtual void onAccessKeyPress(short /*keyAscii*/) {}
    virtual void onGotFocus() {}
    virtual void onLostFocus() {}
    virtual void onShow() {}
    virtual void onResize() {}
    /// A property changed that the control's size may depend on.
    virtual void onMeasure() {}
    virtual void onAmbientChanged(DISPID) {}
    virtual void onTerminate() {}
    /// The window was made, or made anew: somebody destroyed a window above the last one.
    virtual void onWindowMade() {}
    /// A property of the font object changed: somebody made it bold, say.
    virtual void onFontChanged() {}
    /// A container presses the control.
    virtual void doClick() { onClick(); }
    /// A program for people without a mouse does what a click does.
    virtual void doDefaultAction() { doClick(); }
    /// The control's window (its own, or an inner one that was subclassed) got or lost the keyboard: what it
    /// shows is to change at once.
    virtual void onFocusMessage();
    /// Whether the window has to tell of its focus messages, as it is not subclassed.
    virtual bool watchesFocus() const noexcept { return false; }
    /// Somebody else, or nobody, has the mouse capture that the control's window had.
    virtual void onCaptureLost() {}
    /// The cursor has left the window while the window did not have the capture.
    virtual void onMouseLeft() {}
    /// A window inside the control's has sent a notification.
    virtual void onCommand(WORD /*code*/, HWND /*from*/) {}

    /// What screen readers are told of the control, and of which window; null while there is none.
    virtual AccessibleLook accessibleLook() const { return {}; }
    virtual HWND accessibleWindow() const noexcept { return m_window.existing(); }

    /// What the window tells a dialog's keyboard handling (DLGC flags).
    virtual LRESULT dialogCode() const { return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON; }

protected:
    /// Aggregated when there is an outer object. The dual interface is the control's own.
    Surface(ControlClass const& controlClass, IUnknown* outer);
    virtual ~Surface();

private:
    /// The identity: counts references and answers which faces there are.
    class Identity final : public IUnknown {
    public:
        explicit Identity(Surface& surface) noexcept : m_surface(surface) {}
        STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
        STDMETHODIMP_(ULONG) AddRef() override;
        STDMETHODIMP_(ULONG) Release() override;

    private:
        Surface& m_surface;
        LONG volatile m_references = 1;
    };

    IUnknown* faceOf(REFIID iid) noexcept;
    void terminate() noexcept;

    LiveObject m_live;
    ControlClass const& m_class;
    Identity m_identity{*this};
    IUnknown* m_outer; ///< not counted: the outer object owns this one

    OLE_COLOR m_backColor = colour::kButtonFace;
    OLE_COLOR m_foreColor = colour::kButtonText;
    bool m_enabled = true;
    short m_mousePointer = 0;
    ComPtr<IPictureDisp> m_mouseIcon;

    HDC m_paintDc = nullptr; ///< set while a container draws the control into a DC of its own
    SIZE m_paintSize = {};

    Container m_container;
    mutable SurfaceFont m_font{*this}; // makes its font at first need
    SurfaceWindow m_window{*this};
    Events m_events{*this};
    InPlace m_inPlace{*this};
    OleObject m_oleObject{*this};
    OleControl m_oleControl{*this};
    View m_view{*this};
    DataObject m_dataObject{*this};
    Persistence m_persistence{*this};
    QuickActivation m_quickActivation{*this};
    ProvidedClassInfo m_classInfo{*this};
    ErrorInfoSupport m_errorInfoSupport{*this};
    ObjectWithSite m_objectWithSite{*this};
    ObjectSafety m_objectSafety{*this};
    Browsing m_browsing{*this};
    Accessibility m_accessibility{*this};
};

/// Makes a control, alone or as part of an outer object, and hands out one of its interfaces.
template <class Control> HRESULT createControl(IUnknown* outer, REFIID iid, void** object) noexcept
{
    return comCall([&] {
        deref(object) = nullptr;
        if (outer && iid != IID_IUnknown)
            throw RunTimeError(CLASS_E_NOAGGREGATION);
        auto const made = ComPtr<IUnknown>::adopt((new Control(outer))->inner());
        check(made->QueryInterface(iid, object));
    });
}

} // namespace quillet
