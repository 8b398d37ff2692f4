// The five controls, for what holds of each of them.
#pragma once

#include "typelib/Guids.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillet::kit {

struct ControlKind {
    char const* name;
    CLSID classId;
    IID interfaceId;
    IID eventsId;
};
inline void PrintTo(ControlKind const& kind, std::ostream* out) { *out << kind.name; }

inline constexpr ControlKind kControls[] = {
    {"qvFlatCommand", kQvFlatCommandClass, kQvFlatCommandInterface, kQvFlatCommandEvents},
    {"qvImageCommand", kQvImageCommandClass, kQvImageCommandInterface, kQvImageCommandEvents},
    {"FlatToolButton", kFlatToolButtonClass, kFlatToolButtonInterface, kFlatToolButtonEvents},
    {"qvFlatOption", kQvFlatOptionClass, kQvFlatOptionInterface, kQvFlatOptionEvents},
    {"qvFlatCheck", kQvFlatCheckClass, kQvFlatCheckInterface, kQvFlatCheckEvents},
};

} // namespace quillet::kit

/// A suite with a ControlKind as its parameter, for each of the five.
#define QV_EACH_CONTROL(prefix, Suite)                                                                       \
    INSTANTIATE_TEST_SUITE_P(prefix, Suite, testing::ValuesIn(quillet::kit::kControls),                      \
                             [](auto const& each) { return std::string(each.param.name); })
