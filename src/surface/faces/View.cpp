// IViewObjectEx: the control's picture in any device context, metafiles and printers included.
#include "surface/faces/View.h"

#include "base/Handles.h"
#include "base/RunTimeError.h"
#include "surface/Surface.h"

namespace quillet {

namespace {

/// The bytes of a picture of a size above 0. Throws for one so large that some systems' own arithmetic would
/// overflow.
DWORD bytesOf(SIZE size)
{
    constexpr LONG kMost = 0x7FFFFFFF;
    if (size.cx > kMost / 4 / size.cy)
        throw RunTimeError(E_OUTOFMEMORY);
    return static_cast<DWORD>(size.cx) * static_cast<DWORD>(size.cy) * 4;
}

/// A bitmap whose bits can be played into any DC, with a memory DC that draws on it.
class PictureDc {
public:
    explicit PictureDc(SIZE size) : m_dc(::CreateCompatibleDC(nullptr))
    {
        m_info.bmiHeader.biSize = sizeof(m_info.bmiHeader);
        m_info.bmiHeader.biWidth = size.cx;
        m_info.bmiHeader.biHeight = size.cy;
        m_info.bmiHeader.biPlanes = 1;
        m_info.bmiHeader.biBitCount = 32;
        // A metafile copies so many bytes of the picture, and nothing for 0.
        m_info.bmiHeader.biSizeImage = bytesOf(size);
        m_bitmap.reset(::CreateDIBSection(m_dc.get(), &m_info, DIB_RGB_COLORS, &m_bits, nullptr, 0));
        if (!m_dc || !m_bitmap)
            throw RunTimeError(E_OUTOFMEMORY);
        m_previous = ::SelectObject(m_dc.get(), m_bitmap.get());
    }
    ~PictureDc() { ::SelectObject(m_dc.get(), m_previous); }
    PictureDc(PictureDc const&) = delete;
    PictureDc& operator=(PictureDc const&) = delete;

    HDC dc() const noexcept { return m_dc.get(); }
    void play(HDC target, RECT const& bounds) const
    {
        ::GdiFlush(); // the bits are read directly
        ::SetStretchBltMode(target, COLORONCOLOR);
        ::StretchDIBits(target, bounds.left, bounds.top, bounds.right - bounds.left,
                        bounds.bottom - bounds.top, 0, 0, m_info.bmiHeader.biWidth, m_info.bmiHeader.biHeight,
                        m_bits, &m_info, DIB_RGB_COLORS, SRCCOPY);
    }

private:
    BITMAPINFO m_info = {};
    void* m_bits = nullptr;
    UniqueBitmap m_bitmap; // released after the DC, which still has it selected if a constructor throws
    UniqueMemoryDc m_dc;
    HGDIOBJ m_previous = nullptr;
};

/// GDI knows coordinates of 27 bits; some systems do not survive larger ones.
void requireCoordinates(RECT const& bounds)
{
    constexpr LONG kMost = 0x7FFFFFF;
    for (LONG const edge : {bounds.left, bounds.top, bounds.right, bounds.bottom})
        if (edge < -kMost || edge > kMost)
            throw RunTimeError(E_INVALIDARG);
}

} // namespace

HRESULT View::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds, LPCRECTL,
                   Continue, ULONG_PTR)
{
    return m_surface.call([&] {
        requireContent(aspect);
        RECTL const& given = deref(bounds);
        if (!dc)
            throw RunTimeError(E_INVALIDARG);
        drawInto(dc, {given.left, given.top, given.right, given.bottom});
    });
}

HRESULT View::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** palette)
{
    return comCall([&] {
        deref(palette) = nullptr;
        return S_FALSE;
    });
}

HRESULT View::Freeze(DWORD, LONG, void*, DWORD*) { return E_NOTIMPL; }

HRESULT View::Unfreeze(DWORD) { return E_NOTIMPL; }

HRESULT View::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink)
{
    return m_surface.call([&] {
        if (aspects & ~static_cast<DWORD>(DVASPECT_CONTENT))
            throw RunTimeError(DV_E_DVASPECT);
        m_aspects = aspects;
        m_flags = flags;
        m_sink = sink;
        if (sink && (flags & ADVF_PRIMEFIRST))
            notifyChanged();
    });
}

HRESULT View::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink)
{
    return m_surface.call([&] {
        if (aspects)
            *aspects = m_aspects;
        if (flags)
            *flags = m_flags;
        if (sink)
            *sink = m_sink.copy();
    });
}

HRESULT View::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL extent)
{
    return m_surface.oleObject().GetExtent(aspect, extent);
}

HRESULT View::GetRect(DWORD aspect, LPRECTL rect)
{
    return comCall([&] {
        deref(rect);
        requireContent(aspect);
        SIZEL const extent = m_surface.oleObject().extent();
        *rect = {0, 0, extent.cx, extent.cy};
    });
}

HRESULT View::GetViewStatus(DWORD* status)
{
    return comCall([&] { deref(status) = VIEWSTATUS_OPAQUE | VIEWSTATUS_SOLIDBKGND; });
}

HRESULT View::QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG, DWORD* result)
{
    return comCall([&] {
        deref(result);
        requireContent(aspect);
        *result = ::PtInRect(&deref(bounds), point) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
    });
}

HRESULT View::QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rect, LONG, DWORD* result)
{
    return comCall([&] {
        deref(result);
        requireContent(aspect);
        RECT common;
        *result = ::IntersectRect(&common, &deref(bounds), &deref(rect)) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
    });
}

HRESULT View::GetNaturalExtent(DWORD, LONG, DVTARGETDEVICE*, HDC, DVEXTENTINFO*, LPSIZEL)
{
    return E_NOTIMPL;
}

SIZE View::naturalSize(RECT const& bounds)
{
    if (SIZE const live = m_surface.window().clientSize(); !isEmpty(live))
        return live;
    SIZEL const extent = m_surface.oleObject().extent();
    if (SIZE const natural = pixelsOfHimetric(extent.cx, extent.cy); !isEmpty(natural))
        return natural;
    return {::labs(bounds.right - bounds.left), ::labs(bounds.bottom - bounds.top)};
}

void View::drawInto(HDC dc, RECT const& bounds)
{
    requireCoordinates(bounds);
    // At its natural size, then stretched: on a printer the caption keeps its share of the button.
    SIZE const size = naturalSize(bounds);
    if (isEmpty(size))
        return;
    PictureDc const picture(size);
    m_surface.paintInto(picture.dc(), size);
    picture.play(dc, bounds);
}

void View::notifyChanged() noexcept
{
    auto const sink = m_sink;
    if (!sink || !(m_aspects & DVASPECT_CONTENT))
        return;
    if (m_flags & ADVF_ONLYONCE)
        m_sink.reset();
    sink->OnViewChange(DVASPECT_CONTENT, -1);
}

} // namespace quillet
