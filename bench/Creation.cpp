// Buttons created, loaded, activated and destroyed by the thousand, against as many of the system's.
#include "base/Handles.h"
#include "bench/CrowdedForm.h"
#include "bench/Rounds.h"
#include "kit/Pump.h"

#include <vector>

namespace quillet::bench {

namespace {

void ours(CrowdedForm& form, int count)
{
    form.add(count);
    form.clear();
}

void systems(HWND form, int count)
{
    std::vector<UniqueWindow> buttons;
    buttons.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        RECT const place = CrowdedForm::placeOf(i);
        buttons.emplace_back(::CreateWindowExW(0, L"BUTTON", kCaption, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                               place.left, place.top, CrowdedForm::kButton.cx,
                                               CrowdedForm::kButton.cy, form, nullptr, nullptr, nullptr));
        ::SendMessageW(buttons.back().get(), WM_SETFONT,
                       reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    }
}

} // namespace

Rows measureCreation(kit::Library const& library, Effort effort)
{
    struct Size {
        int buttons;
        int rounds;
    };
    std::vector<Size> const full = {{10, 51}, {100, 11}, {1000, 5}, {5000, 1}};
    std::vector<Size> const smoke = {{10, 3}};
    CrowdedForm form(library);
    Rows rows;
    for (Size const& size : effort == Effort::Full ? full : smoke) {
        Comparison comparison = compare(
            size.rounds, 1, [&] { ours(form, size.buttons); }, [&] { systems(form.window(), size.buttons); },
            &kit::pumpPending);
        comparison.ours /= size.buttons;
        comparison.floor /= size.buttons;
        rows.push_back(
            rowOf("one of " + std::to_string(size.buttons) + " buttons in a window", comparison, "–"));
    }
    return rows;
}

} // namespace quillet::bench
