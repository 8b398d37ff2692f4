// Makes property pages for the class factory.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet {

HRESULT createGeneralPage(IUnknown* outer, REFIID iid, void** object) noexcept;
HRESULT createColoursPage(IUnknown* outer, REFIID iid, void** object) noexcept;
HRESULT createFontsPage(IUnknown* outer, REFIID iid, void** object) noexcept;
HRESULT createPicturesPage(IUnknown* outer, REFIID iid, void** object) noexcept;

} // namespace quillet
