// Many paints and many whole lives, and what they leave behind.
#include "base/RunTimeError.h"
#include "bench/CrowdedForm.h"
#include "bench/Rounds.h"
#include "bench/ShownButton.h"
#include "bench/ShownImageButton.h"
#include "kit/Fonts.h"
#include "kit/Input.h"
#include "kit/Pump.h"
#include "kit/Usage.h"

#include <functional>

namespace quillet::bench {

namespace {

std::string growth(char const* what, long long before, long long after)
{
    long long const more = after - before;
    return std::string(what) + (more >= 0 ? " +" : " ") + std::to_string(more);
}

/// Runs so many rounds after some that fill the system's caches; what is held afterwards beyond what was held
/// before is the figure.
Row soak(std::string what, int rounds, std::function<void(int)> const& body)
{
    constexpr int kWarmUp = 50;
    for (int i = 0; i < kWarmUp; ++i)
        body(i);
    kit::pumpPending();
    auto const before = kit::Usage::now();
    for (int i = 0; i < rounds; ++i)
        body(i);
    kit::pumpPending();
    auto const after = kit::Usage::now();
    return {
        std::to_string(rounds) + std::move(what),
        growth("windows", before.windows, after.windows) + ", " +
            growth("USER place", before.window, after.window) + ", " +
            growth("GDI place", before.gdi, after.gdi) + ", " +
            growth("heap bytes", static_cast<long long>(before.bytes), static_cast<long long>(after.bytes)),
        "–", "–", "flat"};
}

/// Create, load, activate, hover with the real mouse, leave, close, release.
void liveOnce(CrowdedForm& form, int round)
{
    form.add(1);
    HWND const button = form.windowOf(0);
    // Another point each time: a cursor that stays where it is sends no message.
    require(kit::moveCursorTo(button, 10 + round % 2, 10), "the cursor does not move");
    require(kit::pumpUntil([&] { return ::GetCapture() == button; }),
            "the button does not see the mouse come");
    require(kit::moveCursorTo(form.window(), 400 + round % 2, 300), "the cursor does not move");
    require(kit::pumpUntil([] { return !::GetCapture(); }), "the button does not see the mouse go");
    form.clear();
}

/// Create, load with a picture, activate, paint, close, release.
void livePictured(kit::Library const& library, kit::HostWindow const& window, Frame& frame, int round)
{
    auto const picture = round % 2 ? kit::newIconPicture() : kit::newBitmapPicture(16, 16, RGB(10, 120, 200));
    SavedImageButton saved(picture.get());
    auto const factory = library.factory(kImageKinds[round / 2 % 2].classId);
    Hosted const button(deref(factory.get()), saved, frame, window.handle(), ShownImageButton::kPlace);
    kit::pumpPending();
}

} // namespace

Rows measureSoak(kit::Library const& library, Effort effort)
{
    bool const full = effort == Effort::Full;
    Rows rows;
    {
        ShownButton button(library);
        rows.push_back(soak(" paints", full ? 100000 : 100, [&](int) { button.control().DrawButton(); }));
    }
    CrowdedForm form(library);
    rows.push_back(soak(" lives with a hover", full ? 10000 : 20, [&](int round) { liveOnce(form, round); }));
    {
        ShownImageButton button(library, kImageKinds[0], kit::newIconPicture().get());
        rows.push_back(
            soak(" paints with an icon", full ? 100000 : 100, [&](int) { button.control().DrawButton(); }));
    }
    kit::HostWindow const window{40, 40, 200, 100};
    Frame frame{window.handle()};
    rows.push_back(soak(" lives with a picture", full ? 10000 : 20,
                        [&](int round) { livePictured(library, window, frame, round); }));
    return rows;
}

} // namespace quillet::bench
