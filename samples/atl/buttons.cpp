// Flat buttons in a window of the Active Template Library; the compiler imports the component's type library.
#include <atlbase.h>
#include <atlcom.h>
#include <atlwin.h>

#include <string>

// An import puts the values of all enumerations into one scope, and the library's share their names: one is
// taken whole, two are only declared, as they stand among the types of members.
// clang-format off
#import "quilbt.ocx" named_guids \
    exclude("ButtonBorderStyleConstants", "ButtonStateConstants", "imgCmdBorderStyleConstants", \
            "imgCmdStateConstants", "pdsButtonStateConstants") \
    inject_statement("enum ButtonBorderStyleConstants : int;") \
    inject_statement("enum imgCmdBorderStyleConstants : int;")
// clang-format on

namespace {

constexpr UINT kSave = 1; // the control's number in the window, and in the map of events
constexpr DISPID kClick = 4;

class Application : public CAtlExeModuleT<Application> {};
Application g_application;

class MainWindow : public CWindowImpl<MainWindow, CWindow, CFrameWinTraits>,
                   public IDispEventImpl<kSave, MainWindow, &Quillet::DIID___qvFlatCommand,
                                         &Quillet::LIBID_Quillet, 1, 0> {
public:
    DECLARE_WND_CLASS_EX(L"QuilletSample", 0, COLOR_BTNFACE)

    BEGIN_MSG_MAP(MainWindow)
    MESSAGE_HANDLER(WM_CREATE, onCreate)
    MESSAGE_HANDLER(WM_DESTROY, onDestroy)
    END_MSG_MAP()

    BEGIN_SINK_MAP(MainWindow)
    SINK_ENTRY_EX(kSave, Quillet::DIID___qvFlatCommand, kClick, onSave)
    END_SINK_MAP()

private:
    LRESULT onCreate(UINT, WPARAM, LPARAM, BOOL&)
    {
        RECT place = {20, 20, 140, 52};
        m_host.Create(m_hWnd, place, L"Quillet.qvFlatCommand", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, kSave);
        if (FAILED(m_host.QueryControl(&m_save)) || FAILED(DispEventAdvise(m_save)))
            return -1; // no window
        m_save->Caption = L"&Save changes";
        m_save->CentreCaption = VARIANT_TRUE;
        m_save->HotBackColor = 0x00F7DFD6;
        m_save->HotBorderColor = 0x00C56A31;
        return 0;
    }

    LRESULT onDestroy(UINT, WPARAM, LPARAM, BOOL&)
    {
        if (m_save)
            DispEventUnadvise(m_save);
        m_save = nullptr;
        ::PostQuitMessage(0);
        return 0;
    }

    void __stdcall onSave() { SetWindowText((L"Saved " + std::to_wstring(++m_saved)).c_str()); }

    CAxWindow m_host;
    Quillet::_qvFlatCommandPtr m_save;
    int m_saved = 0;
};

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int show)
{
    ::OleInitialize(nullptr);
    AtlAxWinInit();
    RECT place = {100, 100, 400, 260};
    MainWindow window;
    if (!window.Create(nullptr, place, L"Flat buttons")) {
        ::MessageBoxW(
            nullptr,
            L"Quillet is not registered: run regsvr32 quilbt.ocx, of the same kind (x86 or x64) as this "
            L"program.",
            L"Flat buttons", MB_ICONERROR);
        return 1;
    }
    window.ShowWindow(show);

    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (window.IsDialogMessage(&message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    ::OleUninitialize();
    return 0;
}
