// IViewObjectEx: the control's picture in any device context.
#pragma once

#include "base/ComPtr.h"
#include "surface/faces/Face.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet {

class View final : public Face<IViewObjectEx> {
public:
    using Face::Face;
    using Continue = WINBOOL(CALLBACK*)(ULONG_PTR);

    // IViewObject
    STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC target, HDC dc,
                      LPCRECTL bounds, LPCRECTL windowBounds, Continue proceed, ULONG_PTR argument) override;
    STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC target,
                             LOGPALETTE** palette) override;
    STDMETHODIMP Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* key) override;
    STDMETHODIMP Unfreeze(DWORD key) override;
    STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
    STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
    // IViewObject2
    STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, LPSIZEL extent) override;
    // IViewObjectEx
    STDMETHODIMP GetRect(DWORD aspect, LPRECTL rect) override;
    STDMETHODIMP GetViewStatus(DWORD* status) override;
    STDMETHODIMP QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG hint, DWORD* result) override;
    STDMETHODIMP QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rect, LONG hint, DWORD* result) override;
    STDMETHODIMP GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, HDC target,
                                  DVEXTENTINFO* info, LPSIZEL extent) override;

    /// The control's picture, stretched into a rectangle of a DC (its logical coordinates).
    void drawInto(HDC dc, RECT const& bounds);
    /// Tells the sink that the look changed.
    void notifyChanged() noexcept;
    void disconnect() noexcept { m_sink.reset(); }

private:
    SIZE naturalSize(RECT const& bounds);

    ComPtr<IAdviseSink> m_sink;
    DWORD m_aspects = 0;
    DWORD m_flags = 0;
};

} // namespace quillet
