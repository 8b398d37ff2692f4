// A qvFlatCommand on the screen, and what a person does with it.
#include "Button.h"

#include "kit/Input.h"
#include "kit/MessageWatch.h"
#include "kit/Pump.h"

#include <algorithm>
#include <iterator>

namespace quillet::input {

namespace {

constexpr COLORREF kNormalFace = RGB(16, 160, 32);
constexpr COLORREF kHotFace = RGB(224, 208, 16);
constexpr COLORREF kPressedFace = RGB(208, 16, 48);
constexpr COLORREF kCaption = RGB(0, 0, 112);
constexpr COLORREF kDisabledCaption = RGB(112, 0, 112);
constexpr POINT kFaceAt{110, 32}; // right of the caption and inside the focus frame

bool shows(HDC dc, SIZE size, COLORREF color)
{
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            if (::GetPixel(dc, x, y) == color)
                return true;
    return false;
}

} // namespace

ComPtr<kit::FakeBag> looksBag()
{
    auto bag = kit::make<kit::FakeBag>();
    auto const put = [&](wchar_t const* name, COLORREF color) {
        bag->put(name, Variant::ofLong(static_cast<long>(color)));
    };
    put(L"BackColor", kNormalFace);
    put(L"HotBackColor", kHotFace);
    put(L"PressedBackColor", kPressedFace);
    put(L"ForeColor", kCaption);
    put(L"HotForeColor", kCaption);
    put(L"PressedForeColor", kCaption);
    put(L"DisabledForeColor", kDisabledCaption);
    bag->put(L"Caption", Variant::ofString(L"MMM"));
    return bag;
}

std::string lookOf(HWND window)
{
    RECT client;
    if (!::GetClientRect(window, &client))
        return "no window";
    WindowDc const dc(window);
    switch (COLORREF const face = ::GetPixel(dc.get(), kFaceAt.x, kFaceAt.y)) {
    case kHotFace:
        return "hot";
    case kPressedFace:
        return "pressed";
    case kNormalFace:
        return shows(dc.get(), {kFaceAt.x, client.bottom}, kDisabledCaption) ? "disabled" : "normal";
    default:
        return "face " + std::to_string(face);
    }
}

void Button::adopt(IUnknown* object)
{
    m_dual = query<_qvFlatCommand>(object);
    join(object, kQvFlatCommandEvents);
}

void Button::rememberWindow() { as<IOleWindow>()->GetWindow(&m_window); }

void Button::release()
{
    abandon();
    m_dual.reset();
}

FormButton::FormButton(kit::Library const& library, kit::FakeForm& form, RECT const& place,
                       std::wstring const& name)
    : m_hosted(library, kQvFlatCommandClass, form, place, name)
{
    adopt(m_hosted.object());
}

void FormButton::load(IPropertyBag& bag)
{
    EXPECT_EQ(m_hosted.setSite(), S_OK);
    EXPECT_EQ(m_hosted.load(bag), S_OK);
}

void FormButton::start(IPropertyBag& bag)
{
    load(bag);
    show();
}

void FormButton::startNew()
{
    EXPECT_EQ(m_hosted.setSite(), S_OK);
    EXPECT_EQ(m_hosted.initNew(), S_OK);
    show();
}

void FormButton::show()
{
    EXPECT_EQ(m_hosted.setExtent(), S_OK);
    EXPECT_EQ(m_hosted.activate(), S_OK);
    rememberWindow();
    kit::pumpPending();
    events().forget();
}

void FormButton::release()
{
    m_hosted.form().frame().forgetActiveObject();
    Button::release();
    m_hosted.release();
}

void FormButton::remove()
{
    Button::release();
    m_hosted.remove();
    m_hosted.form().frame().forgetActiveObject();
}

AtlButton::AtlButton(kit::Library const& library, kit::FakeForm& form) : m_host(form.window(), kPlace)
{
    auto const object = library.create(kQvFlatCommandClass);
    adopt(object.get());
    EXPECT_EQ(as<IPersistPropertyBag>()->Load(looksBag().get(), nullptr), S_OK);
    EXPECT_EQ(m_host.attach(object.get()), S_OK);
    rememberWindow();
    kit::pumpPending();
    events().forget();
}

void AtlButton::remove()
{
    m_host.destroy();
    Button::release();
}

std::string nameOf(HostKind kind) { return kind == HostKind::Form ? "Form" : "AtlAxWin"; }

std::unique_ptr<Button> newButton(HostKind kind, kit::Library const& library, kit::FakeForm& form)
{
    if (kind == HostKind::AtlAxWin)
        return std::make_unique<AtlButton>(library, form);
    auto button = std::make_unique<FormButton>(library, form);
    button->start();
    return button;
}

void EachHostTest::SetUp()
{
    ControlTest::SetUp();
    owner = newButton(GetParam(), library(), form);
    ASSERT_TRUE(kit::focus(button().window()));
    ASSERT_EQ(button().look(), "normal");
    settle(button());
}

void EachHostTest::TearDown()
{
    owner.reset();
    EXPECT_TRUE(kit::moveCursorAway());
    EXPECT_EQ(::GetCapture(), nullptr);
}

Names moveTo(Button& button, POINT to, char const* last)
{
    return button.during([&] { EXPECT_TRUE(kit::moveCursorTo(button.window(), to.x, to.y)); }, last);
}

Names enter(Button& button) { return moveTo(button, kInside); }

Names moveInside(Button& button, POINT to) { return moveTo(button, to); }

Names leave(Button& button) { return moveTo(button, kBeside); }

Names dragOff(Button& button) { return leave(button); }

Names dragBack(Button& button) { return enter(button); }

Names pressDown(Button& button, kit::MouseButton which)
{
    return button.during([&] { kit::press(which); }, "MouseDown");
}

Names enterAndPress(Button& button, kit::MouseButton which)
{
    enter(button);
    return pressDown(button, which);
}

void settle(Button& button)
{
    kit::pumpPending();
    button.events().forget();
}

Names letUp(Button& button, kit::MouseButton which)
{
    return button.during([&] { kit::release(which); }, "MouseUp");
}

bool actUntilHandled(UINT message, std::function<void()> const& act)
{
    bool seen = false;
    kit::MessageWatch const watch(kit::Passing::Posted,
                                  [&](MSG const& passing) { seen = seen || passing.message == message; });
    act();
    bool const came = kit::pumpUntil([&] { return seen; });
    kit::pumpPending();
    return came;
}

Names typed(Button& button, BYTE virtualKey)
{
    settle(button);
    EXPECT_TRUE(actUntilHandled(WM_KEYUP, [&] { kit::typeKey(virtualKey); }));
    return button.happened();
}

HeldKey::HeldKey(BYTE virtualKey) : m_key(virtualKey) { send(0); }

HeldKey::~HeldKey() { send(KEYEVENTF_KEYUP); }

void HeldKey::send(DWORD flags) const
{
    ::keybd_event(m_key, static_cast<BYTE>(::MapVirtualKeyW(m_key, MAPVK_VK_TO_VSC)), flags, 0);
}

void HoveredTest::SetUp()
{
    ControlTest::SetUp();
    button.start();
    ASSERT_TRUE(kit::focus(button.window()));
    enter(button);
}

void FormTest::TearDown()
{
    button.events().action = nullptr;
    ::ReleaseCapture();
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
    EXPECT_EQ(::GetCapture(), nullptr);
}

} // namespace quillet::input
