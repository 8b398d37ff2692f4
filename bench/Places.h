// Where a form's buttons stand.
#pragma once

#include <windows.h>

namespace quillet::bench {

/// Places that fill a form row by row, all of them within it: the more there are, the smaller.
struct Places {
    static constexpr SIZE kForm{1240, 960};
    static constexpr int kOrigin = 20; ///< of the form on the screen, both ways

    SIZE size;

    static constexpr Places of(int count)
    {
        for (SIZE const size : {SIZE{75, 23}, SIZE{49, 23}})
            if (count <= (kForm.cx / size.cx) * (kForm.cy / size.cy))
                return {size};
        return {{20, 11}};
    }
    constexpr RECT at(int index) const
    {
        int const columns = kForm.cx / size.cx;
        LONG const left = index % columns * size.cx;
        LONG const top = index / columns * size.cy;
        return {left, top, left + size.cx, top + size.cy};
    }
};

} // namespace quillet::bench
