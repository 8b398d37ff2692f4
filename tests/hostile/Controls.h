// The five controls, as the room's tables name them.
#pragma once

#include "typelib/Guids.h"

#include <windows.h>

namespace quillet::hostile {

struct ControlKind {
    char const* name;
    CLSID classId;
    IID interfaceId;
    IID eventsId;
};

inline constexpr ControlKind kControls[] = {
    {"qvFlatCommand", kQvFlatCommandClass, kQvFlatCommandInterface, kQvFlatCommandEvents},
    {"qvImageCommand", kQvImageCommandClass, kQvImageCommandInterface, kQvImageCommandEvents},
    {"FlatToolButton", kFlatToolButtonClass, kFlatToolButtonInterface, kFlatToolButtonEvents},
    {"qvFlatOption", kQvFlatOptionClass, kQvFlatOptionInterface, kQvFlatOptionEvents},
    {"qvFlatCheck", kQvFlatCheckClass, kQvFlatCheckInterface, kQvFlatCheckEvents},
};

/// Where a control stands in its form, and a point in it.
inline constexpr RECT kPlace{20, 30, 120, 60};
inline constexpr POINT kInside{30, 12};

} // namespace quillet::hostile
