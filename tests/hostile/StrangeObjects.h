// Fonts, pictures and objects that do not do what their interfaces promise.
#pragma once

#include "base/ComPtr.h"

#include <windows.h>

#include <unknwn.h>

namespace quillet::hostile {

/// A font whose every call answers that: S_OK without anything in the out-parameters, or a failure.
ComPtr<IUnknown> failingFont(HRESULT answer);
/// A picture of the same kind; it has no dispatch interface.
ComPtr<IUnknown> failingPicture(HRESULT answer);
/// An object with no interface but its own identity.
ComPtr<IUnknown> plainObject();

} // namespace quillet::hostile
