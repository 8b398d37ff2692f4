// What stands in for the system's picture objects: identity, and where the readers get pictures.
#include "platform/PlainObject.h"

#include "saving/StandardPicture.h"

#include <ocidl.h>
#include <olectl.h>

namespace quillet::fuzz {

int PlainObject::s_living = 0;

HRESULT STDMETHODCALLTYPE PlainObject::QueryInterface(REFIID iid, void** out)
{
    if (iid == IID_IPersistStream && m_kind != Kind::Picture) {
        *out = nullptr;
        return E_NOINTERFACE;
    }
    return Counted::QueryInterface(iid, out);
}

IUnknown* PlainObject::inheritedInterface(REFIID iid) noexcept
{
    bool const isPicture = m_kind == Kind::Picture && (iid == IID_IPicture || iid == IID_IPictureDisp);
    return iid == IID_IDispatch || isPicture ? static_cast<IPersistStream*>(this) : nullptr;
}

} // namespace quillet::fuzz

namespace quillet {

ComPtr<IPictureDisp> unloadedPicture()
{
    using fuzz::PlainObject;
    auto* const picture = new PlainObject(PlainObject::Kind::Picture);
    return ComPtr<IPictureDisp>::adopt(
        reinterpret_cast<IPictureDisp*>(static_cast<IPersistStream*>(picture)));
}

/// Every picture here is such an object, whatever interface it was asked for.
bool isEmptyPicture(IUnknown* picture) noexcept
{
    return !picture ||
           static_cast<fuzz::PlainObject*>(reinterpret_cast<IPersistStream*>(picture))->bytes().empty();
}

/// None has a format of its own.
bool isMetafile(IUnknown*) noexcept { return false; }

} // namespace quillet

HRESULT WINAPI OleCreatePictureIndirect(PICTDESC*, REFIID, BOOL, void** picture)
{
    *picture = quillet::unloadedPicture().detach();
    return S_OK;
}
