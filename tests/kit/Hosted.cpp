// One control in a site, driven through the steps that a container takes.
#include "kit/Hosted.h"

#include "kit/Pump.h"

#include <gtest/gtest.h>

namespace quillet::kit {

Hosted::Hosted(Library const& library, REFCLSID classId, FakeForm& form, RECT const& position,
               std::wstring const& name)
    : m_form(form), m_site(make<FakeSite>(form, position, name)), m_object(library.create(classId))
{
    form.container().objects.push_back(m_object.get());
    m_site->extender().provide(L"Object",
                               [this](Variant const&) { return Variant::ofDispatch(as<IDispatch>().get()); });
}

HRESULT Hosted::setSite()
{
    m_site->inPlaceObject = as<IOleInPlaceObject>().get();
    return ask(&IOleObject::SetClientSite, m_site.get());
}

HRESULT Hosted::load(Bytes const& bytes) { return ask(&IPersistStreamInit::Load, streamOf(bytes).get()); }

Bytes Hosted::saved(BOOL clearDirty)
{
    auto const stream = streamOf();
    EXPECT_EQ(ask(&IPersistStreamInit::Save, stream.get(), clearDirty), S_OK);
    return bytesOf(*stream.get());
}

HRESULT Hosted::setExtent()
{
    RECT const& at = m_site->position;
    SIZEL extent = himetricOf({at.right - at.left, at.bottom - at.top});
    return ask(&IOleObject::SetExtent, DVASPECT_CONTENT, &extent);
}

HRESULT Hosted::doVerb(LONG verb, MSG* message)
{
    return ask(&IOleObject::DoVerb, verb, message, m_site.get(), 0, m_form.window(), &m_site->position);
}

void Hosted::start()
{
    setSite();
    initNew();
    setExtent();
    activate();
    pumpPending();
}

void Hosted::start(IPropertyBag& bag)
{
    setSite();
    load(bag);
    setExtent();
    activate();
    pumpPending();
}

void Hosted::draw(Canvas& on) const
{
    RECTL const bounds{0, 0, on.width(), on.height()};
    EXPECT_EQ(ask(&IViewObject::Draw, DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, on.dc(), &bounds,
                  nullptr, nullptr, 0),
              S_OK);
}

HWND Hosted::window() const
{
    HWND window = nullptr;
    ask(&IOleWindow::GetWindow, &window);
    return window;
}

SIZE Hosted::size() const
{
    RECT client{};
    ::GetClientRect(window(), &client);
    return {client.right, client.bottom};
}

void Hosted::place(RECT const& position)
{
    m_site->position = position;
    EXPECT_EQ(ask(&IOleInPlaceObject::SetObjectRects, &m_site->position, &m_site->clip), S_OK);
}

void Hosted::setUserMode(bool running)
{
    m_site->setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(running));
    EXPECT_EQ(ask(&IOleControl::OnAmbientPropertyChange, DISPID_AMBIENT_USERMODE), S_OK);
}

void Hosted::offerFont(IFont* font)
{
    m_site->setAmbient(DISPID_AMBIENT_FONT, Variant::ofDispatch(query<IDispatch>(font).get()));
}

void Hosted::remove()
{
    ask(&IOleInPlaceObject::InPlaceDeactivate);
    ask(&IOleObject::Close, OLECLOSE_NOSAVE);
    ask(&IOleObject::SetClientSite, nullptr);
    release();
}

void Hosted::release()
{
    std::erase(m_form.container().objects, m_object.get());
    m_site->dismantle();
    m_object.reset();
}

std::vector<AccessKey> accessKeys(IUnknown* control)
{
    CONTROLINFO info{};
    info.cb = sizeof info;
    info.dwFlags = 0xFFFF;
    EXPECT_EQ(query<IOleControl>(control)->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.dwFlags, 0U);
    std::vector<ACCEL> entries(info.cAccel);
    if (info.cAccel) {
        EXPECT_EQ(::CopyAcceleratorTableW(info.hAccel, entries.data(), info.cAccel), info.cAccel);
    }
    std::vector<AccessKey> keys;
    for (ACCEL const& entry : entries)
        keys.emplace_back(entry.fVirt, static_cast<wchar_t>(entry.key));
    return keys;
}

HRESULT pressAccessKey(IUnknown* control, wchar_t key)
{
    MSG message{};
    message.message = WM_SYSCHAR;
    message.wParam = key;
    return query<IOleControl>(control)->OnMnemonic(&message);
}

SIZEL himetricOf(SIZE pixels)
{
    constexpr int kHimetricPerInch = 2540;
    WindowDc const screen(nullptr);
    return {::MulDiv(pixels.cx, kHimetricPerInch, ::GetDeviceCaps(screen.get(), LOGPIXELSX)),
            ::MulDiv(pixels.cy, kHimetricPerInch, ::GetDeviceCaps(screen.get(), LOGPIXELSY))};
}

} // namespace quillet::kit
