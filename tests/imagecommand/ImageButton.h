// An image command button or a tool button in a form, with everybody who listens to it.
#pragma once

#include "kit/ControlTest.h"
#include "kit/FakeBag.h"
#include "kit/Hosted.h"
#include "kit/Listener.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace quillet::image {

using kit::Names;

constexpr DISPID kPaint = eventid::command::Paint;

constexpr RECT kPlace{20, 30, 140, 70};

/// The two classes: what a test has to know of each.
struct Kind {
    char const* name;
    CLSID classId;
    IID interfaceId;
    IID eventsId;
    bool isTool;
};
Kind const& imageCommand();
Kind const& toolButton();

/// The font that the form offers.
ComPtr<IFont> formFont();

/// Twips of one pixel of the screen, across; it has as many down.
double twipsPerPixel();

/// A button whose events and changed properties are recorded from the beginning. Nothing has happened to it
/// yet. The interfaces of the two classes have the same vtable: one pointer reaches both.
class ImageButton : public kit::Hosted, public kit::Listener {
public:
    ImageButton(kit::Library const& library, kit::FakeForm& form, Kind const& kind,
                RECT const& place = kPlace, std::wstring const& name = L"Button1");
    ~ImageButton() { remove(); }

    _qvImageCommand* operator->() const noexcept { return m_button.get(); }
    _qvImageCommand* dual() const noexcept { return m_button.get(); }
    int paints() const { return count("Paint"); }
    /// How often the extender was told another width.
    int widths() { return form().record().countFrom("Extender.Width = "); }
    void forget();
    void remove();

    /// Loads what the bag says (an empty one when there is none) and shows it: subclassed, without caption.
    void load();
    void setUserMode(bool running);

    std::wstring caption() const;
    void setCaption(wchar_t const* text);
    ComPtr<IFont> font() const;
    bool isChecked() const;
    void makeCheckButton();

    SIZE size() const;
    /// Moves the cursor onto the button and repaints it.
    void makeHot();
    /// The same with the left mouse button held down; the button has the focus then.
    void makePressed();
    /// Lets the mouse button go and takes the cursor away.
    void leave();
    /// A repaint by the button's own routine, as a setter without any other effect makes it.
    void repaint();

private:
    ComPtr<_qvImageCommand> m_button;
    bool m_pressed = false;
};

/// Every test runs for both classes.
class ImageTest : public kit::ControlTest, public testing::WithParamInterface<Kind const*> {
protected:
    static Kind const& kind() { return *GetParam(); }
    kit::FakeForm form;
};

#define QV_BOTH_CLASSES(Suite)                                                                               \
    INSTANTIATE_TEST_SUITE_P(Of, Suite, testing::Values(&imageCommand(), &toolButton()),                     \
                             [](auto const& tested) { return std::string(tested.param->name); })

} // namespace quillet::image
