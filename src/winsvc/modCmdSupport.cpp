// The default-button test of all button classes.
#include "winsvc/modCmdSupport.h"

#include "surface/Surface.h"

namespace quillet {

bool isDefault(Surface const& control) noexcept
{
    return orFallback(false, [&] { return control.container().extenderProperty(L"Default").toBool(); });
}

} // namespace quillet
