// A visible window with as many flat command buttons as are asked for, or of the system's.
#include "bench/CrowdedForm.h"

#include "base/RunTimeError.h"
#include "bench/ShownButton.h"
#include "typelib/Guids.h"

namespace quillet::bench {

CrowdedForm::CrowdedForm(kit::Library const& library, int buttons)
    : m_factory(library.factory(kQvFlatCommandClass))
{
    add(buttons);
}

void CrowdedForm::add(int buttons)
{
    m_buttons.reserve(m_buttons.size() + static_cast<std::size_t>(buttons));
    for (int i = 0; i < buttons; ++i)
        m_buttons.push_back(std::make_unique<Hosted>(deref(m_factory.get()), m_saved, m_frame, window(),
                                                     placeOf(static_cast<int>(m_buttons.size()))));
}

void CrowdedForm::joinAsSiblings()
{
    for (auto const& button : m_buttons)
        m_siblings.add(button->as<IUnknown>());
}

HWND CrowdedForm::windowOf(int index) const
{
    HWND window = nullptr;
    check(m_buttons.at(static_cast<std::size_t>(index))->as<IOleWindow>()->GetWindow(&window));
    return window;
}

BarePainter CrowdedForm::barePainterOf(int index) const
{
    auto const button = m_buttons.at(static_cast<std::size_t>(index))->as<_qvFlatCommand>();
    return {windowOf(index), kButton, fontOf(deref(button.get())), "Save changes"};
}

RECT CrowdedForm::placeOf(int index)
{
    int const columns = kForm.cx / kButton.cx;
    LONG const left = index % columns * kButton.cx;
    LONG const top = index / columns * kButton.cy;
    return {left, top, left + kButton.cx, top + kButton.cy};
}

SystemButtons::SystemButtons(HWND form, int count) : m_form(form) { add(count); }

void SystemButtons::add(int count)
{
    m_windows.reserve(m_windows.size() + static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        RECT const place = CrowdedForm::placeOf(static_cast<int>(m_windows.size()));
        m_windows.emplace_back(::CreateWindowExW(0, L"BUTTON", kCaption, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                                 place.left, place.top, CrowdedForm::kButton.cx,
                                                 CrowdedForm::kButton.cy, m_form, nullptr, nullptr, nullptr));
        ::SendMessageW(m_windows.back().get(), WM_SETFONT,
                       reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    }
}

} // namespace quillet::bench
