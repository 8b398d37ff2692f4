// Standard picture objects, as bytes and back.
#include "gallery/form/Pictures.h"

#include "base/RunTimeError.h"
#include "saving/SavedPicture.h"

#include <olectl.h>

#include <objidl.h>

namespace quillet::gallery {

namespace {

ComPtr<IStream> memoryStream()
{
    ComPtr<IStream> stream;
    check(::CreateStreamOnHGlobal(nullptr, TRUE, stream.put()));
    return stream;
}

void rewind(IStream& stream) { check(stream.Seek({}, STREAM_SEEK_SET, nullptr)); }

} // namespace

ComPtr<IPictureDisp> pictureOf(std::string_view bytes)
{
    if (!isSafePicture({reinterpret_cast<BYTE const*>(bytes.data()), bytes.size()}))
        throw RunTimeError(ErrorNumber::InvalidPicture);
    auto const stream = memoryStream();
    check(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    rewind(*stream.get());
    ComPtr<IPictureDisp> picture;
    check(
        ::OleCreatePictureIndirect(nullptr, IID_IPictureDisp, TRUE, reinterpret_cast<void**>(picture.put())));
    auto const persistent = picture.as<IPersistStream>();
    check(deref(persistent.get()).Load(stream.get()));
    return picture;
}

std::string bytesOfPicture(IUnknown* picture)
{
    auto const persistent = query<IPersistStream>(picture);
    auto const stream = memoryStream();
    check(deref(persistent.get()).Save(stream.get(), FALSE));
    STATSTG status{};
    check(stream->Stat(&status, STATFLAG_NONAME));
    rewind(*stream.get());
    std::string bytes(status.cbSize.LowPart, '\0');
    ULONG count = 0;
    check(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count));
    bytes.resize(count);
    return bytes;
}

} // namespace quillet::gallery
