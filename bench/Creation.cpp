// Buttons created, loaded, activated and destroyed by the thousand, against as many of the system's.
#include "base/RunTimeError.h"
#include "bench/Container.h"
#include "bench/Rounds.h"
#include "kit/HostWindow.h"
#include "kit/Pump.h"
#include "typelib/Guids.h"

#include <memory>
#include <vector>

namespace quillet::bench {

namespace {

constexpr SIZE kForm{800, 600};
constexpr SIZE kButton{75, 23};

/// Places that fill the form row by row, again and again.
RECT placeOf(int index)
{
    int const columns = kForm.cx / kButton.cx;
    int const rows = kForm.cy / kButton.cy;
    LONG const left = index % columns * kButton.cx;
    LONG const top = index / columns % rows * kButton.cy;
    return {left, top, left + kButton.cx, top + kButton.cy};
}

class Form {
public:
    explicit Form(kit::Library const& library) : m_factory(library.factory(kQvFlatCommandClass)) {}

    void ours(int count)
    {
        std::vector<std::unique_ptr<Hosted>> buttons;
        buttons.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            buttons.push_back(std::make_unique<Hosted>(deref(m_factory.get()), m_saved, m_frame,
                                                       m_window.handle(), placeOf(i)));
    }

    void systems(int count)
    {
        std::vector<UniqueWindow> buttons;
        buttons.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            RECT const place = placeOf(i);
            buttons.emplace_back(::CreateWindowExW(0, L"BUTTON", kCaption, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                                   place.left, place.top, kButton.cx, kButton.cy,
                                                   m_window.handle(), nullptr, nullptr, nullptr));
            ::SendMessageW(buttons.back().get(), WM_SETFONT,
                           reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        }
    }

private:
    kit::HostWindow m_window{40, 40, kForm.cx, kForm.cy};
    Frame m_frame{m_window.handle()};
    SavedButton m_saved;
    ComPtr<IClassFactory> m_factory;
};

} // namespace

Rows measureCreation(kit::Library const& library, Effort effort)
{
    struct Size {
        int buttons;
        int rounds;
    };
    std::vector<Size> const full = {{10, 51}, {100, 11}, {1000, 5}, {5000, 1}};
    std::vector<Size> const smoke = {{10, 3}};
    Form form(library);
    Rows rows;
    for (Size const& size : effort == Effort::Full ? full : smoke) {
        Comparison comparison = compare(
            size.rounds, 1, [&] { form.ours(size.buttons); }, [&] { form.systems(size.buttons); },
            &kit::pumpPending);
        comparison.ours /= size.buttons;
        comparison.floor /= size.buttons;
        rows.push_back(
            rowOf("one of " + std::to_string(size.buttons) + " buttons in a window", comparison, "–"));
    }
    return rows;
}

} // namespace quillet::bench
