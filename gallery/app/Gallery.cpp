// The program round a form: opens it, runs it, and says what went wrong.
#include "gallery/app/Gallery.h"

#include "base/RunTimeError.h"
#include "gallery/app/Console.h"
#include "gallery/app/EventLog.h"
#include "gallery/app/GalleryWindow.h"
#include "gallery/app/OpenForm.h"
#include "gallery/app/Options.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/FormReader.h"

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

bool dispatchWaiting(GalleryWindow& gallery)
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        if (!gallery.translate(message)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    return true;
}

/// Runs until nothing is left to do; waiting without time makes the display show what was drawn.
bool becomeIdle(GalleryWindow& gallery)
{
    while (dispatchWaiting(gallery)) {
        ::GdiFlush();
        if (::MsgWaitForMultipleObjectsEx(0, nullptr, 0, QS_ALLINPUT, MWMO_INPUTAVAILABLE) == WAIT_TIMEOUT)
            return true;
    }
    return false;
}

void runLoop(GalleryWindow& gallery)
{
    while (dispatchWaiting(gallery))
        ::MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

/// Opens the form as a designer does and writes it back.
void saveForm(std::wstring const& path, std::wstring const& folder)
{
    ControlLibraries libraries;
    OpenForm opened(Document(path), libraries, programFolder());
    FormOptions options;
    options.mode = UserMode::Design;
    opened.make(std::move(options));
    opened.save(folder);
}

void openAndRun(Options const& options)
{
    OleScope const ole;
    if (!options.saveFolder.empty())
        return saveForm(options.form, options.saveFolder);
    std::optional<EventLog> log;
    if (!options.logFile.empty())
        log.emplace(options.logFile);
    GalleryWindow gallery(programFolder(), log ? &*log : nullptr);
    gallery.open(options.form, options.design ? UserMode::Design : UserMode::Run);
    gallery.show();
    RECT place{};
    if (options.announceReady && becomeIdle(gallery) && ::GetWindowRect(gallery.window(), &place))
        announce(place, options.readyFile);
    runLoop(gallery);
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
