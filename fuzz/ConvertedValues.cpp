// What a loaded value goes through on its way into a property: converting, saving and loading once more.
#include "ConvertedValues.h"

#include "Hold.h"
#include "base/RunTimeError.h"
#include "platform/MemoryStream.h"
#include "saving/SavedValues.h"
#include "saving/StandardFont.h"
#include "saving/StandardPicture.h"

#include <optional>

namespace quillet::fuzz {

namespace {

constexpr wchar_t kName[] = L"Value";

/// The value in the type of its kind; nothing where it is refused.
std::optional<Variant> converted(PropertyKind kind, Variant const& loaded)
{
    try {
        return convertedProperty(kind, loaded);
    } catch (RunTimeError const& refusal) {
        hold(FAILED(refusal.result()), "a refusal is a failure");
        return std::nullopt;
    }
}

Variant defaultOf(PropertyKind kind) { return plainFallback(kind, 0); }

Variant savedAndLoaded(PropertyKind kind, Variant const& kept)
{
    SavedValues written;
    if (kind != PropertyKind::Picture ||
        !isEmptyPicture(kept.get().punkVal)) // an empty picture stands for none
        written.writeProperty(kName, savedProperty(kind, kept));
    auto const stream = ComPtr<MemoryStream>::adopt(new MemoryStream());
    written.toStream(*stream.get());
    hold(stream->bytes().size() == written.size(), "the size is told as it is written");
    auto const again = ComPtr<MemoryStream>::adopt(new MemoryStream(stream->bytes()));
    SavedValues read = SavedValues::fromStream(*again.get());
    return loadedOr(read, kName, savedProperty(kind, defaultOf(kind)));
}

/// Equal values of one kind. Objects come back as other ones, and an empty picture as none.
bool areEqual(PropertyKind kind, Variant const& a, Variant const& b)
{
    switch (keptType(kind)) {
    case VT_BSTR:
        return Bstr::viewOf(a.get().bstrVal) == Bstr::viewOf(b.get().bstrVal);
    case VT_BOOL: // everything but 0 is True
        return (a.get().boolVal != VARIANT_FALSE) == (b.get().boolVal != VARIANT_FALSE);
    case VT_I2:
        return a.get().iVal == b.get().iVal;
    case VT_I4:
        return a.get().lVal == b.get().lVal;
    default:
        return kind == PropertyKind::Picture
                   ? isEmptyPicture(a.get().punkVal) == isEmptyPicture(b.get().punkVal)
                   : equalFonts(query<IFont>(a.get().punkVal).get(), query<IFont>(b.get().punkVal).get());
    }
}

} // namespace

Variant loadedOr(PropertyBag& bag, wchar_t const* name, Variant const& fallback)
{
    Variant loaded = bag.readProperty(name, fallback.type());
    if (loaded.type() == VT_EMPTY)
        return fallback;
    return loaded; // moved: what a bag hands out need not be a variant that the system can copy
}

void holdConversion(PropertyKind kind, Variant const& loaded)
{
    auto const kept = converted(kind, loaded);
    if (!kept)
        return;
    hold(kept->type() == keptType(kind), "a converted value has the type of its kind");
    if (kind == PropertyKind::State)
        hold(kept->get().iVal >= 0 && kept->get().iVal <= 2, "a state is 0, 1 or 2");
    auto const again = converted(kind, savedAndLoaded(kind, *kept));
    hold(again.has_value(), "what was saved can be loaded");
    hold(areEqual(kind, *kept, *again), "what was saved is loaded as it was");
}

} // namespace quillet::fuzz
