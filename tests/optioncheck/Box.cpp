// A flat option button or check box in a form of ours, with its events kept by name.
#include "Box.h"

#include <algorithm>
#include <iterator>

namespace quillet::box {

Kind const kOption = {"Option", kQvFlatOptionClass, kQvFlatOptionEvents, L"Option1"};
Kind const kCheck = {"Check", kQvFlatCheckClass, kQvFlatCheckEvents, L"Check1"};

ComPtr<kit::FakeBag> newBag(Saved const& values)
{
    auto bag = kit::make<kit::FakeBag>();
    for (auto const& [name, value] : values)
        bag->put(name, value);
    return bag;
}

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

Variant Box::get(wchar_t const* name) const
{
    kit::Called const called = kit::getByName(dispatch(), name);
    EXPECT_EQ(called.result, S_OK) << kit::narrow(name);
    return called.value;
}

HRESULT Box::put(wchar_t const* name, Variant const& value)
{
    return kit::putByName(dispatch(), name, value).error();
}

void Box::setColours(COLORREF fore, COLORREF hot)
{
    EXPECT_EQ(put(L"HotForeColor", hot), S_OK);
    EXPECT_EQ(put(L"ForeColor", fore), S_OK);
    kit::pumpPending();
}

COLORREF Box::pixel(POINT at) const
{
    WindowDc const dc(m_inner);
    return ::GetPixel(dc.get(), at.x, at.y);
}

bool Box::captionHas(COLORREF color) const
{
    kit::Canvas shown(m_inner);
    shown.fill(0, 0, 16, shown.height(), ~color & 0xFFFFFF); // the glyph
    return shown.count(color) > 0;
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

Names Box::pressAndLetGo(kit::MouseButton which)
{
    Names order = press(which);
    Names const released = letGo(which);
    order.insert(order.end(), released.begin(), released.end());
    std::erase(order, "MouseMove");
    return order;
}

void Box::click()
{
    moveTo(kInside); // where it may be already: no move comes then
    press();
    letGo();
}

PostedCall::PostedCall(std::function<void()> body)
    : m_body(std::move(body)),
      m_window(::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr))
{
    ::SetWindowLongPtrW(m_window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&m_body));
    ::SetWindowLongPtrW(m_window.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
}

LRESULT CALLBACK PostedCall::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_APP)
        (*reinterpret_cast<std::function<void()>*>(::GetWindowLongPtrW(window, GWLP_USERDATA)))();
    return ::DefWindowProcW(window, message, wParam, lParam);
}

} // namespace quillet::box
