// Buttons of the system's own class in a form.
#include "bench/SystemButtons.h"

#include "bench/CrowdedForm.h"

namespace quillet::bench {

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
