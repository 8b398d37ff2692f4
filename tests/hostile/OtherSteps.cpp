// The steps of the generator that are no container's: properties by name, window messages, null pointers.
#include "Journal.h"
#include "Values.h"
#include "World.h"
#include "kit/ByName.h"
#include "kit/Canvas.h"
#include "kit/Pump.h"

#include <commctrl.h>
#include <objsafe.h>
#include <olectl.h>

#include <docobj.h>

namespace quillet::hostile {

namespace {

constexpr wchar_t const* kNames[] = {
    L"Caption",     L"BackColor",     L"ForeColor", L"Enabled",      L"Font",          L"BorderStyle",
    L"BorderWidth", L"HotForeColor",  L"Value",     L"MousePointer", L"MouseIcon",     L"OfficeXPColors",
    L"Image",       L"DisabledImage", L"HotImage",  L"PressedImage", L"AutoSizeWidth", L"CheckButton",
    L"Checked",     L"CheckedFont",   L"Active",    L"ToolTipText",  L"CentreCaption", L"CaptionIndent",
    L"hwnd",        L"hdc",           L"NoSuchName"};

void putProperty(World& world, Slot& slot)
{
    auto const own = slot.as<IDispatch>();
    if (!own)
        return;
    auto const values = strangeValues();
    Variant const& value = values[world.random() % values.size()].value;
    wchar_t const* const name = oneOf(world.random, kNames);
    if (world.random() % 4)
        kit::putByName(*own.get(), name, value);
    else
        kit::invoke(*own.get(), kit::idOf(*own.get(), name), DISPATCH_PROPERTYPUTREF, {value});
}

void putCaption(World& world, Slot& slot)
{
    if (auto const own = slot.as<IDispatch>())
        kit::putByName(*own.get(), L"Caption",
                       Variant::ofString(std::wstring(world.random() % 40, L'&') + L"Text"));
}

void getProperties(World&, Slot& slot)
{
    for (wchar_t const* const name : kNames)
        if (auto const own = slot.as<IDispatch>())
            kit::getByName(*own.get(), name);
}

void callMethod(World& world, Slot& slot)
{
    constexpr wchar_t const* kMethods[] = {L"Refresh", L"DrawButton", L"InUserMode"};
    auto const own = slot.as<IDispatch>();
    if (!own)
        return;
    kit::callByName(*own.get(), oneOf(world.random, kMethods));
    if (world.random() % 4 == 0)
        kit::callByName(*own.get(), L"Refresh", {Variant::ofLong(1), Variant::ofLong(2)});
    if (world.random() % 4 == 0)
        kit::invoke(*own.get(), DISPID_DOCLICK, DISPATCH_METHOD);
}

void invokeAnything(World& world, Slot& slot)
{
    constexpr WORD kKinds[] = {0, 1, 2, 3, 4, 8, 12, 15, 0xFFFF};
    constexpr DISPID kIds[] = {0, -1, -5, -512, -514, -551, -552, 0x68030005, 0x60030027, 0x7FFFFFFF, 3};
    if (auto const own = slot.as<IDispatch>())
        kit::invoke(*own.get(), oneOf(world.random, kIds), oneOf(world.random, kKinds),
                    std::vector<Variant>(world.random() % 3));
}

/// Messages whose parameters are no pointers: those may be anything.
void sendMessage(World& world, Slot& slot)
{
    constexpr UINT kMessages[] = {
        WM_MOUSEMOVE,   WM_LBUTTONDOWN,  WM_LBUTTONUP,  WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,   WM_RBUTTONUP,
        WM_MBUTTONDOWN, WM_MBUTTONUP,    WM_KEYDOWN,    WM_KEYUP,         WM_CHAR,          WM_SYSKEYDOWN,
        WM_SYSKEYUP,    WM_SYSCHAR,      WM_SETFOCUS,   WM_KILLFOCUS,     WM_PAINT,         WM_NCPAINT,
        WM_SIZE,        WM_MOVE,         WM_SHOWWINDOW, WM_ENABLE,        WM_CANCELMODE,    WM_CAPTURECHANGED,
        WM_SETREDRAW,   WM_SETCURSOR,    WM_GETDLGCODE, WM_MOUSEACTIVATE, WM_TIMER,         WM_SYSCOLORCHANGE,
        WM_FONTCHANGE,  WM_THEMECHANGED, WM_GETFONT,    WM_GETTEXTLENGTH, WM_QUERYUISTATE,  WM_UPDATEUISTATE,
        WM_COMMAND,     WM_MOUSELEAVE,   WM_MOUSEHOVER, WM_CONTEXTMENU,   WM_HSCROLL,       WM_DESTROY,
        WM_NCDESTROY,   WM_CLOSE,        BM_CLICK,      BM_SETCHECK,      BM_GETCHECK,      BM_SETSTATE,
        BM_SETSTYLE,    BM_SETIMAGE,     WM_ENTERIDLE,  WM_INITMENUPOPUP, WM_DEVICECHANGE,  WM_APP,
        WM_USER + 1,    WM_CTLCOLORBTN,  WM_NULL,       WM_QUEUESYNC,     WM_CHANGEUISTATE, WM_PRINTCLIENT};
    HWND const window = slot.anyWindow(world.random);
    UINT const message = oneOf(world.random, kMessages);
    WPARAM const wParam = world.random() % 2 ? world.random() % 300 : world.random();
    LPARAM const lParam = world.random() % 2 ? MAKELPARAM(world.random() % 100, world.random() % 40)
                                             : static_cast<LPARAM>(world.random());
    Journal::step("    message " + std::to_string(message) + ' ' + std::to_string(wParam) + ' ' +
                  std::to_string(lParam));
    if (message == WM_PRINTCLIENT || message == WM_CTLCOLORBTN) {
        kit::Canvas canvas(20, 10);
        ::SendMessageA(window, message, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
    } else if (message == WM_GETDLGCODE) { // its parameter is a pointer or nothing
        ::SendMessageA(window, message, 0, 0);
    } else if (world.random() % 4 == 0) {
        ::PostMessageA(window, message, wParam, lParam);
    } else {
        ::SendMessageA(window, message, wParam, lParam);
    }
}

void sendText(World& world, Slot& slot)
{
    wchar_t text[30] = {};
    HWND const window = slot.anyWindow(world.random);
    ::SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(world.random() % 3 ? L"te&xt" : nullptr));
    ::SendMessageW(window, WM_GETTEXT, 30, reinterpret_cast<LPARAM>(text));
    NMHDR header{window, 1, TTN_GETDISPINFOA};
    ::SendMessageA(window, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
}

void hideAndShowForm(World& world, HWND)
{
    for (int const how : {SW_HIDE, SW_SHOWNOACTIVATE})
        ::ShowWindow(world.form.window(), how);
}

void treatWindow(World& world, Slot& slot)
{
    constexpr void (*kTreatments[])(World&, HWND) = {
        [](World&, HWND window) { ::DestroyWindow(window); },
        [](World& own, HWND window) { ::SetParent(window, own.otherForm.window()); },
        [](World&, HWND window) { ::ShowWindow(window, SW_HIDE); },
        [](World&, HWND window) { ::MoveWindow(window, 0, 0, 300, 1, TRUE); },
        [](World&, HWND window) { ::SetFocus(window); },
        [](World&, HWND window) { ::EnableWindow(window, FALSE); },
        [](World&, HWND window) { ::SetCapture(window); },
        [](World& own, HWND) { ::SetCapture(own.form.window()); }, // which the window may have had
        [](World&, HWND) { ::ReleaseCapture(); },
        hideAndShowForm,
        [](World&, HWND window) {
            ::RedrawWindow(window, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        }};
    HWND const window = slot.anyWindow(world.random);
    oneOf(world.random, kTreatments)(world, window);
}

void moveCursor(World& world, Slot& slot)
{
    RECT place{};
    ::GetWindowRect(slot.anyWindow(world.random), &place);
    if (world.random() % 2)
        ::SetCursorPos(place.left + 5, place.top + 5);
    else
        ::SetCursorPos(1200, 1000);
}

void queryEverything(World& world, Slot& slot)
{
    IID const ids[] = {IID_IUnknown,
                       IID_IDispatch,
                       IID_IOleObject,
                       IID_IOleControl,
                       IID_IOleInPlaceObject,
                       IID_IViewObjectEx,
                       IID_IDataObject,
                       IID_IQuickActivate,
                       IID_IPersist,
                       IID_IPersistStorage,
                       IID_IProvideClassInfo2,
                       IID_ISpecifyPropertyPages,
                       IID_IPerPropertyBrowsing,
                       IID_IOleDocument,
                       IID_IMarshal,
                       IID_NULL};
    for (IID const& iid : ids)
        if (auto const own = query<IUnknown>(slot.control->object(), iid)) {
            EXPECT_EQ(query<IUnknown>(own.get()).get(), query<IUnknown>(slot.control->object()).get());
        }
    if (IUnknown* const own = slot.control->object())
        own->QueryInterface(oneOf(world.random, ids), nullptr);
}

void passNothing(World& world, Slot& slot)
{
    if (auto const own = slot.as<IOleObject>()) {
        own->GetClientSite(nullptr);
        own->GetMoniker(0, 0, nullptr);
        own->EnumVerbs(nullptr);
        own->GetUserClassID(nullptr);
        own->GetUserType(0, nullptr);
        own->SetExtent(DVASPECT_CONTENT, nullptr);
        own->GetExtent(DVASPECT_CONTENT, nullptr);
        own->Advise(nullptr, nullptr);
        own->EnumAdvise(nullptr);
        own->GetMiscStatus(DVASPECT_CONTENT, nullptr);
        own->SetHostNames(nullptr, nullptr);
        own->GetClipboardData(0, nullptr);
        world.begin(slot, [&] { own->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr); });
    }
    if (auto const own = slot.as<IOleInPlaceObject>()) {
        own->GetWindow(nullptr);
        own->SetObjectRects(nullptr, nullptr);
    }
    if (auto const own = slot.as<IOleInPlaceActiveObject>())
        own->TranslateAccelerator(nullptr);
    if (auto const own = slot.as<IOleControl>())
        own->GetControlInfo(nullptr);
    if (auto const own = slot.as<IViewObjectEx>()) {
        own->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
        own->GetAdvise(nullptr, nullptr, nullptr);
        own->GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr);
        own->GetRect(DVASPECT_CONTENT, nullptr);
        own->GetViewStatus(nullptr);
        own->QueryHitPoint(DVASPECT_CONTENT, nullptr, {}, 0, nullptr);
    }
    if (auto const own = slot.as<IDataObject>()) {
        own->GetData(nullptr, nullptr);
        own->QueryGetData(nullptr);
        own->EnumFormatEtc(DATADIR_GET, nullptr);
    }
    if (auto const own = slot.as<IPersistStreamInit>()) {
        own->GetClassID(nullptr);
        own->Load(nullptr);
        own->Save(nullptr, FALSE);
        own->GetSizeMax(nullptr);
    }
    if (auto const own = slot.as<IPersistPropertyBag>()) {
        own->Load(nullptr, nullptr);
        own->Save(nullptr, FALSE, FALSE);
    }
    if (auto const own = slot.as<IPersistStorage>()) {
        own->InitNew(nullptr);
        own->Load(nullptr);
        own->Save(nullptr, FALSE);
    }
    if (auto const own = slot.as<IConnectionPointContainer>()) {
        own->EnumConnectionPoints(nullptr);
        own->FindConnectionPoint(IID_IPropertyNotifySink, nullptr);
    }
    if (auto const own = slot.as<IDispatch>()) {
        own->Invoke(0, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr);
        own->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr);
        own->GetTypeInfoCount(nullptr);
        own->GetTypeInfo(0, 0, nullptr);
    }
    if (auto const own = slot.as<IQuickActivate>())
        own->QuickActivate(nullptr, nullptr);
    if (auto const own = slot.as<IPerPropertyBrowsing>()) {
        own->GetDisplayString(0, nullptr);
        own->GetPredefinedStrings(0, nullptr, nullptr);
        own->MapPropertyToPage(0, nullptr);
    }
    if (auto const own = slot.as<ISpecifyPropertyPages>())
        own->GetPages(nullptr);
}

} // namespace

std::vector<Step> const& otherSteps()
{
    static std::vector<Step> const all = {
        {"put a property", 12, putProperty},
        {"put the caption", 3, putCaption},
        {"get properties", 2, getProperties},
        {"call a method", 5, callMethod},
        {"invoke anything", 4, invokeAnything},
        {"message", 30, sendMessage},
        {"text message", 3, sendText},
        {"window", 6, treatWindow},
        {"cursor", 3, moveCursor},
        {"query", 1, queryEverything},
        {"null pointers", 2, passNothing},
        {"messages handled", 4, [](World&, Slot&) { kit::pumpPending(); }},
    };
    return all;
}

} // namespace quillet::hostile
