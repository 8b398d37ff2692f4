// Named values in memory, and their binary form. What is read comes from outside: every length is checked
// against what is there before it is used.
#include "saving/SavedValues.h"

#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "saving/SavedObject.h"
#include "saving/StandardPicture.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace quillet {

namespace {

constexpr DWORD kMagic = 0x42505651; // "QVPB"
constexpr WORD kVersion = 1;
/// What a form begins with.
struct Header {
    DWORD magic = kMagic;
    WORD version = kVersion;
    WORD count = 0;   ///< of values
    DWORD length = 0; ///< of what follows, in bytes
};
static_assert(sizeof(Header) == 12, "as it is stored");
constexpr DWORD kLimit = 64u << 20; // far above any real form: a forged length must not take all memory

/// Appends values to the bytes of a form.
class Writer {
public:
    Writer() { m_bytes.reserve(kUsualSize); }

    template <class T> void put(T value) { append(&value, sizeof(value)); }
    void putText(std::wstring_view text) { append(text.data(), text.size() * sizeof(wchar_t)); }
    void putBytes(std::vector<BYTE> const& bytes) { append(bytes.data(), bytes.size()); }
    std::vector<BYTE> take() { return std::move(m_bytes); }

private:
    static constexpr size_t kUsualSize = 1024; ///< of a form without pictures

    void append(void const* data, size_t size)
    {
        auto const* const first = static_cast<BYTE const*>(data);
        m_bytes.insert(m_bytes.end(), first, first + size);
    }
    std::vector<BYTE> m_bytes;
};

/// Takes values from the bytes of a form; E_FAIL where there are not enough.
class Reader {
public:
    explicit Reader(std::vector<BYTE> bytes) : m_bytes(std::move(bytes)) {}

    template <class T> T take()
    {
        T value;
        std::memcpy(&value, next(sizeof(T)), sizeof(T));
        return value;
    }
    std::wstring takeText(DWORD characters)
    {
        if (characters > rest() / sizeof(wchar_t))
            throw RunTimeError(E_FAIL);
        std::wstring text(characters, L'\0');
        if (characters)
            std::memcpy(text.data(), next(characters * sizeof(wchar_t)), characters * sizeof(wchar_t));
        return text;
    }
    std::vector<BYTE> takeBytes(DWORD size)
    {
        BYTE const* const first = next(size);
        return {first, first + size};
    }
    size_t rest() const noexcept { return m_bytes.size() - m_at; }

private:
    BYTE const* next(size_t size)
    {
        if (size > rest())
            throw RunTimeError(E_FAIL);
        BYTE const* const found = m_bytes.data() + m_at;
        m_at += size;
        return found;
    }
    std::vector<BYTE> m_bytes;
    size_t m_at = 0;
};

void putValue(Writer& out, Variant const& value)
{
    out.put(static_cast<WORD>(value.type()));
    switch (value.type()) {
    case VT_I2:
    case VT_BOOL:
        out.put(value.get().iVal);
        return;
    case VT_I4:
        out.put(static_cast<std::int32_t>(value.get().lVal));
        return;
    case VT_BSTR: {
        auto const text = Bstr::viewOf(value.get().bstrVal);
        out.put(static_cast<DWORD>(text.size()));
        out.putText(text);
        return;
    }
    case VT_UNKNOWN: {
        SavedObject const object = savedObjectOf(value.toObject().get());
        out.put(static_cast<WORD>(object.kind));
        out.put(static_cast<DWORD>(object.bytes.size()));
        out.putBytes(object.bytes);
        return;
    }
    default:
        throw RunTimeError(ErrorNumber::TypeMismatch);
    }
}

/// The error that tells of an object that was left out; nothing where there was no object.
std::optional<ErrorNumber> lossOf(SavedObject::Kind kind) noexcept
{
    switch (kind) {
    case SavedObject::Kind::Font:
        return ErrorNumber::InvalidPropertyValue;
    case SavedObject::Kind::Picture:
        return ErrorNumber::InvalidPicture;
    case SavedObject::Kind::None:
        break;
    }
    return std::nullopt;
}

/// A damaged font or picture comes back as no value at all.
Variant loadedObject(SavedObject const& saved, std::optional<ErrorNumber>& loss)
{
    auto const load = [&] { return Variant::ofUnknown(objectOf(saved).get()); };
    auto const possible = lossOf(saved.kind);
    if (!possible)
        return load();
    Variant object = orFallback(Variant(), load);
    if (object.type() == VT_EMPTY)
        loss = possible;
    return object;
}

Variant takeValue(Reader& in, std::optional<ErrorNumber>& loss)
{
    switch (in.take<WORD>()) {
    case VT_I2:
        return Variant::ofShort(in.take<short>());
    case VT_BOOL:
        return Variant::ofBool(in.take<short>() != VARIANT_FALSE);
    case VT_I4:
        return Variant::ofLong(in.take<std::int32_t>());
    case VT_BSTR: {
        auto const length = in.take<DWORD>();
        return Variant::ofString(in.takeText(length));
    }
    case VT_UNKNOWN: {
        auto const kind = static_cast<SavedObject::Kind>(in.take<WORD>());
        auto const size = in.take<DWORD>();
        return loadedObject({kind, in.takeBytes(size)}, loss);
    }
    default:
        throw RunTimeError(E_FAIL);
    }
}

/// Reads exactly so many bytes; E_FAIL where the stream ends before.
void readExactly(IStream& stream, void* target, ULONG size)
{
    ULONG got = 0;
    while (size > 0) {
        check(stream.Read(target, size, &got));
        if (got == 0 || got > size)
            throw RunTimeError(E_FAIL);
        target = static_cast<BYTE*>(target) + got;
        size -= got;
    }
}

/// Reads a body in pieces, so that a forged length costs no more memory than the stream really holds.
std::vector<BYTE> readBody(IStream& stream, DWORD size)
{
    constexpr DWORD kPiece = 64u << 10;
    if (size > kLimit)
        throw RunTimeError(E_FAIL);
    std::vector<BYTE> body;
    while (body.size() < size) {
        size_t const before = body.size();
        DWORD const piece = std::min(kPiece, size - static_cast<DWORD>(before));
        body.resize(before + piece);
        readExactly(stream, body.data() + before, piece);
    }
    return body;
}

} // namespace

SavedValues SavedValues::fromStream(IStream& stream)
{
    Header header;
    readExactly(stream, &header, sizeof(header));
    if (header.magic != kMagic || header.version != kVersion)
        throw RunTimeError(E_FAIL);

    Reader in(readBody(stream, header.length));
    SavedValues result;
    for (WORD i = 0; i < header.count; ++i) {
        auto const length = in.take<WORD>();
        std::wstring name = in.takeText(length);
        Variant value = takeValue(in, result.m_loss);
        result.m_values.push_back({std::move(name), std::move(value)});
    }
    if (in.rest() != 0)
        throw RunTimeError(E_FAIL);
    return result;
}

std::vector<BYTE> SavedValues::bytes() const
{
    Writer form;
    Header header = {.count = static_cast<WORD>(m_values.size())};
    form.put(header);
    for (Named const& row : m_values) {
        form.put(static_cast<WORD>(row.name.size()));
        form.putText(row.name);
        putValue(form, row.value);
    }
    std::vector<BYTE> bytes = form.take();
    if (bytes.size() - sizeof(header) > kLimit)
        throw RunTimeError(E_OUTOFMEMORY);
    header.length = static_cast<DWORD>(bytes.size() - sizeof(header));
    std::memcpy(bytes.data(), &header, sizeof(header)); // once more, as its length is known now
    return bytes;
}

void SavedValues::toStream(IStream& stream) const
{
    std::vector<BYTE> const form = bytes();
    ULONG written = 0;
    check(stream.Write(form.data(), static_cast<ULONG>(form.size()), &written));
    if (written != form.size())
        throw RunTimeError(STG_E_MEDIUMFULL);
}

ULONG SavedValues::size() const { return static_cast<ULONG>(bytes().size()); }

Variant SavedValues::readProperty(wchar_t const* name, VARTYPE)
{
    std::wstring_view const wanted = name;
    for (Named const& row : m_values)
        if (row.name == wanted)
            return row.value;
    return {};
}

void SavedValues::writeProperty(wchar_t const* name, Variant value)
{
    if (value.type() == VT_UNKNOWN && isMetafile(value.toObject().get())) {
        m_loss = ErrorNumber::InvalidPicture;
        return;
    }
    for (Named& row : m_values)
        if (row.name == name) {
            row.value = std::move(value);
            return;
        }
    m_values.push_back({name, std::move(value)});
}

} // namespace quillet
