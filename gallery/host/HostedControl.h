// An ActiveX control on a form: made, loaded, activated in place and ended in the order that controls expect.
#pragma once

#include "gallery/form/PropertyBag.h"
#include "gallery/host/EventSink.h"
#include "gallery/host/FormControl.h"
#include "gallery/host/Site.h"
#include "gallery/host/ViewSink.h"

#include <ocidl.h>
#include <windows.h>

#include <oleidl.h>

namespace quillet::gallery {

class HostedControl final : public FormControl {
public:
    /// Throws when the object is no OLE object.
    HostedControl(Form& form, FormControl* container, FormNode const& node, ComPtr<IUnknown> object);
    ~HostedControl() override;

    /// Gives the control its site, loads it with what the node says and listens to it. Throws when the
    /// control refuses; then it is of no use. classInfo may be null.
    void load(FormNode const& node, ITypeInfo* classInfo);

    HWND window() const noexcept override { return m_window; }
    IUnknown* object() noexcept override { return m_object.get(); }
    IDispatch* automation() noexcept override { return m_automation.get(); }
    bool isEmbedding() const noexcept override { return true; }
    bool takesFocus() const noexcept override;
    bool actsLikeButton() const noexcept override { return (m_status & OLEMISC_ACTSLIKEBUTTON) != 0; }
    bool isOption() const noexcept override;
    bool isSelectedOption() const noexcept override;

    void focus() override;
    void focusLost() override;
    void press(WPARAM key) override;
    void choose() override;
    bool ownsAccessKey(MSG const& message) override;
    void runAccessKey(MSG const& message) override;
    bool translateKey(MSG& message) override;
    bool eatsKey(WPARAM key) override;

    void activate() override;
    void showDefaultChanged() override;
    void drawWithoutWindow(HDC dc) override;
    void close() override;

    /// Shows its property pages until the user closes them.
    void showPages() noexcept;
    /// What the control would save, as a bag; for a control that keeps no property bag, an empty one.
    ComPtr<PropertyBag> save(bool allProperties);
    /// What it would have saved as soon as it was loaded and shown; empty at run time.
    PropertyBag* asLoaded() const noexcept { return m_asLoaded.get(); }

protected:
    void placeChanged() override;
    void visibleChanged() override;

private:
    void setSite();
    void rememberAsLoaded();
    void loadProperties(FormNode const& node);
    void advise(ITypeInfo* classInfo);
    void setExtent();
    HRESULT doVerb(LONG verb, MSG* message) noexcept;
    CONTROLINFO controlInfo() const noexcept;

    ComPtr<IUnknown> m_object;
    ComPtr<IOleObject> m_ole;
    ComPtr<IDispatch> m_automation;
    ComPtr<IOleControl> m_control;       ///< empty when it is none
    ComPtr<IOleInPlaceObject> m_inPlace; ///< empty when it is never active in place
    ComPtr<IViewObject> m_view;
    ComPtr<Site> m_site;
    ComPtr<EventSink> m_events;
    ComPtr<ViewSink> m_viewSink;
    ComPtr<PropertyBag> m_asLoaded;
    bool m_wasActive = false;
    Connection m_eventConnection;
    DWORD m_status = 0;
    HWND m_window = nullptr; // the control's own
};

} // namespace quillet::gallery
