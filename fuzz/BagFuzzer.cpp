// Fuzzes what a container's property bag answers: reading a value of each kind, and reading it into a
// property.
#include "ConvertedValues.h"
#include "Hold.h"
#include "Input.h"
#include "base/Counted.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"
#include "platform/Objects.h"
#include "saving/PropertyBag.h"

#include <ocidl.h>

#include <algorithm>
#include <iterator>

namespace quillet::fuzz {

namespace {

/// Answers with any result, and with a value of any type. A failure leaves anything in the caller's variant;
/// what a success leaves there is a value, as the caller frees it.
class FuzzedBag final : public Counted<IPropertyBag> {
public:
    explicit FuzzedBag(Input& input) noexcept : m_input(input) {}

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return E_NOTIMPL; }

    /// Whether the last value that was asked for was refused, and never given.
    bool hasRefused() const noexcept { return m_hasRefused; }

private:
    void fill(VARIANT& value);
    void fillReference(VARIANT& value);

    Input& m_input;
    bool m_hasRefused = false;
    Variant m_referred; ///< what a value by reference refers to; the bag's own
};

constexpr HRESULT kResults[] = {S_OK,
                                S_OK,
                                S_FALSE,
                                E_INVALIDARG,
                                E_FAIL,
                                E_POINTER,
                                E_OUTOFMEMORY,
                                DISP_E_TYPEMISMATCH,
                                DISP_E_OVERFLOW,
                                DISP_E_BADVARTYPE};
/// Types that are likely to convert, and some that never do. What is chosen beyond them is taken as it comes.
constexpr VARTYPE kTypes[] = {VT_EMPTY, VT_NULL, VT_I2,   VT_I4,    VT_R4,    VT_R8,      VT_CY,
                              VT_DATE,  VT_BSTR, VT_BSTR, VT_BOOL,  VT_UI4,   VT_UNKNOWN, VT_DISPATCH,
                              VT_UI1,   VT_I8,   VT_UI8,  VT_ERROR, VT_RECORD};

constexpr size_t kLongestText = 200;

IUnknown* newObject(BYTE choice)
{
    switch (choice % 4) {
    case 0:
        return nullptr;
    case 1:
        return static_cast<IFont*>(new FontObject());
    case 2:
        return new PlainObject(PlainObject::Kind::Picture);
    default:
        return new PlainObject(PlainObject::Kind::Other);
    }
}

/// The types whose value is a pointer get a real one, or none.
void FuzzedBag::fill(VARIANT& value)
{
    auto const choice = m_input.take<BYTE>();
    value.vt = choice < std::size(kTypes) ? kTypes[choice] : m_input.take<VARTYPE>();
    value.llVal = m_input.take<LONGLONG>();
    if (value.vt & VT_BYREF) {
        fillReference(value);
        return;
    }
    if (value.vt == VT_BSTR) {
        auto const size = static_cast<BYTE>(value.llVal);
        std::wstring const text = m_input.takeText(size % kLongestText);
        value.bstrVal =
            size == 0 ? nullptr : ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    } else if (value.vt == VT_UNKNOWN || value.vt == VT_DISPATCH) {
        value.punkVal = newObject(static_cast<BYTE>(value.llVal));
    } else if ((value.vt & VT_ARRAY) || value.vt == VT_RECORD) {
        value.llVal = 0;
    }
}

void FuzzedBag::fillReference(VARIANT& value)
{
    auto const size = static_cast<BYTE>(value.llVal);
    auto const type = static_cast<VARTYPE>(value.vt & ~VT_BYREF);
    VARIANT referred;
    referred.vt = VT_I8; // eight bytes, which any number can be read from
    referred.llVal = m_input.take<LONGLONG>();
    if (type == VT_BSTR) {
        referred.vt = type;
        referred.bstrVal = Bstr(m_input.takeText(size % kLongestText)).copy();
    } else if (type == VT_UNKNOWN || type == VT_DISPATCH) {
        referred.vt = type;
        referred.punkVal = newObject(size);
    }
    m_referred = Variant::adopt(referred);
    value.byref =
        type == VT_VARIANT ? static_cast<void*>(m_referred.address()) : &m_referred.address()->llVal;
    if (size == 0)
        value.byref = nullptr;
}

HRESULT STDMETHODCALLTYPE FuzzedBag::Read(LPCOLESTR, VARIANT* value, IErrorLog*)
{
    auto const choice = m_input.take<BYTE>();
    HRESULT const result = choice < std::size(kResults) ? kResults[choice] : m_input.take<HRESULT>();
    m_hasRefused = FAILED(result);
    if (m_hasRefused) {
        auto const garbage = m_input.takeBytes(sizeof *value);
        std::copy(garbage.begin(), garbage.end(), reinterpret_cast<BYTE*>(value));
    } else if (choice != 0) { // a bag may call it a success and leave the variant as it was
        fill(*value);
    }
    return result;
}

void readOne(PropertyKind kind, Input& input)
{
    auto const answering = ComPtr<FuzzedBag>::adopt(new FuzzedBag(input));
    HostPropertyBag bag(*answering.get(), nullptr);
    Variant const fallback = savedProperty(kind, plainFallback(kind, input.take<BYTE>() % 3));
    try {
        Variant const loaded = loadedOr(bag, L"Value", fallback);
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
