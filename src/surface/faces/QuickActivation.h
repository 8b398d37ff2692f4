// IQuickActivate: one call for what a container otherwise sets up in a dozen.
#pragma once

#include "surface/faces/Face.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet {

class QuickActivation final : public Face<IQuickActivate> {
public:
    using Face::Face;

    STDMETHODIMP QuickActivate(QACONTAINER* container, QACONTROL* control) override;
    STDMETHODIMP SetContentExtent(LPSIZEL extent) override;
    STDMETHODIMP GetContentExtent(LPSIZEL extent) override;
};

} // namespace quillet
