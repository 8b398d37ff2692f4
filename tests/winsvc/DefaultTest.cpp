// Whether a control is its container's default button.
#include "PlainControl.h"
#include "winsvc/modCmdSupport.h"

namespace quillet::winsvc {
namespace {

class DefaultButton : public RoomTest, protected Sited {
protected:
    DefaultButton() : Sited(true) {}
    bool answerFor(Variant value)
    {
        site->extender().offer(L"Default", std::move(value));
        return isDefault(*control);
    }
};

TEST_F(DefaultButton, isTheOneWhoseExtenderSaysSo)
{
    EXPECT_TRUE(answerFor(Variant::ofBool(true)));
    EXPECT_FALSE(answerFor(Variant::ofBool(false)));
}

TEST_F(DefaultButton, isSoWheneverTheValueConvertsToTrue)
{
    EXPECT_TRUE(answerFor(Variant::ofShort(1)));
    EXPECT_TRUE(answerFor(Variant::ofLong(-1)));
    EXPECT_TRUE(answerFor(Variant::ofString(L"True")));
    EXPECT_FALSE(answerFor(Variant::ofLong(0)));
    EXPECT_FALSE(answerFor(Variant::ofString(L"False")));
    EXPECT_FALSE(answerFor(Variant()));
}

TEST_F(DefaultButton, isNoneWhereTheValueIsNoBoolean)
{
    EXPECT_FALSE(answerFor(Variant::ofString(L"perhaps")));
    EXPECT_FALSE(answerFor(Variant::ofUnknown(form.frame().unknown())));
    EXPECT_FALSE(answerFor(Variant::ofDispatch(nullptr)));
}

TEST_F(DefaultButton, isNeverOneOfAContainerThatKnowsNoneAndThatIsNoError)
{
    site->extender().remove(L"Default");
    EXPECT_FALSE(isDefault(*control));
}

TEST_F(DefaultButton, isNoneWhereReadingItFails)
{
    answerFor(Variant::ofBool(true));
    site->extender().refuse(L"Default");
    EXPECT_FALSE(isDefault(*control));
}

TEST_F(DefaultButton, isNoneWithoutAnExtenderOrASite)
{
    ASSERT_TRUE(answerFor(Variant::ofBool(true)));
    form.record().answerNothing("Site.GetExtendedControl");
    EXPECT_FALSE(isDefault(*control));
    form.record().answerAsUsual("Site.GetExtendedControl");
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    EXPECT_FALSE(isDefault(*control));
    form.record().answerAsUsual("Site.GetExtendedControl");
    site->hide(__uuidof(IOleControlSite));
    control.as<IOleObject>()->SetClientSite(site.get());
    control.as<IOleObject>()->SetClientSite(nullptr);
    control.as<IOleObject>()->SetClientSite(site.get());
    EXPECT_FALSE(isDefault(*control));
    control.as<IOleObject>()->SetClientSite(nullptr);
    EXPECT_FALSE(isDefault(*control));
}

TEST_F(DefaultButton, whoseExtenderSaysTrueIsItEvenAtDesignTime)
{
    site->setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    EXPECT_TRUE(answerFor(Variant::ofBool(true)));
}

TEST_F(DefaultButton, isAskedForAnewEachTime)
{
    EXPECT_TRUE(answerFor(Variant::ofBool(true)));
    EXPECT_FALSE(answerFor(Variant::ofBool(false)));
    EXPECT_TRUE(answerFor(Variant::ofBool(true)));
    EXPECT_GE(form.record().count("Extender.Default"), 3);
}

} // namespace
} // namespace quillet::winsvc
