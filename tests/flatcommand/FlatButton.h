// A qvFlatCommand in a form, compared with the picture that it must show, and its saved properties as the
// tests expect them.
#pragma once

#include "Look.h"
#include "base/Variant.h"
#include "kit/ByName.h"
#include "kit/CommandButton.h"

#include <string>
#include <vector>

namespace quillet::flat {

using kit::formFont;
using kit::kPaint;
using kit::kPlace;
using kit::kPlaceBelow;
using testing::AnyOf;
using testing::ElementsAreArray;
using testing::IsEmpty;
namespace id = dispid::qvFlatCommand;

/// One saved property.
struct SavedRow {
    wchar_t const* name;
    std::string initial; ///< as text; empty for objects
    Variant other;       ///< a value that is not the default, in the type of a bag; empty for objects

    bool isObject() const { return other.type() == VT_EMPTY; }
};

class FlatButton : public kit::CommandButton<_qvFlatCommand> {
public:
    FlatButton(kit::Library const& library, kit::FakeForm& form, RECT const& place = kPlace,
               std::wstring const& name = L"Button1");

    ComPtr<IPictureDisp> mouseIcon() const;
    /// Gives a property its other value, or another object; and all of them.
    void assign(SavedRow const& row);
    void assignAll();
};

/// All of them in the order of reading and writing; those that are no objects; the names of all.
std::vector<SavedRow> const& savedRows();
std::vector<SavedRow> savedValues();
std::vector<std::wstring> savedNames();

/// Every saved property and ToolTipText as "Name = value".
std::vector<std::string> stateOf(FlatButton const& button);

/// Colours that no scheme has.
inline constexpr COLORREF kFore = RGB(10, 20, 30);
inline constexpr COLORREF kBack = RGB(40, 50, 60);
inline constexpr COLORREF kBorder = RGB(70, 80, 90);

/// Activated and painted, without a caption.
class ShownButton : public FlatButton {
public:
    ShownButton(kit::Library const& library, kit::FakeForm& form, RECT const& place = kPlace);

    /// Empty when the window shows the expected look; else the pixels that differ.
    std::string differencesFrom(Look const& look) const;

    /// Gives the normal look the colours above.
    void setColors();
    void setWidth(short width);
};

class FlatTest : public kit::ControlTest {
protected:
    kit::FakeForm form;
};

/// With a button that has its site and nothing else.
class SitedTest : public FlatTest {
protected:
    FlatButton button{library(), form};
    SitedTest() { EXPECT_EQ(button.setSite(), S_OK); }
};

class ShownTest : public FlatTest {
protected:
    ShownButton button{library(), form};
};

} // namespace quillet::flat
