// The program round a form: opens it, runs it, and says what went wrong.
#include "gallery/app/Gallery.h"

#include "base/RunTimeError.h"
#include "gallery/app/Console.h"
#include "gallery/app/ControlLibrary.h"
#include "gallery/app/Document.h"
#include "gallery/app/EventLog.h"
#include "gallery/app/EventPane.h"
#include "gallery/app/EventText.h"
#include "gallery/app/Options.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/FormReader.h"
#include "gallery/form/Utf8.h"
#include "gallery/host/Form.h"

#include <ole2.h>
#include <windows.h>

#include <optional>

namespace quillet::gallery {

namespace {

/// The component runtime for one scope, as drag, drop and in-place activation need it.
class OleScope {
public:
    OleScope() { check(::OleInitialize(nullptr)); }
    ~OleScope() { ::OleUninitialize(); }
    OleScope(OleScope const&) = delete;
    OleScope& operator=(OleScope const&) = delete;
};

std::wstring programFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return folderOf(path);
}

/// The form and, beside it, its events.
RECT placeOnScreen(HWND form, HWND events)
{
    RECT place{};
    RECT beside{};
    ::GetWindowRect(form, &place);
    if (events && ::GetWindowRect(events, &beside))
        ::UnionRect(&place, &place, &beside);
    return place;
}

void announce(RECT const& place, std::wstring const& file)
{
    wchar_t line[96];
    ::wsprintfW(line, L"ready %ld %ld %ld %ld\n", place.left, place.top, place.right - place.left,
                place.bottom - place.top);
    if (file.empty())
        say(Stream::Output, line);
    else
        writeFileBytes(file, utf8(line));
}

bool dispatchWaiting(Form& form)
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        if (!form.translate(message)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    return true;
}

/// Runs until nothing is left to do; waiting without time makes the display show what was drawn.
bool becomeIdle(Form& form)
{
    while (dispatchWaiting(form)) {
        ::GdiFlush();
        if (::MsgWaitForMultipleObjectsEx(0, nullptr, 0, QS_ALLINPUT, MWMO_INPUTAVAILABLE) == WAIT_TIMEOUT)
            return true;
    }
    return false;
}

void runLoop(Form& form)
{
    while (dispatchWaiting(form))
        ::MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

/// Where the events of a form go. A designer's form raises none, so it has no pane.
struct EventOutputs {
    std::optional<EventLog> log;
    std::optional<EventPane> pane;

    void add(FormEvent const& event)
    {
        if (log)
            log->add(eventText(event));
        if (pane)
            pane->add(event);
    }
};

FormOptions formOptions(Options const& options, Document& document, ControlLibraries& libraries,
                        EventOutputs& outputs)
{
    FormOptions how;
    bool const designed = options.design || !options.saveFolder.empty();
    how.mode = designed ? UserMode::Design : UserMode::Run;
    how.record = [&](ResourceReference const& reference) { return document.record(reference); };
    how.file = options.form;
    how.factory = [&](std::wstring_view library, std::wstring_view className) {
        return libraries.create(library, className);
    };
    how.onEvent = [&](FormEvent const& event) { outputs.add(event); };
    how.onWarning = [](FormError const& warning) {
        say(Stream::Error, L"gallery: " + warning.text() + L"\n");
    };
    how.onClosed = [] { ::PostQuitMessage(0); };
    return how;
}

void openAndRun(Options const& options)
{
    Document document(options.form);
    EventOutputs outputs;
    if (!options.logFile.empty())
        outputs.log.emplace(options.logFile);
    OleScope const ole;
    ControlLibraries libraries(document.tree().objects, {programFolder(), folderOf(options.form)});
    Form form(document.tree(), formOptions(options, document, libraries, outputs));
    if (!options.saveFolder.empty()) {
        document.takeFrom(form);
        return document.save(options.saveFolder);
    }
    if (!form.isDesign())
        outputs.pane.emplace(form.window());
    form.show();
    if (outputs.pane)
        outputs.pane->show();
    if (options.announceReady && becomeIdle(form))
        announce(placeOnScreen(form.window(), outputs.pane ? outputs.pane->window() : nullptr),
                 options.readyFile);
    runLoop(form);
}

} // namespace

int runGallery(std::vector<std::wstring> const& words)
{
    std::optional<Options> const options = parseOptions(words);
    if (!options) {
        say(Stream::Error, kUsage);
        return kCannotOpen;
    }
    if (options->help) {
        say(Stream::Output, kUsage);
        return kDone;
    }
    try {
        openAndRun(*options);
        return kDone;
    } catch (FormError const& error) {
        say(Stream::Error, L"gallery: " + error.text() + L"\n");
    } catch (RunTimeError const& error) {
        wchar_t text[64];
        ::wsprintfW(text, L": the form cannot be opened (0x%08lX)\n", error.result());
        say(Stream::Error, L"gallery: " + options->form + text);
    } catch (std::exception const&) {
        say(Stream::Error, L"gallery: " + options->form + L": there is not enough memory\n");
    }
    return kCannotOpen;
}

} // namespace quillet::gallery
