// A flat option button or check box in a form of ours, with its events kept by name.
#include "Box.h"

#include <algorithm>
#include <iterator>

namespace quillet::box {

Kind const kOption = {"Option", kQvFlatOptionClass, kQvFlatOptionEvents, L"Option1"};
Kind const kCheck = {"Check", kQvFlatCheckClass, kQvFlatCheckEvents, L"Check1"};

ComPtr<kit::FakeBag> newBag() { return kit::make<kit::FakeBag>(); }

Box::Box(Kind const& kind, kit::Library const& library, kit::FakeForm& form, RECT const& place,
         std::wstring const& name, Mode mode)
    : Listener(kit::kOptionCheckEvents), m_hosted(library, kind.classId, form, place, name)
{
    m_hosted.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(mode == Mode::Run));
    join(m_hosted.object(), kind.eventsId);
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
    events().forget();
    changes().take();
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
    stopListening();
    m_hosted.form().frame().forgetActiveObject();
    m_hosted.release();
}

void Box::remove()
{
    stopListening();
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
    return called.error();
}

void Box::setColours(COLORREF fore, COLORREF hot)
{
    EXPECT_EQ(put(L"HotForeColor", Variant::ofLong(static_cast<long>(hot))), S_OK);
    EXPECT_EQ(put(L"ForeColor", Variant::ofLong(static_cast<long>(fore))), S_OK);
    kit::pumpPending();
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
