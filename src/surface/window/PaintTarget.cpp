// Where a paint goes, for one scope.
#include "surface/window/PaintTarget.h"

#include "surface/Surface.h"

namespace quillet {

PaintTarget::PaintTarget(Surface& surface)
    : m_window(surface.paintDc() ? nullptr : surface.hWnd()),
      m_dc(m_window ? ::GetDC(m_window) : surface.paintDc())
{}

PaintTarget::~PaintTarget()
{
    if (m_window)
        ::ReleaseDC(m_window, m_dc);
}

} // namespace quillet
