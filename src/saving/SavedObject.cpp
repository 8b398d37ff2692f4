// Fonts and pictures as bytes, through their own persistence.
#include "saving/SavedObject.h"

#include "base/RunTimeError.h"
#include "saving/SavedPicture.h"
#include "saving/StandardFont.h"
#include "saving/StandardPicture.h"

#include <ocidl.h>
#include <olectl.h>

#include <objidl.h>

#include <cstring>

namespace quillet {

namespace {

ComPtr<IStream> memoryStream()
{
    ComPtr<IStream> stream;
    check(::CreateStreamOnHGlobal(nullptr, TRUE, stream.put()));
    return stream;
}

void rewind(IStream& stream)
{
    LARGE_INTEGER const start = {};
    check(stream.Seek(start, STREAM_SEEK_SET, nullptr));
}

std::vector<BYTE> contentsOf(IStream& stream)
{
    STATSTG status = {};
    check(stream.Stat(&status, STATFLAG_NONAME));
    std::vector<BYTE> bytes(status.cbSize.LowPart);
    rewind(stream);
    ULONG got = 0;
    check(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &got));
    bytes.resize(got);
    return bytes;
}

ComPtr<IUnknown> emptyObject(SavedObject::Kind kind)
{
    switch (kind) {
    case SavedObject::Kind::Font:
        return unloadedFont().as<IUnknown>();
    case SavedObject::Kind::Picture:
        return unloadedPicture().as<IUnknown>();
    case SavedObject::Kind::None:
        return {};
    }
    throw RunTimeError(E_FAIL);
}

SavedObject::Kind kindOf(IUnknown* object)
{
    if (query<IFont>(object))
        return SavedObject::Kind::Font;
    if (query<IPicture>(object))
        return SavedObject::Kind::Picture;
    throw RunTimeError(ErrorNumber::TypeMismatch);
}

/// A saved font has its size behind version, character set, style and weight; one that is shorter the font
/// object refuses itself.
bool hasHonestSize(std::vector<BYTE> const& font) noexcept
{
    constexpr size_t kSize = 6;
    DWORD size = 0;
    if (font.size() >= kSize + sizeof size)
        std::memcpy(&size, font.data() + kSize, sizeof size);
    return isHonestFontSize(size);
}

/// Whether the system's own objects can be given these bytes.
bool isHonest(SavedObject const& saved) noexcept
{
    return saved.kind == SavedObject::Kind::Font ? hasHonestSize(saved.bytes) : isSafePicture(saved.bytes);
}

} // namespace

SavedObject savedObjectOf(IUnknown* object)
{
    if (!object)
        return {SavedObject::Kind::None, {}};
    SavedObject saved = {kindOf(object), {}};
    auto const persist = query<IPersistStream>(object);
    if (!persist)
        throw RunTimeError(E_NOINTERFACE);
    auto const stream = memoryStream();
    check(persist->Save(stream.get(), TRUE));
    saved.bytes = contentsOf(*stream.get());
    return saved;
}

ComPtr<IUnknown> objectOf(SavedObject const& saved)
{
    ComPtr<IUnknown> object = emptyObject(saved.kind);
    if (!object)
        return {};
    if (!isHonest(saved))
        throw RunTimeError(E_FAIL);
    auto const stream = memoryStream();
    check(stream->Write(saved.bytes.data(), static_cast<ULONG>(saved.bytes.size()), nullptr));
    rewind(*stream.get());
    auto const persist = object.as<IPersistStream>();
    if (!persist || FAILED(persist->Load(stream.get())))
        throw RunTimeError(E_FAIL);
    return object;
}

} // namespace quillet
