// The library's message boxes.
#include "surface/MessageBoxes.h"

#include "base/Version.h"

namespace quillet {

void showAboutBox(HWND owner) noexcept
{
    ::MessageBoxW(::GetAncestor(owner, GA_ROOT),
                  L"Quillet flat buttons\nVersion " QV_VERSION "\n\nMIT License", L"About Quillet",
                  MB_OK | MB_ICONINFORMATION);
}

void showExclamation(HWND owner, wchar_t const* text) noexcept
{
    ::MessageBoxW(::GetAncestor(owner, GA_ROOT), text, L"Quillet", MB_OK | MB_ICONEXCLAMATION);
}

} // namespace quillet
