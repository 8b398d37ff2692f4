// Fuzzes what a container's property bag answers: reading a value of each kind, and reading it into a
// property.
#include "ConvertedValues.h"
#include "FuzzedBag.h"
#include "Hold.h"
#include "Input.h"
#include "base/RunTimeError.h"
#include "platform/Objects.h"
#include "saving/PropertyBag.h"

namespace quillet::fuzz {

namespace {

void readOne(PropertyKind kind, Input& input)
{
    auto const answering = ComPtr<FuzzedBag>::adopt(new FuzzedBag(input));
    HostPropertyBag bag(*answering.get(), nullptr);
    Variant const fallback = savedProperty(kind, plainFallback(kind, input.take<BYTE>() % 3));
    try {
        Variant const loaded = static_cast<PropertyBag&>(bag).readProperty(L"Value", fallback);
        if (answering->hasRefused())
            hold(loaded.type() == fallback.type(), "where a bag has nothing it is the default");
        hold(loaded.type() != VT_EMPTY, "a property is always read as some value");
        holdConversion(kind, loaded);
    } catch (RunTimeError const& refusal) {
        hold(answering->hasRefused() && FAILED(refusal.result()), "only what a bag refuses is an error");
    }
}

} // namespace

} // namespace quillet::fuzz

extern "C" int LLVMFuzzerTestOneInput(BYTE const* data, size_t size)
{
    using namespace quillet::fuzz;
    Input input(data, size);
    while (!input.isEmpty())
        readOne(kAllKinds[input.take<BYTE>() % std::size(kAllKinds)], input);
    hold(livingObjects() == 0, "no object is left over");
    return 0;
}
