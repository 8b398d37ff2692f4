// Every control on a desktop whose colours change while it is shown, and in a form that is laid out from
// right to left.
#include "SurfaceTest.h"
#include "kit/ByName.h"
#include "kit/Painter.h"
#include "kit/Pump.h"
#include "kit/SystemColours.h"

namespace quillet::hosting {
namespace {

struct Schemed {
    char const* name;
    CLSID classId;
};
void PrintTo(Schemed const& kind, std::ostream* out) { *out << kind.name; }

constexpr COLORREF kOddFace = RGB(3, 201, 99);
constexpr COLORREF kOddText = RGB(151, 3, 77);

/// The desktop's colours of faces and of texts on them.
struct OddScheme : kit::SystemColours {
    OddScheme() : SystemColours({COLOR_BTNFACE, COLOR_BTNTEXT}, {kOddFace, kOddText}) {}
};

class Schemes : public kit::ControlTest, public testing::WithParamInterface<Schemed> {
protected:
    static constexpr int kWidth = kPlace.right - kPlace.left;
    static constexpr int kHeight = kPlace.bottom - kPlace.top;
    kit::FakeForm form;
    kit::Canvas picture{kWidth, kHeight};

    static void put(kit::Hosted& control, wchar_t const* name, Variant const& value)
    {
        auto const dispatch = control.as<IDispatch>();
        ASSERT_EQ(kit::putByName(*dispatch.get(), name, value).result, S_OK) << name;
    }
    /// Text on a face, both of the desktop's colours.
    void start(kit::Hosted& control, wchar_t const* caption = L"E")
    {
        control.start();
        put(control, L"Caption", Variant::ofString(caption));
        put(control, L"BackColor", Variant::ofLong(static_cast<long>(0x8000000F)));
        put(control, L"ForeColor", Variant::ofLong(static_cast<long>(0x80000012)));
        kit::pumpPending();
        look(control);
    }
    void look(kit::Hosted& control) { kit::readWindow(control.window(), picture); }
};

TEST_P(Schemes, aChangeOfTheDesktopsColoursShowsAtOnce)
{
    kit::Hosted control(library(), GetParam().classId, form, kPlace);
    start(control);
    ASSERT_EQ(picture.count(kOddFace), 0);
    ASSERT_EQ(picture.count(kOddText), 0);
    {
        OddScheme const scheme;
        ::RedrawWindow(form.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN); // as desktops do
        kit::pumpPending();
        look(control);
        EXPECT_GT(picture.count(kOddFace), kWidth * kHeight / 2);
        EXPECT_GT(picture.count(kOddText), 0);
    }
    ::RedrawWindow(form.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    kit::pumpPending();
    look(control);
    EXPECT_EQ(picture.count(kOddFace), 0) << "nothing of the other scheme stays";
    EXPECT_EQ(picture.count(kOddText), 0);
}

// Controls have no layout from right to left: what is drawn in them must not be mirrored by the form's.
TEST_P(Schemes, inAFormFromRightToLeftThePictureIsTheSame)
{
    kit::Canvas plain(kWidth, kHeight);
    {
        kit::Hosted control(library(), GetParam().classId, form, kPlace);
        start(control, L"Left");
        kit::readWindow(control.window(), plain);
    }
    ::SetWindowLongW(form.window(), GWL_EXSTYLE,
                     ::GetWindowLongW(form.window(), GWL_EXSTYLE) | WS_EX_LAYOUTRTL);
    kit::Hosted control(library(), GetParam().classId, form, kPlace);
    start(control, L"Left");
    EXPECT_EQ(differences(plain, picture), "");
}

INSTANTIATE_TEST_SUITE_P(Of, Schemes,
                         testing::Values(Schemed{"qvFlatCommand", kQvFlatCommandClass},
                                         Schemed{"qvImageCommand", kQvImageCommandClass},
                                         Schemed{"FlatToolButton", kFlatToolButtonClass},
                                         Schemed{"qvFlatOption", kQvFlatOptionClass},
                                         Schemed{"qvFlatCheck", kQvFlatCheckClass}),
                         [](auto const& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace quillet::hosting
