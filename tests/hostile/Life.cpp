// One control's life in a container, from its making to its release, with somebody who misbehaves in it.
#include "Life.h"

#include "HostileTest.h"
#include "kit/ByName.h"
#include "kit/Canvas.h"
#include "kit/Fonts.h"
#include "kit/Memory.h"
#include "kit/Pump.h"

#include <oleacc.h>

#include <gtest/gtest.h>

namespace quillet::hostile {

namespace {

constexpr int kTimes = 3; // a deed that brings its own occasion back would never end

bool isOccasion(std::string const& call, std::string const& occasion)
{
    return call == occasion || call.starts_with(occasion + '(');
}

/// Tells the container's side of activation: each call that begins it has one that ends it.
void expectBalance(kit::Record const& record)
{
    EXPECT_EQ(record.count("Site.OnInPlaceActivate"), record.count("Site.OnInPlaceDeactivate"))
        << Journal::text();
    EXPECT_EQ(record.count("Site.OnUIActivate"), record.count("Site.OnUIDeactivate")) << Journal::text();
}

} // namespace

ComPtr<kit::FakeBag> filledBag()
{
    auto bag = kit::make<kit::FakeBag>();
    bag->put(L"Caption", Variant::ofString(L"&Loaded"));
    bag->put(L"BackColor", Variant::ofLong(0x00C0FFEE));
    bag->put(L"ForeColor", Variant::ofLong(0x00102030));
    bag->put(L"BorderWidth", Variant::ofShort(2));
    bag->put(L"Value", Variant::ofShort(1));
    return bag;
}

Life::Life(ControlKind const& kind)
    : control(HostileTest::library(), kind.classId, form, kPlace), m_kind(kind),
      m_events(kit::make<kit::EventRecorder>(kind.eventsId)), m_changes(kit::make<kit::ChangeRecorder>()),
      m_views(kit::make<kit::ViewRecorder>())
{
    form.record().whenNoted = [this](std::string const& call) { noted(call); };
    m_events->action = [this](auto const& event) { noted("Event(" + std::to_string(event.id) + ')'); };
    m_changes->action = [this](DISPID) { noted("Changed"); };
    m_views->action = [this](std::string const& call) {
        noted(call == "OnClose" ? "Closed" : call == "OnSave" ? "Saved" : "ViewChanged");
    };
}

Life::~Life() { end(); }

void Life::arm(std::string const& occasion, Deed const& deed, int letPass)
{
    m_letPass = letPass;
    m_occasion = occasion;
    m_deed = &deed;
}

void Life::noted(std::string const& call)
{
    if (heard)
        heard(call);
    if (!m_deed || m_doing || m_done >= kTimes || !isOccasion(call, m_occasion) || m_letPass-- > 0)
        return;
    Journal::step(call + ": " + m_deed->name);
    m_doing = true;
    ++m_done;
    m_deed->run(*this);
    m_doing = false;
}

void Life::live()
{
    constexpr struct {
        char const* name;
        void (Life::*run)();
    } kSteps[] = {{"begin", &Life::begin},
                  {"show", &Life::show},
                  {"mouse", &Life::useMouse},
                  {"keys", &Life::useKeys},
                  {"accessible object", &Life::useAccessibleObject},
                  {"draw", &Life::draw},
                  {"properties", &Life::putProperties},
                  {"ambients", &Life::changeAmbients},
                  {"hide and show", &Life::hideAndShow},
                  {"leave", &Life::leave},
                  {"save and load", &Life::saveAndLoad},
                  {"end", &Life::end}};
    for (auto const& step : kSteps) {
        Journal::step(step.name);
        watchWindows();
        (this->*step.run)();
    }
}

void Life::end()
{
    if (m_ended)
        return;
    m_ended = true;
    control.remove();
    cutSinks();
    if (m_otherSite)
        m_otherSite->dismantle();
    m_otherSite.reset();
    kit::pumpPending();
    form.frame().forgetActiveObject();
    form.record().whenNoted = nullptr;
    expectBalance(form.record());
    if (m_otherForm) {
        m_otherForm->frame().forgetActiveObject();
        m_otherForm->record().whenNoted = nullptr;
        expectBalance(m_otherForm->record());
        m_otherForm.reset();
    }
    m_deed = nullptr;
    forgetWatches();
}

void Life::begin()
{
    control.setSite();
    joinSinks();
    initOrLoad();
    control.setExtent();
}

void Life::joinSinks()
{
    cutSinks();
    m_connections.push_back(
        std::make_unique<kit::Connection>(control.object(), m_kind.eventsId, m_events->unknown()));
    m_connections.push_back(std::make_unique<kit::Connection>(control.object(), __uuidof(IPropertyNotifySink),
                                                              m_changes->unknown()));
    control.ask(&IViewObject::SetAdvise, DVASPECT_CONTENT, 0, m_views.get());
    DWORD cookie = 0;
    control.ask(&IOleObject::Advise, m_views.get(), &cookie);
}

void Life::cutSinks()
{
    m_connections.clear();
    control.ask(&IViewObject::SetAdvise, DVASPECT_CONTENT, 0, nullptr);
    for (DWORD cookie = 1; cookie < 4; ++cookie)
        control.ask(&IOleObject::Unadvise, cookie);
}

void Life::initOrLoad()
{
    control.initNew();
    control.load(*filledBag().get());
}

void Life::show()
{
    control.activate();
    watchWindows();
    if (HWND const window = inputWindow())
        ::PostMessageA(window, kPosted, 0, 0);
    kit::pumpPending();
    control.doVerb(OLEIVERB_UIACTIVATE);
    kit::pumpPending();
}

void Life::useKeys()
{
    for (WPARAM const key : {VK_SPACE, VK_RIGHT, VK_TAB}) {
        if (HWND const window = inputWindow()) {
            MSG message{window, WM_KEYDOWN, key, 0, 0, {}};
            control.ask(&IOleInPlaceActiveObject::TranslateAccelerator, &message);
        }
        ::SendMessageA(inputWindow(), WM_KEYDOWN, key, 1);
        ::SendMessageA(inputWindow(), WM_CHAR, key, 1);
        ::SendMessageA(inputWindow(), WM_KEYUP, key, 0xC0000001);
    }
    CONTROLINFO info{};
    info.cb = sizeof(info);
    control.ask(&IOleControl::GetControlInfo, &info);
    MSG mnemonic{inputWindow(), WM_SYSCHAR, L'l', 0, 0, {}};
    control.ask(&IOleControl::OnMnemonic, &mnemonic);
    kit::pumpPending();
}

void Life::useAccessibleObject()
{
    ComPtr<IAccessible> object;
    if (HWND const window = asksAccessibleObject ? inputWindow() : nullptr)
        ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                     reinterpret_cast<void**>(object.put()));
    if (!object)
        return;
    VARIANT const self = Variant::ofLong(CHILDID_SELF).get();
    Bstr text;
    Variant value;
    object->get_accName(self, text.put());
    object->get_accDescription(self, text.put());
    object->get_accState(self, value.put());
    object->accSelect(SELFLAG_TAKEFOCUS, self);
    object->accDoDefaultAction(self);
    ComPtr<IDispatch> parent;
    object->get_accParent(parent.put());
}

void Life::useMouse()
{
    LPARAM const at = MAKELPARAM(kInside.x, kInside.y);
    POINT screen = kInside;
    ::ClientToScreen(inputWindow(), &screen);
    ::SetCursorPos(screen.x, screen.y);
    for (UINT const message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP,
                               WM_RBUTTONDOWN, WM_RBUTTONUP})
        ::SendMessageA(inputWindow(), message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0, at);
    kit::pumpPending();
    ::SetCursorPos(1200, 1000);
    ::SendMessageA(inputWindow(), WM_MOUSEMOVE, 0, MAKELPARAM(-300, -300));
    kit::pumpPending();
}

void Life::draw()
{
    kit::Canvas canvas(60, 20);
    RECTL const bounds{0, 0, 60, 20};
    control.ask(&IViewObject::Draw, DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, canvas.dc(), &bounds,
                nullptr, nullptr, 0);
    SIZEL extent{};
    control.ask(&IOleObject::GetExtent, DVASPECT_CONTENT, &extent);
    if (HWND const window = inputWindow())
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void Life::putProperties()
{
    struct Row {
        wchar_t const* name;
        Variant value;
    };
    Row const rows[] = {
        {L"AutoSizeWidth", Variant::ofBool(true)},
        {L"Caption", Variant::ofString(L"&Changed")},
        {L"BackColor", Variant::ofLong(0x336699)},
        {L"Value", Variant::ofLong(0)},
        {L"Value", Variant::ofLong(1)},
        {L"CaptionIndent", Variant::ofShort(3)},
        {L"Enabled", Variant::ofBool(false)},
        {L"Enabled", Variant::ofBool(true)},
    };
    for (Row const& row : rows) {
        int const before = m_done;
        auto const own = as<IDispatch>();
        if (!own || FAILED(kit::putByName(*own.get(), row.name, row.value).result) || m_done != before)
            continue;
        auto const kept = kit::getByName(*own.get(), row.name);
        if (m_done == before) { // nobody changed it meanwhile
            EXPECT_EQ(kept.value.toString().view(), row.value.toString().view())
                << "an accepted property is lost: " << kit::narrow(row.name) << "\n"
                << Journal::text();
        }
    }
    if (auto const own = as<IDispatch>()) {
        kit::setByName(*own.get(), L"Font", kit::newFont(L"Tahoma", 10, true).get());
        kit::setByName(*own.get(), L"Image", kit::newIconPicture().get());
        kit::callByName(*own.get(), L"Refresh");
        kit::callByName(*own.get(), L"DrawButton");
        kit::invoke(*own.get(), DISPID_DOCLICK, DISPATCH_METHOD);
    }
}

void Life::changeAmbients()
{
    for (DISPID const id : {DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FONT, DISPID_AMBIENT_DISPLAYASDEFAULT,
                            DISPID_AMBIENT_USERMODE, DISPID_UNKNOWN})
        control.ask(&IOleControl::OnAmbientPropertyChange, id);
    kit::pumpPending();
}

void Life::saveAndLoad()
{
    auto const stream = kit::streamOf();
    control.ask(&IPersistStreamInit::Save, stream.get(), TRUE);
    control.save(*kit::make<kit::FakeBag>().get());
    LARGE_INTEGER const start{};
    stream->Seek(start, STREAM_SEEK_SET, nullptr);
    control.ask(&IPersistStreamInit::Load, stream.get());
}

void Life::resize(int width, int height)
{
    RECT const place{kPlace.left, kPlace.top, kPlace.left + width, kPlace.top + height};
    control.ask(&IOleInPlaceObject::SetObjectRects, &place, &place);
}

void Life::hideAndShow()
{
    control.doVerb(OLEIVERB_HIDE);
    resize(80, 40);
    control.doVerb(OLEIVERB_SHOW);
    kit::pumpPending();
}

void Life::leave()
{
    control.ask(&IOleInPlaceObject::UIDeactivate);
    control.ask(&IOleInPlaceObject::InPlaceDeactivate);
    control.activate();
    SIZEL extent = kit::himetricOf({90, 45});
    control.ask(&IOleObject::SetExtent, DVASPECT_CONTENT, &extent);
    control.ask(&IOleObject::Close, OLECLOSE_SAVEIFDIRTY);
    control.ask(&IOleObject::SetClientSite, nullptr);
}

HWND Life::ownWindow() const { return surfaceIn(form.window()); }

HWND Life::inputWindow() const
{
    HWND const own = ownWindow();
    HWND const inner = own ? ::GetWindow(own, GW_CHILD) : nullptr;
    return inner ? inner : own;
}

void Life::watchWindows()
{
    if (!m_occasion.starts_with("Before(") && !m_occasion.starts_with("After("))
        return;
    watchMessages(ownWindow(), *this);
    watchMessages(inputWindow(), *this);
}

HWND Life::otherForm()
{
    if (!m_otherForm)
        m_otherForm = std::make_unique<kit::FakeForm>();
    return m_otherForm->window();
}

kit::FakeSite& Life::otherSite()
{
    otherForm();
    if (!m_otherSite)
        m_otherSite = kit::make<kit::FakeSite>(*m_otherForm, kPlace, L"Moved");
    return *m_otherSite.get();
}

} // namespace quillet::hostile
