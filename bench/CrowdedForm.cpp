// A visible window with as many flat command buttons as are asked for, or of the system's.
#include "bench/CrowdedForm.h"

#include "base/RunTimeError.h"
#include "bench/ShownButton.h"
#include "typelib/Guids.h"

namespace quillet::bench {

CrowdedForm::CrowdedForm(kit::Library const& library, Places const& places, int buttons)
    : m_places(places), m_factory(library.factory(kQvFlatCommandClass))
{
    add(buttons);
}

void CrowdedForm::add(int buttons)
{
    m_buttons.reserve(m_buttons.size() + static_cast<std::size_t>(buttons));
    for (int i = 0; i < buttons; ++i)
        m_buttons.push_back(std::make_unique<Hosted>(deref(m_factory.get()), m_saved, m_frame, window(),
                                                     m_places.at(static_cast<int>(m_buttons.size()))));
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
    return {windowOf(index), m_places.size, fontOf(deref(button.get())), "Save changes"};
}

SystemButtons::SystemButtons(HWND form, Places const& places, int count) : m_form(form), m_places(places)
{
    add(count);
}

void SystemButtons::add(int count)
{
    m_windows.reserve(m_windows.size() + static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        RECT const place = m_places.at(static_cast<int>(m_windows.size()));
        m_windows.emplace_back(::CreateWindowExW(0, L"BUTTON", kCaption, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                                 place.left, place.top, m_places.size.cx, m_places.size.cy,
                                                 m_form, nullptr, nullptr, nullptr));
        ::SendMessageW(m_windows.back().get(), WM_SETFONT,
                       reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    }
}

} // namespace quillet::bench
