// Flat buttons in a plain window: nothing but Windows and quillet.h.
#include "quillet.h"

#include <string>

namespace {

using Quillet::_qvFlatCheck;
using Quillet::_qvFlatCommand;

constexpr wchar_t kNotRegistered[] =
    L"Quillet is not registered: run regsvr32 quilbt.ocx, of the same kind (x86 or x64) as this program.";

/// Hears a control's events, which come through Invoke. Lives as long as the program: nobody counts it.
class Sink final : public IDispatch {
public:
    using Handler = void (*)(DISPID event);

    Sink(REFIID events, Handler handler) : m_events(events), m_handler(handler) {}
    virtual ~Sink() = default;

    /// Asks source for its events.
    bool connect(IUnknown* source)
    {
        IConnectionPointContainer* container = nullptr;
        IConnectionPoint* point = nullptr;
        DWORD cookie = 0;
        HRESULT result = source->QueryInterface(IID_PPV_ARGS(&container));
        if (SUCCEEDED(result)) {
            result = container->FindConnectionPoint(m_events, &point);
            container->Release();
        }
        if (SUCCEEDED(result)) {
            result = point->Advise(this, &cookie);
            point->Release();
        }
        return SUCCEEDED(result);
    }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        bool const known = id == IID_IUnknown || id == IID_IDispatch || id == m_events;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        m_handler(event);
        return S_OK;
    }

private:
    IID m_events;
    Handler m_handler;
};

HWND g_window;
int g_saved;

void onSave(DISPID event)
{
    if (event == Quillet::eventid::qvFlatCommand::Click)
        ::SetWindowTextW(g_window, (L"Saved " + std::to_wstring(++g_saved)).c_str());
}

void onCheck(DISPID event)
{
    if (event == Quillet::eventid::qvFlatCheck::Click)
        ::SetWindowTextW(g_window, L"Checked");
}

/// A function of the system's control host.
template <class Function> Function* hostFunction(char const* name)
{
    HMODULE const host = ::LoadLibraryW(L"atl.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(host, name)));
}

/// Makes a host window with the control that programId names. The caller releases the control; null: it
/// failed.
template <class Interface>
Interface* newControl(wchar_t const* programId, int x, int y, int width, int height)
{
    HWND const host = ::CreateWindowExW(0, L"AtlAxWin", programId, WS_CHILD | WS_VISIBLE | WS_TABSTOP, x, y,
                                        width, height, g_window, nullptr, nullptr, nullptr);
    auto* const getControl = hostFunction<HRESULT WINAPI(HWND, IUnknown**)>("AtlAxGetControl");
    IUnknown* unknown = nullptr;
    Interface* control = nullptr;
    if (host && getControl && SUCCEEDED(getControl(host, &unknown)) && unknown) {
        unknown->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(&control));
        unknown->Release();
    }
    return control;
}

template <class Interface> void setCaption(Interface* button, wchar_t const* caption)
{
    BSTR const text = ::SysAllocString(caption);
    button->put_Caption(text);
    ::SysFreeString(text);
}

/// Colours are OLE colours: 0x00BBGGRR, or 0x80000000 and the number of a colour of the desktop.
bool fillWindow()
{
    auto* const save = newControl<_qvFlatCommand>(L"Quillet.qvFlatCommand", 20, 20, 120, 32);
    auto* const check = newControl<_qvFlatCheck>(L"Quillet.qvFlatCheck", 20, 64, 120, 20);
    if (!save || !check)
        return false;

    setCaption(save, L"&Save changes");
    setCaption(check, L"Keep a &backup");
    save->put_CentreCaption(VARIANT_TRUE);
    save->put_HotBackColor(0x00F7DFD6);
    save->put_HotBorderColor(0x00C56A31);

    static Sink saveEvents(Quillet::DIID___qvFlatCommand, onSave);
    static Sink checkEvents(Quillet::DIID___qvFlatCheck, onCheck);
    bool const connected = saveEvents.connect(save) && checkEvents.connect(check);
    save->Release(); // the host windows keep the controls, and end them with themselves
    check->Release();
    return connected;
}

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        ::PostQuitMessage(0);
    return ::DefWindowProcW(window, message, wParam, lParam);
}

HWND newWindow(HINSTANCE instance)
{
    WNDCLASSW description{};
    description.lpfnWndProc = windowProcedure;
    description.hInstance = instance;
    description.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<wchar_t const*>(IDC_ARROW));
    description.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = L"QuilletSample";
    ::RegisterClassW(&description);
    return ::CreateWindowExW(WS_EX_CONTROLPARENT, description.lpszClassName, L"Flat buttons",
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 100, 100, 300, 160, nullptr, nullptr,
                             instance, nullptr);
}

/// A host window sees the keys first, so that its control gets them; then the dialog keys go round.
void runMessageLoop()
{
    constexpr UINT kForwardMessage = 0x037F; // WM_FORWARDMSG, which not every header has
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        HWND const host = ::GetParent(message.hwnd);
        bool const isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
        if (isKey && ::SendMessageW(host, kForwardMessage, 0, reinterpret_cast<LPARAM>(&message)))
            continue;
        if (::IsDialogMessageW(g_window, &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int show)
{
    if (FAILED(::OleInitialize(nullptr)))
        return 1;
    auto* const startHost = hostFunction<BOOL WINAPI()>("AtlAxWinInit");
    g_window = newWindow(instance);
    if (!startHost || !startHost() || !fillWindow()) {
        ::MessageBoxW(nullptr, kNotRegistered, L"Flat buttons", MB_ICONERROR);
        return 1;
    }
    ::ShowWindow(g_window, show);
    runMessageLoop();
    ::OleUninitialize();
    return 0;
}
