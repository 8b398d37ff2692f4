// What may happen to a control's values between loading and saving: new values of every type that controls
// save.
#include "Changes.h"

#include "base/ComCall.h"
#include "gallery/form/FormText.h"
#include "gallery/form/Pictures.h"
#include "platform/Objects.h"

#include <oleauto.h>

namespace quillet::fuzz {

namespace {

constexpr size_t kLongest = 60;

Variant newText(Input& input, gallery::FormCoding coding)
{
    std::wstring text = input.takeText(input.take<BYTE>() % kLongest);
    text = gallery::decoded(gallery::encoded(text, coding), coding);
    std::erase(text, L'\0'); // ends the caption of a window
    return Variant::ofString(text);
}

Variant newFont(Input& input)
{
    std::wstring name = input.take<BYTE>() & 1 ? L"Tahoma" : L"Arial \"2\"";
    FONTDESC description{};
    description.lpstrName = name.data();
    description.cySize.int64 = 10000 + input.take<WORD>() * 100LL;
    description.sWeight = input.take<SHORT>();
    description.sCharset = input.take<BYTE>();
    description.fItalic = input.take<BYTE>() & 1;
    description.fUnderline = input.take<BYTE>() & 1;
    auto const font = ComPtr<FontObject>::adopt(new FontObject(description));
    return Variant::ofUnknown(static_cast<IFont*>(font.get()));
}

/// A GIF of one pixel, with bytes behind its end that nobody looks at.
Variant newPicture(Input& input)
{
    constexpr std::string_view kGif{"GIF89a\1\0\1\0\x80\0\0\0\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35};
    auto const bytes = input.takeBytes(input.take<BYTE>() % kLongest);
    std::string const file = std::string(kGif) + std::string(bytes.begin(), bytes.end());
    std::string const length{static_cast<char>(file.size()), 0, 0, 0};
    return Variant::ofUnknown(gallery::pictureOf(std::string("lt\0\0", 4) + length + file).get());
}

Variant newScalar(Input& input, gallery::FormCoding coding)
{
    switch (input.take<BYTE>() % 5) {
    case 0:
        return Variant::ofShort(input.take<short>());
    case 1:
        return Variant::ofLong(input.take<LONG>());
    case 2:
        return Variant::ofBool(input.take<BYTE>() & 1);
    default:
        return newText(input, coding);
    }
}

enum class Sort { Scalar, Font, Picture };

Sort sortOf(Variant const& value)
{
    if (value.type() != VT_UNKNOWN && value.type() != VT_DISPATCH)
        return Sort::Scalar;
    return query<IFont>(value.get().punkVal) ? Sort::Font : Sort::Picture;
}

/// A property may change its type between the scalars, but never becomes an object.
Variant newValue(Sort sort, Input& input, gallery::FormCoding coding)
{
    switch (sort) {
    case Sort::Font:
        return newFont(input);
    case Sort::Picture:
        return newPicture(input);
    case Sort::Scalar:
        return newScalar(input, coding);
    }
    std::abort();
}

struct Name {
    wchar_t const* text;
    Sort sort;
};

/// Names that controls have and a form may not have yet.
constexpr Name kNames[] = {{L"Caption", Sort::Scalar},
                           {L"BorderWidth", Sort::Scalar},
                           {L"Font", Sort::Font},
                           {L"Image", Sort::Picture}};

} // namespace

Bag asSaved(gallery::PropertyBag const& loaded)
{
    Bag bag = makeCounted<gallery::PropertyBag>();
    for (auto const& entry : loaded.entries())
        if (entry.value.type() != VT_R8)
            bag->set(entry.name, entry.value);
        else
            ignoringErrors([&] { bag->set(entry.name, Variant::ofLong(entry.value.toLong())); });
    return bag;
}

Bag changed(gallery::PropertyBag const& saved, Input& input, gallery::FormCoding coding)
{
    enum { Keep, Remove, Change, Kinds };
    Bag bag = makeCounted<gallery::PropertyBag>();
    for (auto const& entry : saved.entries()) {
        int const deed = input.take<BYTE>() % Kinds;
        if (deed != Remove)
            bag->set(entry.name, deed == Change ? newValue(sortOf(entry.value), input, coding) : entry.value);
    }
    for (BYTE left = input.take<BYTE>() % 3; left > 0; --left) {
        Name const& name = kNames[input.take<BYTE>() % std::size(kNames)];
        if (!saved.find(name.text))
            bag->set(name.text, newValue(name.sort, input, coding));
    }
    return bag;
}

bool areSame(Variant const& written, Variant const& read)
{
    Sort const sort = sortOf(written);
    if (sort == Sort::Scalar)
        return orFallback(false, [&] {
            Variant const again = read.convertedTo(written.type());
            return written.type() == VT_BSTR ? written.toString().view() == again.toString().view()
                                             : written.toLong() == again.toLong();
        });
    if (sort != sortOf(read))
        return false;
    if (sort == Sort::Font)
        return query<IFont>(written.get().punkVal)->IsEqual(query<IFont>(read.get().punkVal).get()) == S_OK;
    return gallery::bytesOfPicture(written.get().punkVal) == gallery::bytesOfPicture(read.get().punkVal);
}

} // namespace quillet::fuzz
