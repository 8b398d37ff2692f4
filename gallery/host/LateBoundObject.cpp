// Members that are called by name: names and arguments.
#include "gallery/host/LateBoundObject.h"

namespace quillet::gallery {

Variant Arguments::at(unsigned index) const
{
    if (index >= count())
        throw RunTimeError(DISP_E_PARAMNOTOPTIONAL);
    return Variant::copyOf(deref(m_params->rgvarg + (count() - 1 - index)));
}

HRESULT answerNames(LPOLESTR* names, UINT count, DISPID* ids, DISPID (*find)(void*, std::wstring_view),
                    void* owner)
{
    if (!names || !ids)
        return E_POINTER;
    if (count == 0)
        return E_INVALIDARG;
    HRESULT result = S_OK;
    for (UINT i = 0; i < count; ++i) {
        // Only the first is a member; the others would be its named arguments, which nothing here has.
        ids[i] = i == 0 && names[0] ? find(owner, names[0]) : DISPID_UNKNOWN;
        if (ids[i] == DISPID_UNKNOWN)
            result = DISP_E_UNKNOWNNAME;
    }
    return result;
}

} // namespace quillet::gallery
