// A qvFlatCommand in a form, with everybody who listens to it, and compared with the picture that it must
// show.
#pragma once

#include "FlatButton.h"
#include "Look.h"
#include "kit/ControlTest.h"
#include "kit/Hosted.h"
#include "kit/Listener.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillet::flat {

namespace id = dispid::qvFlatCommand;
constexpr DISPID kPaint = eventid::command::Paint;

constexpr RECT kPlace{20, 30, 140, 70};

/// The font that the form offers, unless a test changes it.
ComPtr<IFont> formFont();

/// A button whose events and changed properties are recorded from the beginning. Nothing has happened to it
/// yet.
class FlatButton : public kit::Hosted, public kit::Listener {
public:
    FlatButton(kit::Library const& library, kit::FakeForm& form, RECT const& place = kPlace,
               std::wstring const& name = L"Button1");
    ~FlatButton() { remove(); }

    _qvFlatCommand* operator->() const noexcept { return m_button.get(); }
    _qvFlatCommand* dual() const noexcept { return m_button.get(); }
    void remove();

    std::wstring caption() const;
    void setCaption(wchar_t const* text);
    ComPtr<IFont> font() const;
    void setFont(IFont* font);

private:
    ComPtr<_qvFlatCommand> m_button;
};

/// Every saved property and ToolTipText as "Name = value": fonts and pictures by what can be told of them.
std::vector<std::string> stateOf(FlatButton const& button);

class FlatTest : public kit::ControlTest {};

/// Colours that no scheme has.
inline constexpr COLORREF kFore = RGB(10, 20, 30);
inline constexpr COLORREF kBack = RGB(40, 50, 60);
inline constexpr COLORREF kBorder = RGB(70, 80, 90);

/// Activated and painted, without a caption.
class ShownButton : public FlatButton {
public:
    ShownButton(kit::Library const& library, kit::FakeForm& form, RECT const& place = kPlace);

    SIZE size() const;
    /// What the window shows now.
    void read(kit::Canvas& canvas) const;
    /// Empty when the window shows the expected look; else the pixels that differ.
    std::string differencesFrom(Look const& look) const;
    /// The same for a picture as text, for buttons small enough.
    std::string picture(kit::Letters const& letters) const;

    /// Gives the normal look the colours above.
    void setColors();
    void setWidth(short width);

    /// Moves the cursor onto the button and repaints it.
    void makeHot();
    /// The same with the left mouse button held down; the button has the focus then.
    void makePressed();
    /// Lets the mouse button go and takes the cursor away.
    void leave();

private:
    bool m_pressed = false;
};

} // namespace quillet::flat
