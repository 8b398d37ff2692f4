// A flat option button or check box in a form of ours, with its events kept by name.
#include "Box.h"

#include <algorithm>
#include <iterator>

namespace quillet::box {

namespace {

// In their published order, counted from 1.
constexpr char const* kEventNames[] = {"?",         "Click",     "KeyDown", "KeyPress", "KeyUp",
                                       "MouseDown", "MouseMove", "MouseUp", "Resize"};

} // namespace

Kind const kOption = {"Option", kQvFlatOptionClass, kQvFlatOptionEvents, L"Option1"};
Kind const kCheck = {"Check", kQvFlatCheckClass, kQvFlatCheckEvents, L"Check1"};

std::string nameOfEvent(DISPID event)
{
    bool const known = event > 0 && event < static_cast<DISPID>(std::size(kEventNames));
    return known ? kEventNames[event] : "event " + std::to_string(event);
}

ComPtr<kit::FakeBag> newBag() { return kit::make<kit::FakeBag>(); }

Box::Box(Kind const& kind, kit::Library const& library, kit::FakeForm& form, RECT const& place,
         std::wstring const& name, Mode mode)
    : m_kind(kind), m_hosted(library, kind.classId, form, place, name),
      m_events(kit::make<kit::EventRecorder>(kind.eventsId))
{
    m_hosted.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(mode == Mode::Run));
    m_connection.emplace(m_hosted.object(), kind.eventsId, m_events->unknown());
    EXPECT_TRUE(m_connection->joined()) << "the control refuses its event sink";
}

IDispatch& Box::dispatch() const
{
    auto const found = as<IDispatch>();
    return *found.get(); // the control lives on by its host's reference
}

void Box::listen()
{
    m_inner = hwnd();
    kit::pumpPending();
    m_events->forget();
    m_hosted.form().record().forget();
}

void Box::start(IPropertyBag& bag)
{
    EXPECT_EQ(m_hosted.setSite(), S_OK);
    EXPECT_EQ(m_hosted.load(bag), S_OK);
    EXPECT_EQ(m_hosted.setExtent(), S_OK);
    EXPECT_EQ(m_hosted.activate(), S_OK);
    listen();
}

void Box::startNew()
{
    m_hosted.start();
    listen();
}

void Box::release()
{
    m_connection.reset();
    m_hosted.form().frame().forgetActiveObject();
    m_hosted.release();
}

void Box::remove()
{
    m_connection.reset();
    m_hosted.remove();
    m_hosted.form().frame().forgetActiveObject();
}

HWND Box::hwnd() const { return static_cast<HWND>(LongToHandle(get(L"hwnd").toLong())); }

long Box::value() const { return get(L"Value").toLong(); }

HRESULT Box::setValue(long value) { return put(L"Value", Variant::ofLong(value)); }

Variant Box::get(wchar_t const* name) const
{
    kit::Called const called = kit::getByName(dispatch(), name);
    EXPECT_EQ(called.result, S_OK) << kit::narrow(name);
    return called.value;
}

HRESULT Box::put(wchar_t const* name, Variant const& value)
{
    kit::Called const called = kit::putByName(dispatch(), name, value);
    return called.result == DISP_E_EXCEPTION ? called.code : called.result;
}

void Box::setColours(COLORREF fore, COLORREF hot)
{
    EXPECT_EQ(put(L"HotForeColor", Variant::ofLong(static_cast<long>(hot))), S_OK);
    EXPECT_EQ(put(L"ForeColor", Variant::ofLong(static_cast<long>(fore))), S_OK);
    kit::pumpPending();
}

Names Box::happened()
{
    Names names;
    for (DISPID const id : m_events->ids())
        names.push_back(nameOfEvent(id));
    m_events->forget();
    return names;
}

int Box::count(char const* event) const
{
    return static_cast<int>(std::ranges::count_if(
        m_events->events, [&](auto const& each) { return nameOfEvent(each.id) == event; }));
}

Names Box::during(std::function<void()> const& act, char const* last)
{
    kit::pumpPending();
    m_events->forget();
    act();
    EXPECT_TRUE(kit::pumpUntil([&] { return count(last) > 0; })) << last << " did not come";
    kit::pumpPending();
    Names names = happened();
    auto const bothMoves = [](std::string const& a, std::string const& b) {
        return a == "MouseMove" && b == "MouseMove";
    };
    names.erase(std::ranges::unique(names, bothMoves).begin(), names.end());
    return names;
}

COLORREF Box::pixel(POINT at) const
{
    WindowDc const dc(m_inner);
    return ::GetPixel(dc.get(), at.x, at.y);
}

bool Box::captionHas(COLORREF color) const
{
    RECT client;
    ::GetClientRect(m_inner, &client);
    WindowDc const dc(m_inner);
    for (int y = 0; y < client.bottom; ++y)
        for (int x = 16; x < client.right; ++x)
            if (::GetPixel(dc.get(), x, y) == color)
                return true;
    return false;
}

void Box::moveTo(POINT at) { EXPECT_TRUE(kit::moveCursorTo(m_inner, at.x, at.y)); }

Names Box::press(kit::MouseButton which)
{
    return during([&] { kit::press(which); }, "MouseDown");
}

Names Box::letGo(kit::MouseButton which)
{
    return during([&] { kit::release(which); }, "MouseUp");
}

void Box::click()
{
    moveTo(kInside); // where it may be already: no move comes then
    press();
    letGo();
}

} // namespace quillet::box
