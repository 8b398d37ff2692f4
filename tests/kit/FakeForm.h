// The form that counterparts of a container's site belong to: its window, frame, container and automation
// object.
#pragma once

#include "kit/Counterpart.h"
#include "kit/HostWindow.h"
#include "kit/NamedObject.h"
#include "kit/NotCopied.h"

#include <windows.h>

#include <oleidl.h>

#include <vector>

namespace quillet::kit {

class FakeSite;

/// Notes every call as "Frame.…", or by the name of a document's window. Menus, borders and status texts are
/// refused as on a form that has none.
class FakeFrame final : public Counterpart<IOleInPlaceFrame> {
public:
    FakeFrame(HWND window, SharedRecord record, std::string who = "Frame")
        : m_window(window), m_record(std::move(record)), m_who(std::move(who))
    {}

    /// What was last given to SetActiveObject.
    IOleInPlaceActiveObject* activeObject() const noexcept { return m_activeObject.get(); }
    void forgetActiveObject() noexcept { m_activeObject.reset(); }

    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override;
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR name) override;
    STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
    STDMETHODIMP TranslateAccelerator(MSG* message, WORD id) override;

private:
    void* faceOf(REFIID iid) noexcept override;

    HWND m_window;
    SharedRecord m_record;
    std::string m_who;
    ComPtr<IOleInPlaceActiveObject> m_activeObject;
};

/// Enumerates the objects of the form's sites. Notes "Container.EnumObjects(flags)".
class FakeContainer final : public Counterpart<IOleContainer> {
public:
    explicit FakeContainer(SharedRecord record) : m_record(std::move(record)) {}

    std::vector<IUnknown*> objects; ///< borrowed: whoever puts one in takes it out again

    STDMETHODIMP ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP EnumObjects(DWORD flags, IEnumUnknown** enumerator) override;
    STDMETHODIMP LockContainer(BOOL) override { return S_OK; }

private:
    void* faceOf(REFIID iid) noexcept override;

    SharedRecord m_record;
};

/// A visible form. It outlives the sites that it is given; all of them share one record.
class FakeForm : NotCopied {
public:
    explicit FakeForm(int width = 400, int height = 300);
    ~FakeForm();

    HWND window() const noexcept { return m_window.handle(); }
    Record& record() noexcept { return *m_record; }
    SharedRecord const& sharedRecord() const noexcept { return m_record; }
    FakeFrame& frame() noexcept { return *m_frame.get(); }
    FakeContainer& container() noexcept { return *m_container.get(); }
    /// The form as its extenders' Parent and Container: ActiveControl, and Controls with Count and Item.
    NamedObject& object() noexcept { return *m_object.get(); }
    NamedObject& controls() noexcept { return *m_controls.get(); }

    void join(FakeSite& site) { m_sites.push_back(&site); }
    void leave(FakeSite& site) { std::erase(m_sites, &site); }
    std::vector<FakeSite*> const& sites() const noexcept { return m_sites; }

private:
    HostWindow m_window;
    SharedRecord m_record = std::make_shared<Record>();
    ComPtr<FakeFrame> m_frame;
    ComPtr<FakeContainer> m_container;
    ComPtr<NamedObject> m_object;
    ComPtr<NamedObject> m_controls;
    std::vector<FakeSite*> m_sites;
};

} // namespace quillet::kit
