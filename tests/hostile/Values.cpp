// Values of every type that somebody may hand out where another was asked for, strange objects among them.
#include "Values.h"

#include "kit/FontCounterpart.h"
#include "kit/Fonts.h"

#include <ocidl.h>
#include <windows.h>

#include <cmath>
#include <limits>

namespace quillet::hostile {

namespace {

/// What the references among the values refer to.
struct Targets {
    short integer = 7;
    long number = 70'000;
    VARIANT_BOOL flag = VARIANT_TRUE;
    VARIANT inside{};
    IUnknown* none = nullptr;
};
Targets g_targets;

Variant plain(VARTYPE type, LONGLONG bits = 0)
{
    Variant value;
    *value.address() = {};
    value.address()->llVal = bits;
    value.address()->vt = type;
    return value;
}

Variant ofDouble(VARTYPE type, double number)
{
    Variant value;
    value.address()->dblVal = number;
    value.address()->vt = type;
    return value;
}

Variant decimal(BYTE digitsBehindThePoint)
{
    Variant value = plain(VT_DECIMAL, -1);
    value.address()->decVal.scale = digitsBehindThePoint;
    return value;
}

Variant array()
{
    Variant value;
    value.address()->parray = ::SafeArrayCreateVector(VT_I4, 0, 3);
    value.address()->vt = VT_ARRAY | VT_I4;
    return value;
}

} // namespace

Variant referring(VARTYPE type, void* target)
{
    Variant value;
    value.address()->byref = target;
    value.address()->vt = static_cast<VARTYPE>(type | VT_BYREF);
    return value;
}

std::vector<NamedValue> strangeValues()
{
    constexpr auto kMostNegative = std::numeric_limits<long>::min();
    g_targets.inside = Variant::ofLong(3).detach();
    return {
        {"VT_EMPTY", {}},
        {"VT_NULL", plain(VT_NULL)},
        {"VT_I1", plain(VT_I1, 0x80)},
        {"VT_UI1", plain(VT_UI1, 0xFF)},
        {"VT_I2", plain(VT_I2, 0x8000)},
        {"VT_UI2", plain(VT_UI2, 0xFFFF)},
        {"VT_I4", Variant::ofLong(kMostNegative)},
        {"VT_UI4", plain(VT_UI4, 0xFFFFFFFF)},
        {"VT_I8", plain(VT_I8, std::numeric_limits<LONGLONG>::min())},
        {"VT_UI8", plain(VT_UI8, -1)},
        {"VT_INT", plain(VT_INT, 0x7FFFFFFF)},
        {"VT_R4", Variant::ofFloat(3.4e38F)},
        {"VT_R8, no number", ofDouble(VT_R8, std::nan(""))},
        {"VT_R8, endless", ofDouble(VT_R8, std::numeric_limits<double>::infinity())},
        {"VT_CY", plain(VT_CY, std::numeric_limits<LONGLONG>::max())},
        {"VT_DATE", ofDouble(VT_DATE, 1e300)},
        {"VT_DECIMAL", plain(VT_DECIMAL, -1)},
        {"VT_DECIMAL, more digits than there are", decimal(0xFF)},
        {"VT_BOOL, neither", plain(VT_BOOL, 1)},
        {"VT_ERROR", plain(VT_ERROR, DISP_E_PARAMNOTFOUND)},
        {"VT_BSTR, null", plain(VT_BSTR)},
        {"VT_BSTR, a word", Variant::ofString(L"True")},
        {"VT_BSTR, no number", Variant::ofString(L"12 apples")},
        {"VT_BSTR, long", Variant::ofString(std::wstring(70'000, L'&'))},
        {"VT_UNKNOWN, null", Variant::ofUnknown(nullptr)},
        {"VT_DISPATCH, null", Variant::ofDispatch(nullptr)},
        {"a picture", Variant::ofUnknown(kit::newBitmapPicture(7, 5, RGB(1, 2, 3)).get())},
        {"a font", Variant::ofUnknown(kit::newFont(L"Tahoma", 9).get())},
        {"a font that fails", Variant::ofUnknown(failingFont(E_FAIL).get())},
        {"a font that gives nothing", Variant::ofUnknown(failingFont(S_OK).get())},
        {"a picture that fails", Variant::ofUnknown(failingPicture(E_FAIL).get())},
        {"a picture that gives nothing", Variant::ofUnknown(failingPicture(S_OK).get())},
        {"an object that is nothing", Variant::ofUnknown(plainObject().get())},
        {"an array", array()},
        {"an array, null", plain(VT_ARRAY | VT_I4)},
        {"a reference to a short", referring(VT_I2, &g_targets.integer)},
        {"a reference to a long", referring(VT_I4, &g_targets.number)},
        {"a reference to a flag", referring(VT_BOOL, &g_targets.flag)},
        {"a reference to a value", referring(VT_VARIANT, &g_targets.inside)},
        {"a reference to no object", referring(VT_UNKNOWN, &g_targets.none)},
        {"a reference to nothing", referring(VT_I4, nullptr)},
        {"a reference to no text", referring(VT_BSTR, nullptr)},
        {"a reference to no value", referring(VT_VARIANT, nullptr)},
        {"a reference to no object at all", referring(VT_DISPATCH, nullptr)},
    };
}

namespace {

/// What is saved into and loaded from streams, and answers the same to every call.
template <class Base> class FailingStream : public Base {
public:
    explicit FailingStream(HRESULT answer) : m_answer(answer) {}

    STDMETHODIMP GetClassID(CLSID*) override { return m_answer; }
    STDMETHODIMP IsDirty() override { return m_answer; }
    STDMETHODIMP Load(IStream*) override { return m_answer; }
    STDMETHODIMP Save(IStream*, WINBOOL) override { return m_answer; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return m_answer; }

protected:
    HRESULT m_answer;
};

class FailingFont final : public FailingStream<kit::FontCounterpart<IFontDisp, IPersistStream>> {
public:
    using FailingStream::FailingStream;

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return m_answer; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return m_answer;
    }

private:
    HRESULT answered() override { return m_answer; }
};

class FailingPicture final : public FailingStream<kit::Counterpart<IPicture, IPersistStream>> {
public:
    using FailingStream::FailingStream;

    STDMETHODIMP get_Handle(OLE_HANDLE*) override { return m_answer; }
    STDMETHODIMP get_hPal(OLE_HANDLE*) override { return m_answer; }
    STDMETHODIMP get_Type(SHORT*) override { return m_answer; }
    STDMETHODIMP get_Width(OLE_XSIZE_HIMETRIC*) override { return m_answer; }
    STDMETHODIMP get_Height(OLE_YSIZE_HIMETRIC*) override { return m_answer; }
    STDMETHODIMP Render(HDC, LONG, LONG, LONG, LONG, OLE_XPOS_HIMETRIC, OLE_YPOS_HIMETRIC, OLE_XSIZE_HIMETRIC,
                        OLE_YSIZE_HIMETRIC, LPCRECT) override
    {
        return m_answer;
    }
    STDMETHODIMP set_hPal(OLE_HANDLE) override { return m_answer; }
    STDMETHODIMP get_CurDC(HDC*) override { return m_answer; }
    STDMETHODIMP SelectPicture(HDC, HDC*, OLE_HANDLE*) override { return m_answer; }
    STDMETHODIMP get_KeepOriginalFormat(WINBOOL*) override { return m_answer; }
    STDMETHODIMP put_KeepOriginalFormat(WINBOOL) override { return m_answer; }
    STDMETHODIMP PictureChanged() override { return m_answer; }
    STDMETHODIMP SaveAsFile(LPSTREAM, WINBOOL, LONG*) override { return m_answer; }
    STDMETHODIMP get_Attributes(DWORD*) override { return m_answer; }
};

class PlainObject final : public kit::Counterpart<IUnknown> {};

} // namespace

ComPtr<IUnknown> failingFont(HRESULT answer) { return kit::make<FailingFont>(answer)->unknown(); }

ComPtr<IUnknown> failingPicture(HRESULT answer) { return kit::make<FailingPicture>(answer)->unknown(); }

ComPtr<IUnknown> plainObject() { return kit::make<PlainObject>()->unknown(); }

} // namespace quillet::hostile
