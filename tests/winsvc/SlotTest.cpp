// The user-data slot of a subclassed window: the control object's own address, which programs copy.
#include "ServiceTest.h"
#include "kit/ByName.h"

namespace quillet::winsvc {
namespace {

struct Class {
    char const* name;
    CLSID classId;
    IID interfaceId;
};
constexpr Class kEachClass[] = {
    {"qvFlatCommand", kQvFlatCommandClass, kQvFlatCommandInterface},
    {"qvImageCommand", kQvImageCommandClass, kQvImageCommandInterface},
    {"FlatToolButton", kFlatToolButtonClass, kFlatToolButtonInterface},
    {"qvFlatOption", kQvFlatOptionClass, kQvFlatOptionInterface},
    {"qvFlatCheck", kQvFlatCheckClass, kQvFlatCheckInterface},
};

class Slot : public ServiceTest, public testing::WithParamInterface<Class> {};

/// What a program gets that copies the slot into an object variable.
ComPtr<IDispatch> objectIn(HWND window)
{
    return {reinterpret_cast<IDispatch*>(::GetWindowLongPtrA(window, GWLP_USERDATA))};
}

HWND windowOf(IDispatch& control)
{
    return static_cast<HWND>(LongToHandle(kit::getByName(control, L"hwnd").value.toLong()));
}

TEST_P(Slot, copiedIntoAnObjectVariableIsTheControl)
{
    onNewThread([] {
        kit::FakeForm form;
        kit::Hosted hosted(library(), GetParam().classId, form, {20, 30, 140, 70});
        hosted.start(*kit::make<kit::FakeBag>().get());
        auto const control = hosted.as<IDispatch>();
        ComPtr<IDispatch> const object = objectIn(windowOf(*control.get()));
        ASSERT_TRUE(object);
        EXPECT_EQ(query<IUnknown>(object.get()).get(), query<IUnknown>(hosted.object()).get());
        EXPECT_EQ(query<IUnknown>(object.get(), GetParam().interfaceId).get(),
                  static_cast<IUnknown*>(object.get()))
            << "its own interface, as variables of the control's type have it";
        kit::putByName(*object.get(), L"Caption", Variant::ofString(L"by the slot"));
        EXPECT_EQ(kit::getByName(*control.get(), L"Caption").value.toString().view(), L"by the slot");
    });
}

TEST_P(Slot, stillLeadsMessagesToTheControlAndNoLongerThanItLives)
{
    onNewThread([] {
        kit::FakeForm form;
        kit::Hosted hosted(library(), GetParam().classId, form, {20, 30, 140, 70});
        hosted.start(*kit::make<kit::FakeBag>().get());
        HWND const window = windowOf(*hosted.as<IDispatch>().get());
        ToolTipWatch const watch;
        ::SendMessageA(window, WM_RBUTTONUP, 0, 0);
        EXPECT_THAT(watch.relayed(), ElementsAre(WM_RBUTTONUP));
        hosted.remove();
        EXPECT_FALSE(::IsWindow(window));
    });
}

/// An object around a control that knows none of its interfaces.
class Shell final : public kit::Counterpart<IUnknown> {
public:
    ComPtr<IUnknown> inner;
};

TEST_P(Slot, leadsMessagesToAControlInsideAnObjectThatKnowsNothingOfIt)
{
    onNewThread([] {
        auto const shell = kit::make<Shell>();
        auto const factory = library().factory(GetParam().classId);
        ASSERT_EQ(factory->CreateInstance(shell->unknown(), IID_IUnknown,
                                          reinterpret_cast<void**>(shell->inner.put())),
                  S_OK);
        kit::FakeForm form;
        IUnknown* const control = shell->inner.get();
        ASSERT_EQ(query<IPersistPropertyBag>(control)->Load(kit::make<kit::FakeBag>().get(), nullptr), S_OK);
        HWND const window = windowOf(*query<IDispatch>(control).get());
        EXPECT_EQ(query<IUnknown>(objectIn(window).get()).get(), shell->unknown());
        ToolTipWatch const watch;
        ::SendMessageA(window, WM_RBUTTONUP, 0, 0);
        EXPECT_THAT(watch.relayed(), ElementsAre(WM_RBUTTONUP));
        EXPECT_NE(::SendMessageA(window, WM_GETDLGCODE, 0, 0), 0)
            << "the message goes on to the window's own";
    });
}

// Nothing of it is the control's any more, and there is nobody to pass the message on.
TEST_P(Slot, withAnotherObjectAnswersNothing)
{
    onNewThread([] {
        kit::FakeForm form;
        kit::Hosted hosted(library(), GetParam().classId, form, {20, 30, 140, 70});
        hosted.start(*kit::make<kit::FakeBag>().get());
        HWND const window = windowOf(*hosted.as<IDispatch>().get());
        LONG_PTR const own = ::GetWindowLongPtrA(window, GWLP_USERDATA);
        auto const other = kit::make<Shell>();
        for (LONG_PTR const foreign : {reinterpret_cast<LONG_PTR>(other->unknown()), LONG_PTR{0}}) {
            ::SetWindowLongPtrA(window, GWLP_USERDATA, foreign);
            EXPECT_EQ(::SendMessageA(window, WM_GETDLGCODE, 0, 0), 0);
        }
        ::SetWindowLongPtrA(window, GWLP_USERDATA, own);
        EXPECT_NE(::SendMessageA(window, WM_GETDLGCODE, 0, 0), 0);
    });
}

INSTANTIATE_TEST_SUITE_P(Of, Slot, testing::ValuesIn(kEachClass),
                         [](auto const& tested) { return std::string(tested.param.name); });

} // namespace
} // namespace quillet::winsvc
