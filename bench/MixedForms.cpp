// A form of a hundred mixed controls, ours and the system's: what a user does to either.
#include "bench/MixedForms.h"

#include "base/RunTimeError.h"
#include "typelib/Guids.h"

namespace quillet::bench {

namespace {

CLSID const* const kClasses[] = {&kQvFlatCommandClass, &kQvImageCommandClass, &kFlatToolButtonClass,
                                 &kQvFlatOptionClass, &kQvFlatCheckClass};

constexpr DWORD kSystemStyles[] = {BS_PUSHBUTTON, BS_PUSHBUTTON, BS_PUSHBUTTON, BS_AUTORADIOBUTTON,
                                   BS_AUTOCHECKBOX};

} // namespace

OurMixedForm::OurMixedForm(kit::Library const& library)
{
    for (size_t i = 0; i < m_factories.size(); ++i)
        m_factories[i] = library.factory(*kClasses[i]);
}

void OurMixedForm::fill()
{
    for (int i = 0; i < kControls; ++i) {
        IClassFactory& factory = deref(m_factories[static_cast<size_t>(i) % m_factories.size()].get());
        m_controls.push_back(std::make_unique<Hosted>(factory, m_saved, m_frame, window(), kPlaces.at(i)));
        m_siblings.add(m_controls.back()->as<IUnknown>());
    }
}

void OurMixedForm::empty()
{
    m_siblings.clear();
    m_controls.clear();
}

void OurMixedForm::place(int index, RECT const& at)
{
    check(m_controls[static_cast<size_t>(index)]->as<IOleInPlaceObject>()->SetObjectRects(&at, &at));
}

/// Option and check boxes pass the keyboard on to the button inside them.
HWND OurMixedForm::focusWindow(int index) const
{
    HWND window = nullptr;
    check(m_controls[static_cast<size_t>(index)]->as<IOleWindow>()->GetWindow(&window));
    HWND const inner = ::GetWindow(window, GW_CHILD);
    return inner ? inner : window;
}

void SystemMixedForm::fill()
{
    for (int i = 0; i < kControls; ++i) {
        RECT const at = kPlaces.at(i);
        DWORD const style = kSystemStyles[static_cast<size_t>(i) % std::size(kSystemStyles)];
        m_controls.emplace_back(
            ::CreateWindowExW(0, L"BUTTON", kCaption, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, at.left,
                              at.top, kPlaces.size.cx, kPlaces.size.cy, window(), nullptr, nullptr, nullptr));
        ::SendMessageW(m_controls.back().get(), WM_SETFONT,
                       reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    }
}

void SystemMixedForm::place(int index, RECT const& at)
{
    ::SetWindowPos(focusWindow(index), nullptr, at.left, at.top, at.right - at.left, at.bottom - at.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace quillet::bench
