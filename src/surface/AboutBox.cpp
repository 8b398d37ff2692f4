// What every control's ShowAbout shows.
#include "surface/AboutBox.h"

namespace quillet {

void showAboutBox(HWND owner) noexcept
{
    ::MessageBoxW(::GetAncestor(owner, GA_ROOT), L"Quillet flat buttons\nVersion 1.03.0041\n\nMIT License",
                  L"About Quillet", MB_OK | MB_ICONINFORMATION);
}

} // namespace quillet
