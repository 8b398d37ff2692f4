// Arguments of impossible sizes, and such that refer to nothing, where the system follows every reference
// without looking.
#include "HostileTest.h"
#include "Values.h"
#include "kit/ByName.h"
#include "kit/Canvas.h"
#include "kit/Hosted.h"

#include <oleidl.h>

namespace quillet::hostile {
namespace {

constexpr LONG kLeast = static_cast<LONG>(0x80000000);
constexpr LONG kMost = 0x7FFFFFFF;

class HostileDrawing : public HostileControlTest {
protected:
    ComPtr<IUnknown> control = library().create(kind().classId);

    HRESULT drawIn(HDC dc, RECTL const& bounds)
    {
        return kit::ask(control.get(), &IViewObject::Draw, DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                        dc, &bounds, nullptr, nullptr, 0);
    }
};
QV_ALL_CONTROLS(HostileDrawing);

TEST_P(HostileDrawing, ofAShownControlInRectanglesBeyondAllMeasureIsRefusedOrDone)
{
    kit::FakeForm form;
    kit::Hosted shown(library(), kind().classId, form, {0, 0, 60, 20});
    shown.start();
    kit::Canvas canvas(20, 20);
    constexpr LONG kEdges[] = {0, 1, -50, 1300, 33000, -0x07FFFFFF, 0x07FFFFFF, 0x08000000, kMost, kLeast};
    for (LONG const left : kEdges)
        for (LONG const top : kEdges)
            for (LONG const right : kEdges)
                for (LONG const bottom : kEdges) {
                    RECTL const bounds{left, top, right, bottom};
                    shown.ask(&IViewObject::Draw, DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                              canvas.dc(), &bounds, nullptr, nullptr, 0);
                }
}

TEST_P(HostileDrawing, inRectanglesBeyondAllMeasureIsRefusedOrDone)
{
    kit::Canvas canvas(20, 20);
    // Lengths whose products and differences are no number, or 0.
    constexpr LONG kEdges[] = {0,          1,          -50,        60,    0x8000, 0x10000,
                               0x07FFFFFF, 0x08000000, 0x40000000, kMost, kLeast};
    for (LONG const left : {LONG{0}, LONG{60}, kMost, kLeast})
        for (LONG const right : kEdges)
            for (LONG const bottom : kEdges) {
                Journal::step(std::to_string(left) + " to " + std::to_string(right) + " x " +
                              std::to_string(bottom));
                drawIn(canvas.dc(), {left, 0, right, bottom});
            }
    EXPECT_EQ(drawIn(canvas.dc(), {0, 0, 20, 20}), S_OK);
}

TEST_P(HostileDrawing, atAnExtentBeyondAllMeasureIsRefusedOrDone)
{
    auto const object = query<IOleObject>(control.get());
    kit::Canvas canvas(20, 20);
    for (SIZEL extent : {SIZEL{kMost, kMost}, SIZEL{kMost, 1}, SIZEL{kLeast, kLeast}, SIZEL{-1, kMost},
                         SIZEL{1'734'000, 1'734'000}, SIZEL{0, 0}}) {
        EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
        drawIn(canvas.dc(), {0, 0, 20, 20});
        SIZEL kept{};
        EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, &kept), S_OK);
        EXPECT_EQ(kept.cx, extent.cx);
        EXPECT_EQ(kept.cy, extent.cy);
    }
    EXPECT_EQ(drawIn(canvas.dc(), {0, 0, 20, 20}), S_OK);
}

class HostileReference : public HostileControlTest {
protected:
    ComPtr<IDispatch> own = query<IDispatch>(library().create(kind().classId).get());
};
QV_ALL_CONTROLS(HostileReference);

TEST_P(HostileReference, toNothingIsRefusedByEveryProperty)
{
    VARIANT inside{};
    inside.vt = VT_I4 | VT_BYREF;
    for (wchar_t const* const name : {L"Caption", L"BackColor", L"Enabled", L"BorderWidth", L"Font", L"Value",
                                      L"CaptionIndent", L"MousePointer", L"Image"}) {
        if (kit::idOf(*own.get(), name) == DISPID_UNKNOWN)
            continue;
        for (VARTYPE const type : {VT_I2, VT_I4, VT_BSTR, VT_BOOL, VT_VARIANT, VT_DISPATCH, VT_UNKNOWN})
            EXPECT_TRUE(FAILED(kit::putByName(*own.get(), name, referring(type, nullptr)).result))
                << kit::idOf(*own.get(), name) << ' ' << type;
        EXPECT_TRUE(FAILED(kit::putByName(*own.get(), name, referring(VT_VARIANT, &inside)).result));
    }
}

TEST_P(HostileReference, toSomethingIsFollowed)
{
    long colour = 0x123456;
    EXPECT_EQ(kit::putByName(*own.get(), L"BackColor", referring(VT_I4, &colour)).result, S_OK);
    EXPECT_EQ(kit::getByName(*own.get(), L"BackColor").value.toLong(), colour);
}

TEST_P(HostileReference, ofACallWithoutItsArgumentsIsRefused)
{
    DISPPARAMS none{nullptr, nullptr, 2, 0};
    DISPPARAMS unnamed{nullptr, nullptr, 0, 1};
    for (DISPPARAMS* const arguments : {&none, &unnamed})
        for (WORD const how :
             std::initializer_list<WORD>{DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT})
            EXPECT_EQ(own->Invoke(kit::idOf(*own.get(), L"Caption"), IID_NULL, LOCALE_USER_DEFAULT, how,
                                  arguments, nullptr, nullptr, nullptr),
                      E_INVALIDARG);
}

} // namespace
} // namespace quillet::hostile
