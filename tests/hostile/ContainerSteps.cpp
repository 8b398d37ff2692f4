// The steps of the generator that containers take, in an order that none of them does.
#include "Values.h"
#include "World.h"
#include "kit/Canvas.h"
#include "kit/FakeBag.h"
#include "kit/Memory.h"

#include <olectl.h>

namespace quillet::hostile {

namespace {

constexpr DISPID kAmbients[] = {DISPID_AMBIENT_BACKCOLOR,
                                DISPID_AMBIENT_FONT,
                                DISPID_AMBIENT_FORECOLOR,
                                DISPID_AMBIENT_USERMODE,
                                DISPID_AMBIENT_UIDEAD,
                                DISPID_AMBIENT_DISPLAYASDEFAULT,
                                DISPID_UNKNOWN};

void setSite(World& world, Slot& slot)
{
    IOleClientSite* const sites[] = {&slot.control->site(), &slot.control->site(), nullptr,
                                     world.otherSite.get()};
    auto const own = slot.as<IOleObject>();
    if (!own)
        return;
    ComPtr<IOleClientSite> current;
    own->GetClientSite(current.put());
    IOleClientSite* const next = oneOf(world.random, sites);
    auto const set = [&] { own->SetClientSite(next); };
    if (next)
        world.begin(slot, set);
    else if (current)
        world.end(slot, World::Afterwards::Over, set);
    else
        set();
}

void doVerb(World& world, Slot& slot)
{
    constexpr LONG kVerbs[] = {0, -1, -2, -3, -4, -5, -5, -4, -6, 1, 7, -100, 0x7FFFFFFF};
    HWND const parents[] = {world.form.window(), world.form.window(), nullptr, world.otherForm.window(),
                            reinterpret_cast<HWND>(0x7FF0)};
    RECT const position = anyRectangle(world.random);
    MSG message{world.form.window(), WM_LBUTTONDOWN, MK_LBUTTON, 0, 0, {30, 40}};
    auto const own = slot.as<IOleObject>();
    if (!own)
        return;
    RECT const* const place = world.random() % 2 ? &position : nullptr;
    HWND const parent = oneOf(world.random, parents);
    MSG* const given = world.random() % 4 ? nullptr : &message;
    LONG const verb = oneOf(world.random, kVerbs);
    auto const run = [&] { own->DoVerb(verb, given, nullptr, 0, parent, place); };
    if (verb == OLEIVERB_HIDE)
        world.end(slot, World::Afterwards::Parked, run);
    else
        world.begin(slot, run);
}

void deactivate(World& world, Slot& slot)
{
    if (auto const own = slot.as<IOleInPlaceObject>())
        world.end(slot, World::Afterwards::Parked, [&] { own->InPlaceDeactivate(); });
}

void setRectangles(World& world, Slot& slot)
{
    RECT const position = anyRectangle(world.random);
    RECT const clip = anyRectangle(world.random);
    if (auto const own = slot.as<IOleInPlaceObject>())
        own->SetObjectRects(&position, world.random() % 3 ? &clip : nullptr);
}

void setExtent(World& world, Slot& slot)
{
    RECT const any = anyRectangle(world.random);
    SIZEL extent{any.right, any.bottom};
    if (auto const own = slot.as<IOleObject>())
        own->SetExtent(world.random() % 8 ? DVASPECT_CONTENT : DVASPECT_ICON, &extent);
}

void load(World& world, Slot& slot)
{
    // What another control saved, of whatever class.
    auto const stream = kit::streamOf();
    if (auto const other = world.slots[world.random() % world.slots.size()].as<IPersistStreamInit>())
        other->Save(stream.get(), world.random() % 2 != 0);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    slot.ask(&IPersistStreamInit::Load, stream.get());
}

void loadBag(World& world, Slot& slot)
{
    auto const values = strangeValues();
    auto const bag = kit::make<kit::FakeBag>();
    for (wchar_t const* const name : {L"Caption", L"Font", L"BackColor", L"Enabled", L"Value", L"Image"})
        if (world.random() % 3 == 0)
            bag->put(name, values[world.random() % values.size()].value);
    slot.control->load(*bag.get());
}

void saveEverywhere(World& world, Slot& slot)
{
    slot.control->save(*kit::make<kit::FakeBag>().get(), world.random() % 2 != 0);
    auto const storage = kit::newStorage();
    auto const own = slot.as<IPersistStorage>();
    if (!own)
        return;
    own->Save(storage.get(), FALSE);
    own->SaveCompleted(storage.get());
    own->HandsOffStorage();
    own->Load(storage.get());
}

void draw(World& world, Slot& slot)
{
    kit::Canvas canvas(30, 20);
    RECT const any = anyRectangle(world.random);
    RECTL const bounds{any.left, any.top, any.right, any.bottom};
    if (auto const own = slot.as<IViewObject>())
        own->Draw(world.random() % 8 ? DVASPECT_CONTENT : DVASPECT_THUMBNAIL, -1, nullptr, nullptr, nullptr,
                  world.random() % 8 ? canvas.dc() : nullptr, &bounds, nullptr, nullptr, 0);
    FORMATETC format{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
    STGMEDIUM medium{};
    if (auto const own = slot.as<IDataObject>();
        own && world.random() % 4 == 0 && own->GetData(&format, &medium) == S_OK)
        ::ReleaseStgMedium(&medium);
}

void advise(World& world, Slot& slot)
{
    slot.connections.push_back(std::make_unique<kit::Connection>(slot.control->object(), slot.kind->eventsId,
                                                                 slot.events->unknown()));
    slot.connections.push_back(std::make_unique<kit::Connection>(
        slot.control->object(), __uuidof(IPropertyNotifySink), slot.changes->unknown()));
    DWORD const flags[] = {0, ADVF_PRIMEFIRST, ADVF_ONLYONCE, ADVF_PRIMEFIRST | ADVF_ONLYONCE};
    if (auto const own = slot.as<IViewObject>())
        own->SetAdvise(DVASPECT_CONTENT, oneOf(world.random, flags),
                       world.random() % 3 ? slot.views.get() : nullptr);
    DWORD cookie = 0;
    slot.ask(&IOleObject::Advise, slot.views.get(), &cookie);
}

void unadvise(World& world, Slot& slot)
{
    if (auto const own = slot.as<IOleObject>())
        own->Unadvise(static_cast<DWORD>(below(world.random, 4)));
    if (slot.connections.empty())
        return;
    auto const at = slot.connections.begin() + below(world.random, static_cast<int>(slot.connections.size()));
    auto const leaving = std::move(*at); // cut when the list is in order again
    slot.connections.erase(at);
}

void changeAmbient(World& world, Slot& slot)
{
    DISPID const id = oneOf(world.random, kAmbients);
    auto const values = strangeValues();
    slot.control->site().setAmbient(id, values[world.random() % values.size()].value);
    slot.ask(&IOleControl::OnAmbientPropertyChange, id);
}

void quickActivate(World& world, Slot& slot)
{
    QACONTAINER container{};
    container.cbSize = world.random() % 8 ? sizeof(container) : 3;
    container.pClientSite = &slot.control->site();
    container.pPropertyNotifySink = slot.changes.get();
    container.pUnkEventSink = slot.events->unknown();
    QACONTROL answer{};
    answer.cbSize = sizeof(answer);
    if (auto const own = slot.as<IQuickActivate>())
        world.begin(slot, [&] { own->QuickActivate(&container, &answer); });
}

void close(World& world, Slot& slot)
{
    auto const own = slot.as<IOleObject>();
    if (!own)
        return;
    auto const option = static_cast<DWORD>(below(world.random, 4));
    world.end(slot, World::Afterwards::Over, [&] { own->Close(option); });
}

void useKey(World& world, Slot& slot)
{
    constexpr WPARAM kKeys[] = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_SPACE, VK_LEFT, 'A', 0xFFFF};
    MSG message{world.form.window(), WM_KEYDOWN, oneOf(world.random, kKeys), 0, 0, {}};
    slot.ask(&IOleInPlaceActiveObject::TranslateAccelerator, &message);
    message.message = world.random() % 2 ? WM_SYSCHAR : WM_KEYUP;
    if (auto const own = slot.as<IOleControl>())
        own->OnMnemonic(world.random() % 4 ? &message : nullptr);
    CONTROLINFO info{};
    info.cb = world.random() % 4 ? sizeof(info) : 2;
    slot.ask(&IOleControl::GetControlInfo, &info);
}

template <auto Method> void plainCall(World&, Slot& slot) { slot.ask(Method); }

void freeze(World& world, Slot& slot)
{
    if (auto const own = slot.as<IOleControl>())
        own->FreezeEvents(world.random() % 2 != 0);
}

} // namespace

std::vector<Step> const& containerSteps()
{
    static std::vector<Step> const all = {
        {"create anew", 2, [](World& world, Slot& slot) { world.create(slot); }},
        {"remove", 1, [](World& world, Slot& slot) { world.drop(slot); }},
        {"release", 1, [](World&, Slot& slot) { slot.control->release(); }},
        {"site", 6, setSite},
        {"init new", 2, plainCall<&IPersistStreamInit::InitNew>},
        {"extent", 4, setExtent},
        {"verb", 14, doVerb},
        {"rectangles", 6, setRectangles},
        {"without keyboard", 2, plainCall<&IOleInPlaceObject::UIDeactivate>},
        {"deactivate", 3, deactivate},
        {"undo", 1, plainCall<&IOleInPlaceObject::ReactivateAndUndo>},
        {"update", 1, plainCall<&IOleObject::Update>},
        {"close", 2, close},
        {"load", 3, load},
        {"load a bag", 3, loadBag},
        {"save", 2, saveEverywhere},
        {"draw", 5, draw},
        {"advise", 5, advise},
        {"unadvise", 2, unadvise},
        {"ambient", 5, changeAmbient},
        {"freeze", 2, freeze},
        {"quick activation", 2, quickActivate},
        {"keys", 4, useKey},
    };
    return all;
}

} // namespace quillet::hostile
