// The surface's font, and notice of changes made inside it: somebody makes it bold, the control repaints.
#include "surface/SurfaceFont.h"

#include "base/ComCall.h"
#include "base/Counted.h"
#include "base/RunTimeError.h"
#include "saving/StandardFont.h"
#include "surface/Surface.h"

#include <olectl.h>

namespace quillet {

/// Counted apart from the control, so that the font's connection does not keep the control alive.
class SurfaceFont::Listener final : public Counted<IPropertyNotifySink> {
public:
    explicit Listener(SurfaceFont& font) noexcept : m_font(&font) {}

    void leave() noexcept { m_font = nullptr; }

    STDMETHODIMP OnChanged(DISPID) override
    {
        return comCall([&] {
            if (m_font)
                m_font->changed();
        });
    }
    STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }

private:
    SurfaceFont* m_font;
};

SurfaceFont::SurfaceFont(Surface& surface) noexcept : m_surface(surface) {}

SurfaceFont::~SurfaceFont() { set(nullptr); }

void SurfaceFont::set(ComPtr<IFont> font) noexcept
{
    if (m_listener)
        m_listener->leave();
    if (m_point)
        m_point->Unadvise(m_cookie);
    m_point.reset();
    m_listener.reset();
    m_font = std::move(font);
    m_underlined.reset();
    if (!m_font)
        return;
    ignoringErrors([&] {
        m_listener = makeCounted<Listener>(*this);
        auto const points = m_font.as<IConnectionPointContainer>();
        if (!points || FAILED(points->FindConnectionPoint(IID_IPropertyNotifySink, m_point.put())))
            return;
        if (FAILED(m_point->Advise(m_listener.get(), &m_cookie)))
            m_point.reset();
    });
}

IFont* SurfaceFont::get()
{
    if (!m_font)
        set(systemFont());
    return m_font.get();
}

IFont* SurfaceFont::underlined()
{
    if (!m_underlined) {
        ComPtr<IFont> twin;
        check(get()->Clone(twin.put()));
        check(deref(twin.get()).put_Underline(TRUE));
        m_underlined = std::move(twin);
    }
    return m_underlined.get();
}

void SurfaceFont::changed()
{
    if (m_deaf > 0)
        return;
    m_underlined.reset();
    auto const alive = m_surface.keepAlive();
    m_surface.propertyChanged(DISPID_FONT, ViewChange::Yes);
    m_surface.onFontChanged();
}

} // namespace quillet
