// The interface by which property browsers ask for headings; the cross compiler's headers lack it.
#pragma once

#include "base/Compiler.h"

#include <windows.h>

#include <unknwn.h>

namespace quillet {

using PROPCAT = int;

struct ICategorizeProperties : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID id, PROPCAT* category) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCategoryName(PROPCAT category, LCID locale, BSTR* name) = 0;
};

/// {4D07FC10-F931-11CE-B001-00AA006884E5}
inline constexpr IID kCategorizeProperties = {
    0x4D07FC10, 0xF931, 0x11CE, {0xB0, 0x01, 0x00, 0xAA, 0x00, 0x68, 0x84, 0xE5}};

} // namespace quillet
