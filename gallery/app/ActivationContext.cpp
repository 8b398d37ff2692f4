// A manifest beside a component, by which its classes are created without registration.
#include "gallery/app/ActivationContext.h"

namespace quillet::gallery {

ActivationContext::ActivationContext(std::wstring const& manifest) noexcept
{
    ACTCTXW description = {};
    description.cbSize = sizeof(description);
    description.lpSource = manifest.c_str();
    m_context = ::CreateActCtxW(&description);
}

ActivationContext::~ActivationContext()
{
    if (*this)
        ::ReleaseActCtx(m_context);
}

ActivationContext::Scope::Scope(ActivationContext const* context) noexcept
    : m_active(context && *context && ::ActivateActCtx(context->m_context, &m_cookie))
{}

ActivationContext::Scope::~Scope()
{
    if (m_active)
        ::DeactivateActCtx(0, m_cookie);
}

} // namespace quillet::gallery
