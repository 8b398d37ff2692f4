// Many paints and many whole lives of each control, then many loads of the component, and what they leave
// behind: soak [PAINTS LIVES]. Writes a row of a table for each, and fails where something is left.
#include "base/RunTimeError.h"
#include "bench/Container.h"
#include "bench/Rounds.h"
#include "bench/ShownImageButton.h"
#include "kit/Fonts.h"
#include "kit/HostWindow.h"
#include "kit/Input.h"
#include "kit/Pump.h"
#include "kit/Usage.h"
#include "typelib/Guids.h"

#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>

namespace {

using namespace quillet;
using namespace quillet::bench;

struct Kind {
    char const* name;
    CLSID classId;
    bool hasPicture;
};
Kind const kKinds[] = {
    {"qvFlatCommand", kQvFlatCommandClass, false},  {"qvImageCommand", kQvImageCommandClass, true},
    {"FlatToolButton", kFlatToolButtonClass, true}, {"qvFlatOption", kQvFlatOptionClass, false},
    {"qvFlatCheck", kQvFlatCheckClass, false},
};

/// Runs rounds after some that fill the system's caches, and writes what is held afterwards beyond what was
/// held before. Whether nothing is that grows with the rounds: the system's own caches come and go a little.
bool isFlat(char const* name, char const* what, int rounds, std::function<void(int)> const& body,
            long long bytesOfRound = 0)
{
    constexpr int kWarmUp = 50;
    constexpr int kPlaces = 40;
    constexpr long long kBytes = 16384;
    for (int i = 0; i < kWarmUp; ++i)
        body(i);
    kit::pumpPending();
    auto const before = kit::Usage::now();
    for (int i = 0; i < rounds; ++i)
        body(i);
    kit::pumpPending();
    auto const after = kit::Usage::now();
    auto const bytes = static_cast<long long>(after.bytes) - static_cast<long long>(before.bytes);
    std::printf("| %s | %d %s | %+d | %+d | %+d | %+lld |\n", name, rounds, what,
                after.windows - before.windows, after.window - before.window, after.gdi - before.gdi, bytes);
    std::fflush(stdout);
    return after.windows == before.windows && after.window <= before.window + kPlaces &&
           after.gdi <= before.gdi + kPlaces && bytes <= kBytes + rounds * bytesOfRound;
}

/// A control in a visible window. It has a picture where its kind has one.
class Shown {
public:
    Shown(kit::Library const& library, Kind const& kind, Frame& frame, HWND form, IPictureDisp* picture)
        : m_savedPicture(picture), m_factory(library.factory(kind.classId)),
          m_hosted(deref(m_factory.get()),
                   kind.hasPicture ? static_cast<IPropertyBag&>(m_savedPicture) : m_saved, frame, form,
                   kPlace)
    {
        check(deref(m_hosted.as<IOleWindow>().get()).GetWindow(&m_window));
    }

    void paint() const
    {
        ::RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

    /// With the real mouse, which takes another way each time: a cursor that stays where it is sends nothing.
    void hover(HWND form, int round) const
    {
        require(kit::moveCursorTo(m_window, 10 + round % 2, 10), "the cursor does not move");
        require(kit::pumpUntil([&] {
                    HWND const captured = ::GetCapture();
                    return captured && (captured == m_window || ::IsChild(m_window, captured));
                }),
                "the control does not see the mouse come");
        require(kit::moveCursorTo(form, 170 + round % 2, 80), "the cursor does not move");
        require(kit::pumpUntil([] { return !::GetCapture(); }), "the control does not see the mouse go");
    }

private:
    static constexpr RECT kPlace{20, 20, 140, 52};

    SavedButton m_saved;
    SavedImageButton m_savedPicture;
    ComPtr<IClassFactory> m_factory;
    Hosted m_hosted;
    HWND m_window = nullptr;
};

bool soakControl(kit::Library const& library, Kind const& kind, int paints, int lives)
{
    kit::HostWindow const window{40, 40, 200, 100};
    Frame frame{window.handle()};
    bool flat = true;
    {
        Shown const shown(library, kind, frame, window.handle(), kit::newIconPicture().get());
        flat &= isFlat(kind.name, "paints", paints, [&](int) { shown.paint(); });
    }
    flat &= isFlat(kind.name, "lives", lives, [&](int round) {
        auto const picture =
            round % 2 ? kit::newIconPicture() : kit::newBitmapPicture(16, 16, RGB(10, 120, 200));
        Shown const shown(library, kind, frame, window.handle(), picture.get());
        shown.hover(window.handle(), round);
    });
    return flat;
}

int loadedModules()
{
    HMODULE modules[512];
    DWORD bytes = 0;
    ::K32EnumProcessModules(::GetCurrentProcess(), modules, sizeof modules, &bytes);
    return static_cast<int>(bytes / sizeof(HMODULE));
}

/// Loads the component, shows one of each control, and unloads it.
void loadOnce()
{
    {
        kit::Library const library;
        require(library.loaded(), "quilbt.ocx beside this program cannot be loaded");
        {
            kit::HostWindow const window{40, 40, 200, 100};
            Frame frame{window.handle()};
            for (Kind const& kind : kKinds)
                Shown(library, kind, frame, window.handle(), kit::newIconPicture().get()).paint();
        }
        require(library.canUnloadNow() == S_OK, "the component says that something of it is in use");
    }
    require(!::GetModuleHandleW(L"quilbt.ocx"), "the component is still in memory");
}

/// The language's run time (threads, exceptions) leaves about a kilobyte behind at each unloading, in every
/// library that is built with it; ours is not to leave more.
bool soakLoading(int rounds)
{
    constexpr long long kRunTime = 2048;
    loadOnce(); // what the system's own libraries load at their first use stays
    int const before = loadedModules();
    bool const flat = isFlat(
        "quilbt.ocx", "loads", rounds, [](int) { loadOnce(); }, kRunTime);
    require(loadedModules() == before, "modules stay in memory");
    return flat;
}

bool soakAll(int paints, int lives)
{
    bool flat = true;
    {
        kit::Library const library;
        require(library.loaded(), "quilbt.ocx beside this program cannot be loaded");
        for (Kind const& kind : kKinds)
            flat &= soakControl(library, kind, paints, lives);
        require(library.canUnloadNow() == S_OK, "the component says that something of it is in use");
    }
    return soakLoading(lives / 10) && flat;
}

} // namespace

int main(int argc, char** argv)
{
    int const paints = argc > 1 ? std::atoi(argv[1]) : 100'000;
    int const lives = argc > 2 ? std::atoi(argv[2]) : 10'000;
    if (paints <= 0 || lives <= 0) {
        std::fputs("soak: how many paints and how many lives? (soak PAINTS LIVES)\n", stderr);
        return 2;
    }
    if (FAILED(::OleInitialize(nullptr)))
        return 1;
    int failed = 1;
    try {
        failed = soakAll(paints, lives) ? 0 : 1;
        if (failed)
            std::fputs("soak: something is left behind\n", stderr);
    } catch (RunTimeError const& error) {
        std::fprintf(stderr, "soak: a call failed with 0x%08lx\n",
                     static_cast<unsigned long>(error.result()));
    } catch (std::exception const& error) {
        std::fprintf(stderr, "soak: %s\n", error.what());
    }
    ::OleUninitialize();
    return failed;
}
