// The base of fonts that nobody should ask for much, or that fail whatever they are asked.
#pragma once

#include "kit/Counterpart.h"

#include <ocidl.h>

namespace quillet::kit {

/// A font of which every call answers the same.
template <class... Faces> class FontCounterpart : public Counterpart<IFont, Faces...> {
public:
#define QV_PAIR(name, type)                                                                                  \
    STDMETHODIMP get_##name(type*) override { return answered(); }                                           \
    STDMETHODIMP put_##name(type) override { return answered(); }
    QV_PAIR(Name, BSTR)
    QV_PAIR(Size, CY)
    QV_PAIR(Bold, BOOL)
    QV_PAIR(Italic, BOOL)
    QV_PAIR(Underline, BOOL)
    QV_PAIR(Strikethrough, BOOL)
    QV_PAIR(Weight, SHORT)
    QV_PAIR(Charset, SHORT)
#undef QV_PAIR
    STDMETHODIMP get_hFont(HFONT*) override { return answered(); }
    STDMETHODIMP Clone(IFont** copy) override
    {
        *copy = nullptr;
        return answered();
    }
    STDMETHODIMP IsEqual(IFont*) override { return answered(); }
    STDMETHODIMP SetRatio(LONG, LONG) override { return answered(); }
    STDMETHODIMP QueryTextMetrics(TEXTMETRICOLE*) override { return answered(); }
    STDMETHODIMP AddRefHfont(HFONT) override { return answered(); }
    STDMETHODIMP ReleaseHfont(HFONT) override { return answered(); }
    STDMETHODIMP SetHdc(HDC) override { return answered(); }

private:
    virtual HRESULT answered() = 0;
};

} // namespace quillet::kit
