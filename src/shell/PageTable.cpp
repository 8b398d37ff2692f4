// The property pages that the component makes: one row each.
#include "shell/PageTable.h"

#include "browse/PageIds.h"
#include "pages/Create.h"

namespace quillet {

namespace {

constexpr PageRow kPages[] = {
    {kGeneralPageClass, &createGeneralPage, L"Quillet general property page"},
    {kColoursPageClass, &createColoursPage, L"Quillet colors property page"},
    {kFontsPageClass, &createFontsPage, L"Quillet fonts property page"},
    {kPicturesPageClass, &createPicturesPage, L"Quillet pictures property page"},
};

} // namespace

std::span<PageRow const> pageTable() noexcept { return kPages; }

} // namespace quillet
