// The gallery's window: its forms, how they follow one another, and where each part stands.
#include "gallery/app/GalleryWindow.h"

#include "base/ComCall.h"
#include "base/LateBound.h"
#include "base/RunTimeError.h"
#include "gallery/app/Choice.h"
#include "gallery/app/EventText.h"
#include "gallery/app/ResourceIds.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/Names.h"
#include "gallery/host/HostedControl.h"
#include "gallery/intrinsic/OwnWindow.h"

#include <algorithm>
#include <utility>

namespace quillet::gallery {

namespace {

constexpr wchar_t kGalleryClass[] = L"QuilletGallery";
constexpr UINT kRunLater = WM_APP;
constexpr long kEventsWidth = 4050; // twips
constexpr long kEventsTitle = 330;
constexpr long kMargin = 105;
constexpr wchar_t kDesignHint[] = L"Double-click a control for its properties";
constexpr wchar_t kProgram[] = L"Quillet";

std::string resource(int id)
{
    HRSRC const found = ::FindResourceW(nullptr, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(10)); // plain bytes
    HGLOBAL const loaded = found ? ::LoadResource(nullptr, found) : nullptr;
    if (!loaded)
        throw RunTimeError(HRESULT_FROM_WIN32(::GetLastError()));
    return {static_cast<char const*>(::LockResource(loaded)), ::SizeofResource(nullptr, found)};
}

SIZE clientSize(HWND window) noexcept
{
    RECT client{};
    ::GetClientRect(window, &client);
    return {client.right, client.bottom};
}

void put(FormControl& control, wchar_t const* property, bool value)
{
    putPropertyByName(control.automation(), property, Variant::ofBool(value));
}

bool isFormButton(FormControl const& control) noexcept { return sameName(control.state().name, L"tbForm"); }

bool isFormFile(std::wstring_view name) noexcept
{
    constexpr std::wstring_view kEnding = L".frm";
    return name.size() > kEnding.size() && sameName(name.substr(name.size() - kEnding.size()), kEnding);
}

} // namespace

GalleryWindow::GalleryWindow(std::wstring programFolder, EventLog* log)
    : m_programFolder(std::move(programFolder)), m_log(log)
{
    makeWindow();
    m_pane = std::make_unique<EventPane>(window());
    makeBar();
}

GalleryWindow::~GalleryWindow() { close(); }

void GalleryWindow::makeWindow()
{
    registerOwnWindow<GalleryWindow>(kGalleryClass, ::GetSysColorBrush(COLOR_BTNFACE));
    m_window.reset(::CreateWindowExW(WS_EX_CONTROLPARENT, kGalleryClass, kProgram,
                                     WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT, 0,
                                     0, nullptr, nullptr, ::GetModuleHandleW(nullptr), this));
    if (!m_window)
        throw RunTimeError(HRESULT_FROM_WIN32(::GetLastError()));
}

void GalleryWindow::makeBar()
{
    FormOptions options;
    options.parent = window();
    options.onEvent = [this](FormEvent const& event) {
        if (event.name == L"Click")
            later([this, &control = event.control] { barClicked(control); });
        // Of a double click, too, which turns a check button over without a click.
        if (event.name == L"MouseUp")
            later([this] { showChoice(); });
    };
    m_bar = opened(Document(L"gallery.frm", resource(GALLERY_BAR), resource(GALLERY_BAR_PICTURES)));
    m_bar->make(std::move(options));
    bar().show();
}

std::unique_ptr<OpenForm> GalleryWindow::opened(Document document)
{
    return std::make_unique<OpenForm>(std::move(document), m_libraries, m_programFolder);
}

/// A form of the bar lies where the open form does, else in the gallery's own folder.
std::wstring GalleryWindow::pathOf(std::wstring const& fileName) const
{
    std::wstring const beside = m_open ? m_open->folder() + L"\\" + fileName : fileName;
    for (std::wstring const& path : {beside, m_programFolder + L"\\forms\\" + fileName})
        if (isFile(path))
            return path;
    return folderOf(m_programFolder) + L"\\forms\\" + fileName;
}

void GalleryWindow::open(std::wstring const& path, UserMode mode)
{
    std::wstring wanted = path;
    for (auto const& button : bar().controls())
        if (wanted.empty() && isFormButton(*button))
            wanted = pathOf(button->state().tag);
    auto next = opened(Document(wanted));
    closeDialog();
    m_open.reset();
    m_open = std::move(next);
    showDocument(mode);
    fit();
    settle();
}

void GalleryWindow::showDocument(UserMode mode)
{
    m_deeds.clear(); // they may be about its controls
    closeDialog();
    FormOptions options;
    options.mode = mode;
    options.parent = window();
    options.onEvent = [this](FormEvent const& event) { heard(event); };
    options.onDesign = [this](FormControl& control) { later([this, &control] { showPages(control); }); };
    m_open->make(std::move(options));
    bool const isDesign = mode == UserMode::Design;
    m_pane->begin(isDesign ? kDesignHint : L"");
    ::SetWindowTextW(window(), (form().caption() + (isDesign ? L" [design]" : L"")).c_str());
    ::SetWindowPos(form().window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    showChoice();
}

/// The bar says what is open, and how; a button whose form is not there does nothing.
void GalleryWindow::showChoice()
{
    if (!shownForm())
        return;
    std::wstring const name = fileNameOf(m_open->document().path());
    for (auto const& button : bar().controls())
        if (isFormButton(*button)) {
            put(*button, L"Checked", sameName(button->state().tag, name));
            put(*button, L"Enabled", isFile(pathOf(button->state().tag)));
        }
    put(*bar().find(L"tbDesign"), L"Checked", form().isDesign());
    bar().find(L"tbSave")->setVisible(form().isDesign());
}

/// As large as the bar, the form and the events need.
void GalleryWindow::fit()
{
    Resolution const& resolution = form().resolution();
    SIZE const inner = clientSize(form().window());
    RECT place{0, 0, inner.cx + resolution.pixelsX(kEventsWidth), inner.cy + clientSize(bar().window()).cy};
    ::AdjustWindowRectEx(&place, WS_OVERLAPPEDWINDOW, FALSE, WS_EX_CONTROLPARENT);
    SIZE const size{place.right - place.left, place.bottom - place.top};
    if (::IsWindowVisible(window())) {
        ::SetWindowPos(window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    } else {
        RECT area{};
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        long const left = std::max((area.left + area.right - size.cx) / 2, area.left);
        long const top = std::max((area.top + area.bottom - size.cy) / 2, area.top);
        ::SetWindowPos(window(), nullptr, left, top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void GalleryWindow::settle()
{
    layOut();
    form().show();
}

void GalleryWindow::layOut()
{
    if (!shownForm())
        return;
    Resolution const& resolution = form().resolution();
    SIZE const client = clientSize(window());
    int const top = clientSize(bar().window()).cy;
    int const margin = resolution.pixelsX(kMargin);
    int const right = std::max(0L, client.cx - resolution.pixelsX(kEventsWidth));
    ::MoveWindow(bar().window(), 0, 0, client.cx, top, TRUE);
    ::MoveWindow(form().window(), 0, top, right, client.cy - top, TRUE);
    m_pane->moveTo({right, top, client.cx - margin, client.cy - margin}, resolution.pixelsY(kEventsTitle));
}

void GalleryWindow::show()
{
    ::ShowWindow(window(), SW_SHOWNORMAL);
    ::UpdateWindow(window());
}

bool GalleryWindow::translate(MSG& message)
{
    if (dialog() && dialog()->translate(message))
        return true;
    bool const isTab = message.message == WM_KEYDOWN && message.wParam == VK_TAB && !dialog();
    if (isTab && ::GetKeyState(VK_CONTROL) < 0) {
        later([this, step = ::GetKeyState(VK_SHIFT) < 0 ? -1 : 1] { openNext(step); });
        return true;
    }
    return (shownForm() && form().translate(message)) || (m_bar && bar().translate(message));
}

void GalleryWindow::heard(FormEvent const& event)
{
    if (m_log)
        m_log->add(eventText(event));
    m_pane->add(event);
    FormControl& control = event.control;
    if (event.name == L"MouseUp")
        later([&control] { keepChoice(control); });
    if (event.name != L"Click")
        return;
    choose(control);
    bool const isOfDialog = &control.form() == dialog();
    if (isOfDialog && (control.state().isDefault || control.state().isCancel))
        later([this] { closeDialog(); });
    if (!isOfDialog && isFormFile(control.state().tag))
        later([this, file = control.state().tag] { openDialog(file); });
}

void GalleryWindow::barClicked(FormControl& button)
{
    UserMode const mode = form().options().mode;
    if (sameName(button.state().name, L"tbDesign"))
        changeMode();
    else if (sameName(button.state().name, L"tbSave"))
        save();
    else if (isFormButton(button) && mayGo())
        open(pathOf(button.state().tag), mode);
    else
        showChoice();
}

void GalleryWindow::openNext(int step)
{
    std::vector<FormControl*> buttons;
    for (auto const& button : bar().controls())
        if (isFormButton(*button) && button->isEnabled())
            buttons.push_back(button.get());
    auto const now = std::ranges::find_if(buttons, [](FormControl* button) {
        return propertyByName(button->automation(), L"Checked").toBool();
    });
    if (now == buttons.end())
        return;
    std::size_t const next = static_cast<std::size_t>(now - buttons.begin() + step + std::ssize(buttons));
    barClicked(*buttons[next % buttons.size()]);
}

void GalleryWindow::changeMode()
{
    m_open->takeDesign();
    showDocument(form().isDesign() ? UserMode::Run : UserMode::Design);
    settle();
}

void GalleryWindow::showPages(FormControl& control)
{
    auto* const hosted = dynamic_cast<HostedControl*>(&control);
    if (!hosted)
        return;
    std::wstring const& name = control.className();
    auto const known = m_libraries.known(std::wstring_view(name).substr(0, name.find(L'.')));
    hosted->showPages();
}

void GalleryWindow::openDialog(std::wstring const& file)
{
    auto next = opened(Document(pathOf(file)));
    FormOptions options;
    options.owner = window();
    options.onEvent = [this](FormEvent const& event) { heard(event); };
    options.onClosed = [this] { later([this] { closeDialog(); }); };
    next->make(std::move(options));
    m_dialog = std::move(next);
    ::EnableWindow(window(), FALSE);
    dialog()->show();
}

void GalleryWindow::closeDialog()
{
    if (!m_dialog)
        return;
    ::EnableWindow(window(), TRUE); // before the dialog goes, or another program's window comes to the front
    auto const dialog = std::move(m_dialog);
    m_dialog.reset();
    ::SetForegroundWindow(window());
}

void GalleryWindow::save()
{
    m_open->save(m_open->folder());
    // What the controls saved is what they were loaded with from here on.
    showDocument(UserMode::Design);
    settle();
}

bool GalleryWindow::mayGo()
{
    if (!m_open || m_open->takeDesign())
        return true;
    std::wstring const question = L"Save the changes to " + fileNameOf(m_open->document().path()) + L"?";
    int const answer = ::MessageBoxW(window(), question.c_str(), kProgram, MB_YESNOCANCEL | MB_ICONQUESTION);
    if (answer == IDYES)
        m_open->save(m_open->folder());
    return answer != IDCANCEL;
}

void GalleryWindow::close()
{
    m_deeds.clear();
    closeDialog();
    m_open.reset();
    m_bar.reset();
    m_window.reset();
}

void GalleryWindow::later(std::function<void()> deed)
{
    m_deeds.push_back(std::move(deed));
    ::PostMessageW(window(), kRunLater, 0, 0);
}

void GalleryWindow::runLater()
{
    if (m_deeds.empty())
        return;
    auto const deed = std::move(m_deeds.front());
    m_deeds.pop_front();
    try {
        deed();
    } catch (FormError const& error) {
        ::MessageBoxW(window(), error.text().c_str(), kProgram, MB_OK | MB_ICONERROR);
    }
}

LRESULT GalleryWindow::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        layOut();
        return 0;
    case WM_SETFOCUS:
        if (shownForm())
            ::SetFocus(form().window());
        return 0;
    case kRunLater:
        runLater();
        return 0;
    case WM_CLOSE:
        if (mayGo()) {
            close();
            ::PostQuitMessage(0);
        }
        return 0;
    default:
        return ::DefWindowProcW(window(), message, wParam, lParam);
    }
}

} // namespace quillet::gallery
