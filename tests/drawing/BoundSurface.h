// A surface bound to a picture in memory, as a control binds it to its own DC.
#pragma once

#include "base/RunTimeError.h"
#include "drawing/OffScreenDC.h"
#include "kit/Canvas.h"
#include "kit/Errors.h"

#include <string>

namespace quillet {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kGrey = RGB(128, 128, 128);

/// A surface of a size, white all over, in front of a grey target. Colours: . white, R red, B blue, # black,
/// g the target's grey.
struct BoundSurface {
    BoundSurface(int width, int height) : target(width, height, kGrey)
    {
        surface.Initialize(target.dc(), width, height);
        surface.FillRect(0, 0, width, height, kWhite);
    }

    /// What the surface shows, after a copy of all of it.
    std::string picture()
    {
        surface.BlastToScreen();
        return targetPicture();
    }
    std::string targetPicture() const
    {
        return target.picture({{'.', kWhite}, {'R', kRed}, {'B', kBlue}, {'#', kBlack}, {'g', kGrey}});
    }

    kit::Canvas target;
    OffScreenDC surface;
};

/// The HRESULT that body throws; S_OK when it throws nothing.
template <class Body> HRESULT thrownBy(Body&& body)
{
    try {
        body();
        return S_OK;
    } catch (RunTimeError const& error) {
        return error.result();
    }
}

constexpr long kMax = 2147483647;
constexpr long kMin = -2147483647 - 1;

} // namespace quillet
