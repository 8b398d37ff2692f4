// A running flat command button whose looks differ in colour and whose events are kept by name.
#include "Button.h"

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

// In their published order, counted from 1.
constexpr char const* kEventNames[] = {"?",        "MouseEnter", "MouseExit", "Paint",  "Click",
                                       "DblClick", "MouseDown",  "MouseMove", "MouseUp"};

std::string nameOf(DISPID event)
{
    bool const known = event > 0 && event < static_cast<DISPID>(std::size(kEventNames));
    return known ? kEventNames[event] : "event " + std::to_string(event);
}

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

Button::Button() : m_events(kit::make<kit::EventRecorder>(kQvFlatCommandEvents)) {}

void Button::adopt(IUnknown* object)
{
    m_dual = query<_qvFlatCommand>(object);
    ComPtr<IConnectionPoint> point;
    as<IConnectionPointContainer>()->FindConnectionPoint(kQvFlatCommandEvents, point.put());
    point->Advise(m_events->unknown(), &m_cookie);
    EXPECT_NE(m_cookie, 0U) << "the button refuses its event sink";
}

void Button::rememberWindow() { as<IOleWindow>()->GetWindow(&m_window); }

Names Button::happened()
{
    Names names;
    for (DISPID const id : m_events->ids())
        names.push_back(nameOf(id));
    m_events->forget();
    auto const bothMoves = [](std::string const& a, std::string const& b) {
        return a == "MouseMove" && b == "MouseMove";
    };
    names.erase(std::ranges::unique(names, bothMoves).begin(), names.end());
    return names;
}

int Button::count(char const* event) const
{
    return static_cast<int>(
        std::ranges::count_if(m_events->events, [&](auto const& each) { return nameOf(each.id) == event; }));
}

Names Button::during(std::function<void()> const& act, char const* last)
{
    kit::pumpPending();
    m_events->forget();
    act();
    EXPECT_TRUE(kit::pumpUntil([&] { return count(last) > 0; })) << last << " did not come";
    kit::pumpPending();
    return happened();
}

std::string Button::lastEvent() const
{
    return m_events->events.empty() ? std::string() : nameOf(m_events->events.back().id);
}

void Button::disconnect()
{
    ComPtr<IConnectionPoint> point;
    if (auto const points = as<IConnectionPointContainer>())
        points->FindConnectionPoint(kQvFlatCommandEvents, point.put());
    if (!point || !m_cookie)
        return;
    EXPECT_EQ(point->Unadvise(std::exchange(m_cookie, 0)), S_OK);
}

void Button::release() { m_dual.reset(); }

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

} // namespace quillet::input
