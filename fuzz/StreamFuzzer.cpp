// Fuzzes the saved stream: reading, reading the values into properties, and writing it again.
//
// The first byte of an input says how the stream answers, the second whether the form's length is put right;
// the rest is the stream.
#include "ConvertedValues.h"
#include "FormModel.h"
#include "Hold.h"
#include "Input.h"
#include "base/RunTimeError.h"
#include "platform/Objects.h"
#include "saving/SavedValues.h"

#include <algorithm>
#include <cstdint>

namespace quillet::fuzz {

namespace {

using Bytes = std::vector<BYTE>;

/// How a stream answers, beside giving what it was asked for.
struct Manner {
    ULONG piece = 0;               ///< it gives no more at once; 0 for all
    std::uint64_t failsAt = ~0ull; ///< it fails as soon as it has given that much
    bool exaggerates = false;      ///< it says more than it was asked for
};

/// A stream that gives what it has in its own way.
class HostileStream final : public MemoryStream {
public:
    HostileStream(std::vector<BYTE> bytes, Manner manner, std::uint64_t mayRead)
        : MemoryStream(std::move(bytes)), m_manner(manner), m_mayRead(mayRead)
    {}

    HRESULT STDMETHODCALLTYPE Read(void* target, ULONG size, ULONG* got) override
    {
        hold(position() + size <= m_mayRead, "nothing outside the form is asked for");
        if (position() >= m_manner.failsAt)
            return failed(STG_E_READFAULT);
        ULONG const most = m_manner.piece ? std::min(size, m_manner.piece) : size;
        HRESULT const result = MemoryStream::Read(target, most, got);
        if (!m_manner.exaggerates)
            return result;
        *got = size + 1;
        return failed(result);
    }
    /// Whether it gave an answer that no reader may go on from.
    bool hasFailed() const noexcept { return m_hasFailed; }

private:
    HRESULT failed(HRESULT result) noexcept
    {
        m_hasFailed = true;
        return result;
    }

    Manner m_manner;
    std::uint64_t m_mayRead;
    bool m_hasFailed = false;
};

Manner mannerOf(BYTE choice, BYTE amount) noexcept
{
    Manner manner;
    if (choice & 1)
        manner.piece = 1 + amount % 64u;
    if ((choice & 6) == 6)
        manner.failsAt = amount;
    manner.exaggerates = (choice & 24) == 24;
    return manner;
}

/// So that most of what is tried lies behind the header, where the values are.
void putLengthRight(Bytes& form)
{
    constexpr size_t kHeader = 12;
    if (form.size() < kHeader)
        return;
    for (size_t i = 0; i < 4; ++i)
        form[8 + i] = static_cast<BYTE>((form.size() - kHeader) >> (8 * i));
}

Bytes writtenAgain(SavedValues const& values)
{
    auto const stream = ComPtr<MemoryStream>::adopt(new MemoryStream());
    values.toStream(*stream.get());
    hold(stream->bytes().size() == values.size(), "the size is told as it is written");
    return stream->bytes();
}

void holdProperties(SavedValues& values, std::vector<std::wstring> const& names)
{
    for (std::wstring const& name : names)
        for (PropertyKind const kind : kAllKinds)
            holdConversion(kind, loadedOr(values, name.c_str(), savedProperty(kind, plainFallback(kind, 1))));
}

void read(Bytes const& bytes, Manner manner)
{
    auto const model = modelOf(bytes);
    auto const stream = ComPtr<HostileStream>::adopt(new HostileStream(bytes, manner, mayRead(bytes)));
    try {
        SavedValues values = SavedValues::fromStream(*stream.get());
        hold(model && !stream->hasFailed(), "what is no form is refused");
        hold(stream->position() == model->size, "the form is read to its end and no further");
        hold(values.loss().has_value() == model->hasDamagedObject, "a damaged font or picture is told");
        holdProperties(values, model->names);
        if (!values.loss())
            hold(writtenAgain(values) == model->written, "what was read is written as it was");
    } catch (RunTimeError const& refusal) {
        hold(!model || stream->hasFailed(), "a form is read");
        hold(FAILED(refusal.result()), "a refusal is a failure");
    }
}

} // namespace

} // namespace quillet::fuzz

extern "C" int LLVMFuzzerTestOneInput(BYTE const* data, size_t size)
{
    using namespace quillet::fuzz;
    Input input(data, size);
    auto const choice = input.take<BYTE>();
    auto const amount = input.take<BYTE>();
    auto bytes = input.takeBytes(input.rest());
    if (choice & 32)
        putLengthRight(bytes);
    read(bytes, mannerOf(choice, amount));
    hold(livingObjects() == 0, "no object is left over");
    return 0;
}
