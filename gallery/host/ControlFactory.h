// Where a form gets its ActiveX controls from.
#pragma once

#include "base/ComPtr.h"

#include <oaidl.h>
#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

namespace quillet::gallery {

struct NewControl {
    ComPtr<IUnknown> object;     ///< empty when it could not be made
    ComPtr<ITypeInfo> classInfo; ///< the coclass in its type library; may be empty
    std::wstring failure;        ///< why there is no object
};

/// Makes a control by its names in the form file: library and class.
using ControlFactory = std::function<NewControl(std::wstring_view library, std::wstring_view className)>;

} // namespace quillet::gallery
