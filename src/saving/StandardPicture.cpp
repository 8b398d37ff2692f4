// Standard picture objects.
#include "saving/StandardPicture.h"

#include "base/RunTimeError.h"

#include <olectl.h>

namespace quillet {

namespace {

ComPtr<IPictureDisp> newPicture(PICTDESC* description)
{
    ComPtr<IPictureDisp> made;
    check(::OleCreatePictureIndirect(description, IID_IPictureDisp, TRUE,
                                     reinterpret_cast<void**>(made.put())));
    return made;
}

} // namespace

ComPtr<IPictureDisp> emptyPicture()
{
    PICTDESC none = {};
    none.cbSizeofstruct = sizeof(none);
    none.picType = PICTYPE_NONE;
    return newPicture(&none);
}

ComPtr<IPictureDisp> unloadedPicture() { return newPicture(nullptr); }

SHORT pictureType(IUnknown* object) noexcept
{
    auto const picture = query<IPicture>(object);
    SHORT type = PICTYPE_NONE;
    if (!picture || FAILED(picture->get_Type(&type)))
        return PICTYPE_NONE;
    return type;
}

bool isEmptyPicture(IUnknown* picture) noexcept
{
    SHORT const type = pictureType(picture);
    return type == PICTYPE_NONE || type == PICTYPE_UNINITIALIZED;
}

bool isMetafile(IUnknown* picture) noexcept
{
    SHORT const type = pictureType(picture);
    return type == PICTYPE_METAFILE || type == PICTYPE_ENHMETAFILE;
}

HANDLE pictureHandle(IPicture& picture) noexcept
{
    OLE_HANDLE handle = 0;
    if (FAILED(picture.get_Handle(&handle)))
        return nullptr;
    return LongToHandle(static_cast<LONG>(handle)); // 32 bits are significant, the sign among them
}

} // namespace quillet
