// The frame that in-place active controls tell of their activation.
#include "gallery/host/InPlaceFrame.h"

#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "gallery/host/Form.h"

namespace quillet::gallery {

HRESULT STDMETHODCALLTYPE InPlaceFrame::GetWindow(HWND* out)
{
    return comCall([&] {
        if (!m_form)
            throw RunTimeError(E_UNEXPECTED);
        deref(out) = m_form->window();
    });
}

} // namespace quillet::gallery
