// The form that counterparts of a container's site belong to: its window, frame, container and automation
// object.
#include "kit/FakeForm.h"

#include "kit/FakeSite.h"

namespace quillet::kit {

namespace {

class ObjectEnumerator final : public Counterpart<IEnumUnknown> {
public:
    explicit ObjectEnumerator(std::vector<ComPtr<IUnknown>> objects, size_t at = 0)
        : m_objects(std::move(objects)), m_at(at)
    {}
    STDMETHODIMP Next(ULONG count, IUnknown** objects, ULONG* fetched) override
    {
        ULONG given = 0;
        for (; given < count && m_at < m_objects.size(); ++given)
            objects[given] = m_objects[m_at++].copy();
        if (fetched)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override
    {
        m_at += count;
        return m_at <= m_objects.size() ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override
    {
        m_at = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumUnknown** clone) override
    {
        *clone = make<ObjectEnumerator>(m_objects, m_at).detach();
        return S_OK;
    }

private:
    std::vector<ComPtr<IUnknown>> m_objects;
    size_t m_at;
};

} // namespace

void* FakeFrame::faceOf(REFIID iid) noexcept
{
    if (iid == __uuidof(IOleInPlaceUIWindow) || iid == __uuidof(IOleWindow))
        return static_cast<IOleInPlaceFrame*>(this);
    return Counterpart::faceOf(iid);
}

STDMETHODIMP FakeFrame::GetWindow(HWND* window)
{
    *window = m_window;
    return S_OK;
}

STDMETHODIMP FakeFrame::SetBorderSpace(LPCBORDERWIDTHS)
{
    m_record->note(m_who + ".SetBorderSpace");
    return S_OK;
}

STDMETHODIMP FakeFrame::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR)
{
    HRESULT result = S_OK;
    if (m_record->asked(m_who + ".SetActiveObject", result, object ? "object" : "none"))
        m_activeObject = object;
    return result;
}

STDMETHODIMP FakeFrame::TranslateAccelerator(MSG*, WORD)
{
    m_record->note(m_who + ".TranslateAccelerator");
    return S_FALSE;
}

void* FakeContainer::faceOf(REFIID iid) noexcept
{
    return iid == __uuidof(IParseDisplayName) ? static_cast<IOleContainer*>(this) : Counterpart::faceOf(iid);
}

STDMETHODIMP FakeContainer::EnumObjects(DWORD flags, IEnumUnknown** enumerator)
{
    HRESULT result = S_OK;
    *enumerator = nullptr;
    if (!m_record->asked("Container.EnumObjects", result, std::to_string(flags)))
        return result;
    if (!m_record->handsOutNothing("Container.EnumObjects"))
        *enumerator =
            make<ObjectEnumerator>(std::vector<ComPtr<IUnknown>>(objects.begin(), objects.end())).detach();
    return S_OK;
}

FakeForm::FakeForm(int width, int height)
    : m_window(100, 100, width, height), m_frame(make<FakeFrame>(m_window.handle(), m_record)),
      m_container(make<FakeContainer>(m_record)), m_object(make<NamedObject>("Parent", m_record)),
      m_controls(make<NamedObject>("Controls", m_record))
{
    m_object->offer(L"ActiveControl", Variant::ofDispatch(nullptr));
    m_object->offer(L"Controls", Variant::ofDispatch(m_controls.get()));
    m_controls->provide(
        L"Count", [this](Variant const&) { return Variant::ofLong(static_cast<long>(m_sites.size())); });
    m_controls->provide(L"Item", [this](Variant const& index) {
        auto const at = static_cast<size_t>(index.toLong());
        return at < m_sites.size() ? Variant::ofDispatch(&m_sites[at]->extender()) : Variant();
    });
}

FakeForm::~FakeForm()
{
    for (FakeSite* const site : m_sites)
        site->leaveForm();
    m_container->objects.clear();
    m_frame->forgetActiveObject();
    m_object->removeAll();
    m_controls->removeAll();
}

} // namespace quillet::kit
