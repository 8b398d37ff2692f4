// The binary form of saved values, taken apart a second time: offsets into one span, as its description
// counts.
#include "FormModel.h"

#include "platform/MemoryStream.h"
#include "saving/SavedPicture.h"

#include <oaidl.h>

namespace quillet::fuzz {

namespace {

constexpr size_t kHeader = 12;
constexpr unsigned kLargest = 64u << 20;
constexpr unsigned kLargestFont = 21'600'000; // 2,160 points

using Bytes = std::span<BYTE const>;

unsigned half(Bytes bytes, size_t at) { return bytes[at] | unsigned{bytes[at + 1]} << 8; }
unsigned whole(Bytes bytes, size_t at) { return half(bytes, at) | half(bytes, at + 2) << 16; }
bool has(Bytes bytes, size_t at, unsigned size) { return at <= bytes.size() && bytes.size() - at >= size; }

/// Where the data of a value ends that begins at an offset, and how it is written. False for no value.
bool takeData(Bytes body, size_t& at, FormModel& model)
{
    auto const keep = [&](size_t from, size_t size) {
        model.written.insert(model.written.end(), body.begin() + from, body.begin() + from + size);
        at = from + size;
    };
    if (!has(body, at, 2))
        return false;
    unsigned const type = half(body, at);
    keep(at, 2);
    switch (type) {
    case VT_I2:
        if (!has(body, at, 2))
            return false;
        keep(at, 2);
        return true;
    case VT_BOOL:
        if (!has(body, at, 2))
            return false;
        model.written.insert(model.written.end(), 2, half(body, at) ? 0xFF : 0);
        at += 2;
        return true;
    case VT_I4:
        if (!has(body, at, 4))
            return false;
        keep(at, 4);
        return true;
    case VT_BSTR: {
        if (!has(body, at, 4) || whole(body, at) > kLargest || !has(body, at + 4, 2 * whole(body, at)))
            return false;
        keep(at, 4 + 2 * size_t{whole(body, at)});
        return true;
    }
    case VT_UNKNOWN: {
        if (!has(body, at, 6) || half(body, at) > 2 || !has(body, at + 6, whole(body, at + 2)))
            return false;
        unsigned const kind = half(body, at);
        unsigned const size = whole(body, at + 2);
        bool const isDamaged = size > 0 && body[at + 6] == kDamaged;
        bool const isHuge = size >= 10 && whole(body, at + 12) > kLargestFont;
        model.hasDamagedObject |= kind == 1 && (isDamaged || isHuge);
        model.hasDamagedObject |= kind == 2 && !isSafePicture(body.subspan(at + 6, size));
        if (kind == 0) {
            model.written.insert(model.written.end(), 6, 0);
            at += 6 + size;
        } else {
            keep(at, 6 + size);
        }
        return true;
    }
    default:
        return false;
    }
}

bool takeValue(Bytes body, size_t& at, FormModel& model)
{
    if (!has(body, at, 2) || !has(body, at + 2, 2 * half(body, at)))
        return false;
    unsigned const length = half(body, at);
    std::wstring name;
    for (unsigned i = 0; i < length; ++i)
        name += static_cast<wchar_t>(half(body, at + 2 + 2 * i));
    model.names.push_back(name);
    model.written.insert(model.written.end(), body.begin() + at, body.begin() + at + 2 + 2 * length);
    at += 2 + 2 * length;
    return takeData(body, at, model);
}

} // namespace

std::optional<FormModel> modelOf(Bytes bytes)
{
    if (bytes.size() < kHeader || whole(bytes, 0) != 0x42505651 || half(bytes, 4) != 1)
        return std::nullopt;
    unsigned const size = whole(bytes, 8);
    if (size > kLargest || bytes.size() - kHeader < size)
        return std::nullopt;
    FormModel model;
    model.size = kHeader + size;
    Bytes const body = bytes.subspan(kHeader, size);
    size_t at = 0;
    for (unsigned left = half(bytes, 6); left > 0; --left)
        if (!takeValue(body, at, model))
            return std::nullopt;
    if (at != body.size())
        return std::nullopt;

    std::vector<BYTE> header(bytes.begin(), bytes.begin() + 8);
    for (int i = 0; i < 4; ++i)
        header.push_back(static_cast<BYTE>(model.written.size() >> (8 * i)));
    model.written.insert(model.written.begin(), header.begin(), header.end());
    return model;
}

std::uint64_t mayRead(Bytes bytes)
{
    return bytes.size() < kHeader ? std::uint64_t{kHeader} : kHeader + std::uint64_t{whole(bytes, 8)};
}

} // namespace quillet::fuzz
