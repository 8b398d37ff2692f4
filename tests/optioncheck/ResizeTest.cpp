// When a container hears that the control's size is another one.
#include "Box.h"

namespace quillet::box {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr RECT kLarger = {20, 30, 200, 70};
constexpr RECT kElsewhere = {40, 90, 160, 110}; // as large as kPlace

class Resize : public EachBoxTest {
protected:
    Box box{kind(), library(), form};

    /// Site and loading, and what they raised.
    void load()
    {
        EXPECT_EQ(box.hosted().setSite(), S_OK);
        EXPECT_EQ(box.hosted().load(*newBag().get()), S_OK);
        EXPECT_EQ(box.hosted().setExtent(), S_OK);
        box.happened();
    }
    Names activate()
    {
        EXPECT_EQ(box.hosted().activate(), S_OK);
        return box.happened();
    }
    Names place(RECT const& at)
    {
        EXPECT_EQ(box.as<IOleInPlaceObject>()->SetObjectRects(&at, nullptr), S_OK);
        return box.happened();
    }
    void leave() { EXPECT_EQ(box.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK); }
    void close() { EXPECT_EQ(box.as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK); }
};

TEST_P(Resize, isRaisedAtTheFirstSize)
{
    load();
    RECT inner = {};
    box.events().action = [&](auto const&) { ::GetClientRect(box.hwnd(), &inner); };
    EXPECT_THAT(activate(), ElementsAre("Resize"));
    box.events().action = nullptr;
    EXPECT_EQ(inner.right, kPlace.right - kPlace.left) << "when Resize is raised";
    EXPECT_EQ(inner.bottom, kPlace.bottom - kPlace.top);
}

TEST_P(Resize, isRaisedAtTheFirstSizeOfANewControl)
{
    EXPECT_EQ(box.hosted().setSite(), S_OK);
    EXPECT_EQ(box.hosted().initNew(), S_OK);
    box.happened();
    EXPECT_THAT(activate(), ElementsAre("Resize"));
}

TEST_P(Resize, isRaisedAtTheFirstSizeWhoeverAskedForTheWindowBefore)
{
    load();
    EXPECT_TRUE(::IsWindow(box.hwnd()));
    EXPECT_THAT(box.happened(), IsEmpty()) << "nobody gave it a size";
    EXPECT_THAT(activate(), ElementsAre("Resize"));
}

TEST_P(Resize, isRaisedAtTheFirstSizeWhateverWasToldBeforeActivation)
{
    load();
    EXPECT_THAT(place(kPlace), IsEmpty());
    EXPECT_TRUE(::IsWindow(box.hwnd()));
    EXPECT_THAT(box.happened(), IsEmpty());
    EXPECT_THAT(activate(), ElementsAre("Resize"));
}

TEST_P(Resize, isRaisedByAnActivationWithAnotherSizeAlone)
{
    load();
    activate();
    leave();
    EXPECT_THAT(activate(), IsEmpty());
    leave();
    box.hosted().site().position = kLarger;
    EXPECT_THAT(activate(), ElementsAre("Resize"));
    leave();
    EXPECT_THAT(place(kPlace), IsEmpty());
    box.hosted().site().position = kPlace;
    EXPECT_THAT(activate(), ElementsAre("Resize"));
}

TEST_P(Resize, isRaisedByAnActivationAfterCloseWithAnotherSizeAlone)
{
    load();
    activate();
    close();
    EXPECT_THAT(activate(), IsEmpty());
    close();
    box.hosted().site().position = kLarger;
    EXPECT_THAT(activate(), ElementsAre("Resize"));
    close();
    EXPECT_TRUE(::IsWindow(box.hwnd()));
    EXPECT_THAT(activate(), IsEmpty()) << "asked for in between, the window has the last size";
    RECT inner = {};
    ::GetClientRect(box.hwnd(), &inner);
    EXPECT_EQ(inner.right, kLarger.right - kLarger.left);
}

TEST_P(Resize, isRaisedOnceForEachChange)
{
    load();
    activate();
    EXPECT_THAT(place(kLarger), ElementsAre("Resize"));
    EXPECT_THAT(place(kLarger), IsEmpty());
    EXPECT_THAT(place(kPlace), ElementsAre("Resize"));
    EXPECT_THAT(place(kElsewhere), IsEmpty()) << "a move is none";
    EXPECT_THAT(place({20, 30, 20, 30}), ElementsAre("Resize"));
    EXPECT_THAT(place(kPlace), ElementsAre("Resize"));
}

TEST_P(Resize, whoseSinkClosesTheControlEndsTheActivation)
{
    load();
    box.events().action = [&](auto const&) { close(); };
    box.hosted().activate();
    box.events().action = nullptr;
    EXPECT_THAT(box.happened(), ElementsAre("Resize"));
    EXPECT_EQ(form.record().count("Site.OnInPlaceActivate"), form.record().count("Site.OnInPlaceDeactivate"));
    EXPECT_EQ(::GetWindow(form.window(), GW_CHILD), nullptr);
}

QV_EACH_BOX(Resize);

} // namespace
} // namespace quillet::box
