// Arithmetic that raises run-time error 6 "Overflow" instead of wrapping round: rounding.
#include "base/Checked.h"

#include <cmath>

namespace quillet {

long roundedToEven(double value)
{
    double const whole = std::floor(value);
    double const rest = value - whole;
    bool const up = rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2.0) != 0.0);
    double const result = up ? whole + 1.0 : whole;
    if (!(result >= -2147483648.0 && result <= 2147483647.0))
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<long>(result);
}

} // namespace quillet
