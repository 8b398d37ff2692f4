// Fonts, pictures and objects that do not do what their interfaces promise.
#include "StrangeObjects.h"

#include "kit/Counterpart.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet::hostile {

namespace {

class FailingFont final : public kit::Counterpart<IFont, IFontDisp, IPersistStream> {
public:
    explicit FailingFont(HRESULT answer) : m_answer(answer) {}

    STDMETHODIMP get_Name(BSTR*) override { return m_answer; }
    STDMETHODIMP put_Name(BSTR) override { return m_answer; }
    STDMETHODIMP get_Size(CY*) override { return m_answer; }
    STDMETHODIMP put_Size(CY) override { return m_answer; }
    STDMETHODIMP get_Bold(WINBOOL*) override { return m_answer; }
    STDMETHODIMP put_Bold(WINBOOL) override { return m_answer; }
    STDMETHODIMP get_Italic(WINBOOL*) override { return m_answer; }
    STDMETHODIMP put_Italic(WINBOOL) override { return m_answer; }
    STDMETHODIMP get_Underline(WINBOOL*) override { return m_answer; }
    STDMETHODIMP put_Underline(WINBOOL) override { return m_answer; }
    STDMETHODIMP get_Strikethrough(WINBOOL*) override { return m_answer; }
    STDMETHODIMP put_Strikethrough(WINBOOL) override { return m_answer; }
    STDMETHODIMP get_Weight(SHORT*) override { return m_answer; }
    STDMETHODIMP put_Weight(SHORT) override { return m_answer; }
    STDMETHODIMP get_Charset(SHORT*) override { return m_answer; }
    STDMETHODIMP put_Charset(SHORT) override { return m_answer; }
    STDMETHODIMP get_hFont(HFONT*) override { return m_answer; }
    STDMETHODIMP Clone(IFont** copy) override
    {
        *copy = nullptr;
        return m_answer;
    }
    STDMETHODIMP IsEqual(IFont*) override { return m_answer; }
    STDMETHODIMP SetRatio(LONG, LONG) override { return m_answer; }
    STDMETHODIMP QueryTextMetrics(TEXTMETRICOLE*) override { return m_answer; }
    STDMETHODIMP AddRefHfont(HFONT) override { return m_answer; }
    STDMETHODIMP ReleaseHfont(HFONT) override { return m_answer; }
    STDMETHODIMP SetHdc(HDC) override { return m_answer; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return m_answer; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return m_answer;
    }
    STDMETHODIMP GetClassID(CLSID*) override { return m_answer; }
    STDMETHODIMP IsDirty() override { return m_answer; }
    STDMETHODIMP Load(IStream*) override { return m_answer; }
    STDMETHODIMP Save(IStream*, WINBOOL) override { return m_answer; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return m_answer; }

private:
    HRESULT m_answer;
};

class FailingPicture final : public kit::Counterpart<IPicture, IPersistStream> {
public:
    explicit FailingPicture(HRESULT answer) : m_answer(answer) {}

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
    STDMETHODIMP GetClassID(CLSID*) override { return m_answer; }
    STDMETHODIMP IsDirty() override { return m_answer; }
    STDMETHODIMP Load(IStream*) override { return m_answer; }
    STDMETHODIMP Save(IStream*, WINBOOL) override { return m_answer; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return m_answer; }

private:
    HRESULT m_answer;
};

class PlainObject final : public kit::Counterpart<IUnknown> {};

} // namespace

ComPtr<IUnknown> failingFont(HRESULT answer) { return kit::make<FailingFont>(answer)->unknown(); }

ComPtr<IUnknown> failingPicture(HRESULT answer) { return kit::make<FailingPicture>(answer)->unknown(); }

ComPtr<IUnknown> plainObject() { return kit::make<PlainObject>()->unknown(); }

} // namespace quillet::hostile
