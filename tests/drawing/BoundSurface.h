// A surface bound to a picture in memory, as a control binds it to its own DC.
#pragma once

#include "drawing/GdiCalls.h"
#include "drawing/OffScreenDC.h"
#include "kit/Canvas.h"
#include "kit/Errors.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

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

    BoundSurface(int width, int height, COLORREF back, COLORREF text) : BoundSurface(width, height)
    {
        surface.BackColor(back);
        surface.TextColor(text);
    }

    /// The pixels in which the target differs from what is expected, after a copy of all of the surface.
    std::string differencesFrom(kit::Canvas const& expected)
    {
        surface.BlastToScreen();
        return differences(expected, target);
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

using Calls = std::vector<std::string>;

/// A target whose GDI calls, and those of the surfaces bound to it, are noted.
class NotedTarget : public testing::Test {
protected:
    NotedTarget() { m_gdi.name(m_target.dc(), "target"); }

    void initialize(OffScreenDC& surface, long width = 7, long height = 5)
    {
        surface.Initialize(m_target.dc(), width, height);
    }
    void expectCalls(Calls const& calls) { EXPECT_EQ(m_record->take(), calls); }

    kit::Canvas m_target{7, 5, kGrey};
    kit::SharedRecord m_record = std::make_shared<kit::Record>();
    GdiCalls m_gdi{m_record};
};

/// A surface to be bound to it; what that takes is forgotten.
class NotedSurface : public NotedTarget {
protected:
    void begin(long width = 7, long height = 5)
    {
        initialize(m_surface, width, height);
        m_record->forget();
    }
    HDC dc() const { return static_cast<HDC>(m_gdi.handle("dc1")); }

    OffScreenDC m_surface;
};

constexpr long kMax = 2147483647;
constexpr long kMin = -2147483647 - 1;

} // namespace quillet
