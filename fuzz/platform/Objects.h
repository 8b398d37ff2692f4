// The objects that stand in for the system's, counted.
#pragma once

#include "platform/MemoryStream.h"

#include <ocidl.h>
#include <olectl.h>

#include <string>
#include <vector>

namespace quillet::fuzz {

/// A font by its description, without a handle. It keeps the bytes it was loaded from and writes them again.
class FontObject final : public Counted<IFont, IPersistStream> {
public:
    FontObject() noexcept { ++s_living; }
    explicit FontObject(FONTDESC const& description);

    static int living() noexcept { return s_living; }

    HRESULT STDMETHODCALLTYPE get_Name(BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_Size(CY* size) override { return answer(size, m_size); }
    HRESULT STDMETHODCALLTYPE get_Bold(BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Italic(BOOL* italic) override { return answer(italic, m_italic); }
    HRESULT STDMETHODCALLTYPE get_Underline(BOOL* under) override { return answer(under, m_underline); }
    HRESULT STDMETHODCALLTYPE get_Strikethrough(BOOL* strike) override { return answer(strike, m_strike); }
    HRESULT STDMETHODCALLTYPE get_Weight(SHORT* weight) override { return answer(weight, m_weight); }
    HRESULT STDMETHODCALLTYPE get_Charset(SHORT* charset) override { return answer(charset, m_charset); }
    HRESULT STDMETHODCALLTYPE get_hFont(HFONT* font) override { return answer(font, HFONT()); }
    HRESULT STDMETHODCALLTYPE IsEqual(IFont* other) override;
    // Nobody changes a font here.
    HRESULT STDMETHODCALLTYPE put_Name(BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Size(CY) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Bold(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Italic(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Underline(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Strikethrough(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Weight(SHORT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Charset(SHORT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IFont** copy) override;
    HRESULT STDMETHODCALLTYPE SetRatio(LONG, LONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryTextMetrics(TEXTMETRICW*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddRefHfont(HFONT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ReleaseHfont(HFONT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetHdc(HDC) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override { return loadBytes(*stream, m_bytes); }
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL) override { return saveBytes(*stream, m_bytes); }
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }

private:
    FontObject(FontObject const& other);
    ~FontObject() override { --s_living; }
    IUnknown* inheritedInterface(REFIID iid) noexcept override;
    template <class T> static HRESULT answer(T* out, T value) noexcept
    {
        *out = value;
        return S_OK;
    }
    bool operator==(FontObject const& other) const noexcept;

    static int s_living;
    std::wstring m_name = L"System";
    CY m_size{};
    SHORT m_weight = 400;
    SHORT m_charset = 0;
    BOOL m_italic = FALSE;
    BOOL m_underline = FALSE;
    BOOL m_strike = FALSE;
    std::vector<BYTE> m_bytes;
};

/// A picture that keeps the bytes it was loaded from and writes them again; or an object that is nothing.
class PlainObject final : public Counted<IPersistStream> {
public:
    enum class Kind { Picture, Other };

    explicit PlainObject(Kind kind) noexcept : m_kind(kind) { ++s_living; }

    std::vector<BYTE> const& bytes() const noexcept { return m_bytes; }
    static int living() noexcept { return s_living; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override { return loadBytes(*stream, m_bytes); }
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL) override { return saveBytes(*stream, m_bytes); }
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }

private:
    ~PlainObject() override { --s_living; }
    /// By identifier alone: whoever asks for a picture here only keeps it and lets go of it.
    IUnknown* inheritedInterface(REFIID iid) noexcept override;

    static int s_living;
    Kind m_kind;
    std::vector<BYTE> m_bytes;
};

/// How many objects there are. None may be left when an input is done with.
inline int livingObjects() noexcept { return FontObject::living() + PlainObject::living(); }

} // namespace quillet::fuzz
