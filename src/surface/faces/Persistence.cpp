// IPersistStreamInit, IPersistStorage, IPersistPropertyBag: one set of values, three carriers.
#include "surface/faces/Persistence.h"

#include "base/RunTimeError.h"
#include "saving/PropertyBag.h"
#include "saving/SavedValues.h"
#include "surface/Surface.h"

namespace quillet {

namespace {

constexpr wchar_t kStreamName[] = L"Contents"; // the name that containers expect of a control

} // namespace

HRESULT Persistence::GetClassID(CLSID* classId)
{
    return comCall([&] { deref(classId) = m_surface.controlClass().classId; });
}

HRESULT Persistence::IsDirty() { return m_dirty ? S_OK : S_FALSE; }

HRESULT Persistence::Load(IStream* stream)
{
    return m_surface.call([&] { return load(deref(stream)); });
}

HRESULT Persistence::Save(IStream* stream, WINBOOL clearDirty)
{
    return m_surface.call([&] {
        HRESULT const saved = save(deref(stream));
        if (clearDirty)
            m_dirty = false;
        m_surface.oleObject().notifySaved();
        return saved;
    });
}

HRESULT Persistence::GetSizeMax(ULARGE_INTEGER* size)
{
    return m_surface.call([&] { deref(size).QuadPart = savedValues().size(); });
}

HRESULT Persistence::InitNew()
{
    return m_surface.call([&] {
        m_surface.onInitProperties();
        m_dirty = true; // a new control has never been saved
    });
}

HRESULT Persistence::InitNew(IStorage*) { return InitNew(); }

HRESULT Persistence::Load(IStorage* storage)
{
    return m_surface.call([&] {
        ComPtr<IStream> stream;
        check(deref(storage).OpenStream(kStreamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0,
                                        stream.put()));
        return load(deref(stream.get()));
    });
}

HRESULT Persistence::Save(IStorage* storage, WINBOOL)
{
    return m_surface.call([&] {
        ComPtr<IStream> stream;
        check(deref(storage).CreateStream(kStreamName, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                          stream.put()));
        return save(deref(stream.get()));
    });
}

HRESULT Persistence::SaveCompleted(IStorage*)
{
    return m_surface.call([&] {
        m_dirty = false;
        m_surface.oleObject().notifySaved();
    });
}

/// No storage is held between calls.
HRESULT Persistence::HandsOffStorage() { return S_OK; }

HRESULT Persistence::Load(IPropertyBag* bag, IErrorLog* log)
{
    return m_surface.call([&] {
        HostPropertyBag saved(deref(bag), log);
        m_surface.onReadProperties(saved);
        m_dirty = false;
    });
}

HRESULT Persistence::Save(IPropertyBag* bag, WINBOOL clearDirty, WINBOOL)
{
    return m_surface.call([&] {
        HostPropertyBag saved(deref(bag), nullptr);
        m_surface.onWriteProperties(saved);
        if (clearDirty)
            m_dirty = false;
        m_surface.oleObject().notifySaved();
    });
}

SavedValues Persistence::savedValues()
{
    SavedValues values;
    m_surface.onWriteProperties(values);
    return values;
}

HRESULT Persistence::load(IStream& stream)
{
    // The whole form is read before the control sees any of it: a broken one changes nothing.
    SavedValues values = SavedValues::fromStream(stream);
    m_surface.onReadProperties(values);
    m_dirty = values.loss().has_value();
    return tell(values.loss());
}

HRESULT Persistence::save(IStream& stream)
{
    SavedValues const values = savedValues();
    values.toStream(stream);
    return tell(values.loss());
}

HRESULT Persistence::tell(std::optional<ErrorNumber> loss)
{
    if (!loss)
        return S_OK;
    comCall(m_surface.controlClass().errorSource(), [&] { throw RunTimeError(*loss); });
    return S_FALSE;
}

} // namespace quillet
