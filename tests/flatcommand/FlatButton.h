// A qvFlatCommand in a form, with everybody who listens to it.
#pragma once

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

} // namespace quillet::flat
