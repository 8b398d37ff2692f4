// What the class factory and the registration need to know of the property pages.
#pragma once

#include "base/CreateFunction.h"

#include <windows.h>

namespace quillet {

/// Pages are created by frames alone, so they have no names in scripts and no place in toolboxes.
struct PageClass {
    CLSID classId;
    CreateFunction create;
    wchar_t const* description;
};

extern PageClass const kGeneralPage;
extern PageClass const kColoursPage;
extern PageClass const kFontsPage;
extern PageClass const kPicturesPage;

inline constexpr PageClass const* kPageClasses[] = {&kGeneralPage, &kColoursPage, &kFontsPage,
                                                    &kPicturesPage};

} // namespace quillet
