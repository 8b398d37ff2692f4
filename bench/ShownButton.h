// A flat command button in a visible window, brought into each look as a user brings it there.
#pragma once

#include "bench/BarePainter.h"
#include "bench/Container.h"
#include "kit/Canvas.h"
#include "kit/HostWindow.h"
#include "kit/Library.h"
#include "typelib/Interfaces.h"

#include <windows.h>

namespace quillet::bench {

enum class Look { Normal, Hot, Pressed, Disabled };

class ShownButton {
public:
    static constexpr RECT kPlace{20, 20, 140, 52};
    static constexpr SIZE kSize{kPlace.right - kPlace.left, kPlace.bottom - kPlace.top};
    static constexpr POINT kMiddle{kSize.cx / 2, kSize.cy / 2};

    explicit ShownButton(kit::Library const& library);

    _qvFlatCommand& control() const noexcept { return *m_button.get(); }
    HWND window() const noexcept { return m_buttonWindow; }

    /// With the real mouse; press gives the button the focus, and leave takes it away again.
    void enter(Look look);
    void leave(Look look);

    /// Paints the same picture with bare GDI calls.
    BarePainter barePainter() const;
    /// What of the button's properties and of its focus such a picture needs.
    BareLook bareLook(Look look) const;

    void show(kit::Canvas& canvas) const;

private:
    kit::HostWindow m_window{40, 40, 200, 100};
    Frame m_frame{m_window.handle()};
    SavedButton m_saved;
    ComPtr<IClassFactory> m_factory;
    Hosted m_hosted;
    ComPtr<_qvFlatCommand> m_button;
    HWND m_buttonWindow = nullptr;
};

} // namespace quillet::bench
