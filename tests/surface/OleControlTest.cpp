// IOleControl: accelerators, ambient properties, frozen events.
#include "SurfaceTest.h"
#include "kit/Fonts.h"

namespace quillet::hosting {
namespace {

class OleControlFace : public SurfaceTest {
protected:
    ComPtr<IOleControl> face = as<IOleControl>();
    ComPtr<kit::EventRecorder> events = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    kit::Connection connection{control.object(), kQvFlatCommandEvents, events->unknown()};

    void SetUp() override
    {
        SurfaceTest::SetUp();
        ASSERT_TRUE(face);
        control.start();
        events->forget();
    }
    int paintsOfARepaint()
    {
        events->forget();
        repaint();
        return events->count(kPaint);
    }
};

TEST_F(OleControlFace, refusesNowhereToPutItsAccelerators)
{
    EXPECT_TRUE(FAILED(face->GetControlInfo(nullptr)));
}

TEST_F(OleControlFace, handsOutTheSameAcceleratorsToWhoeverAsks)
{
    EXPECT_EQ(button()->put_Caption(Bstr(L"&Same").get()), S_OK);
    CONTROLINFO first{};
    CONTROLINFO second{};
    first.cb = second.cb = sizeof first;
    EXPECT_EQ(face->GetControlInfo(&first), S_OK);
    EXPECT_EQ(face->GetControlInfo(&second), S_OK);
    EXPECT_NE(first.hAccel, nullptr);
    EXPECT_EQ(first.cAccel, second.cAccel);
    EXPECT_EQ(first.hAccel, second.hAccel) << "the control owns the table, nobody frees a copy";
}

TEST_F(OleControlFace, frozenTwiceIsThawedOnce)
{
    EXPECT_EQ(face->FreezeEvents(TRUE), S_OK);
    EXPECT_EQ(face->FreezeEvents(TRUE), S_OK);
    EXPECT_EQ(face->FreezeEvents(FALSE), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, thawedWithoutHavingBeenFrozenStillFreezes)
{
    EXPECT_EQ(face->FreezeEvents(FALSE), S_OK);
    EXPECT_EQ(face->FreezeEvents(FALSE), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 1);
    EXPECT_EQ(face->FreezeEvents(TRUE), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 0);
    EXPECT_EQ(face->FreezeEvents(FALSE), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, hearsOfAmbientPropertiesOfAnyKind)
{
    for (DISPID const id :
         {DISPID_UNKNOWN, DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FONT, DISPID_AMBIENT_UIDEAD,
          DISPID_AMBIENT_DISPLAYASDEFAULT, DISPID_AMBIENT_USERMODE, 12345})
        EXPECT_EQ(face->OnAmbientPropertyChange(id), S_OK) << id;
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, aChangeOfUserModeSwitchesItsEventsOffAndOn)
{
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    EXPECT_EQ(face->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 0);
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(true));
    EXPECT_EQ(face->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, runsWhereTheContainerDoesNotSayWhetherItDoes)
{
    auto const check = [this](char const* how) {
        ASSERT_EQ(control.setSite(), S_OK);
        face->OnAmbientPropertyChange(DISPID_UNKNOWN);
        EXPECT_EQ(paintsOfARepaint(), 1) << how;
    };
    control.site().removeAmbient(DISPID_AMBIENT_USERMODE);
    check("missing");
    record().answer("Ambient(-709)", E_FAIL);
    check("failing");
    record().answerAsUsual("Ambient(-709)");
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofUnknown(form.frame().unknown()));
    check("of the wrong type");
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant());
    check("empty");
    control.site().hide(IID_IDispatch);
    check("no ambient properties at all");
}

TEST_F(OleControlFace, takesUserModeAsAnyNumber)
{
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofLong(0));
    face->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
    EXPECT_EQ(paintsOfARepaint(), 0);
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofLong(1));
    face->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
    EXPECT_EQ(paintsOfARepaint(), 1);
}

} // namespace
} // namespace quillet::hosting
