// An image command button or a tool button in a form, and the saved properties of both as the tests expect
// them.
#pragma once

#include "base/Variant.h"
#include "kit/ByName.h"
#include "kit/CommandButton.h"
#include "kit/FakeBag.h"

#include <string>
#include <vector>

namespace quillet::image {

using kit::formFont;
using kit::kPaint;
using kit::kPlace;
using kit::kPlaceBelow;
using kit::Names;
using testing::AnyOf;
using testing::ElementsAreArray;
using testing::IsEmpty;

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

/// Twips of one pixel of the screen, across; it has as many down.
double twipsPerPixel();

/// The interfaces of the two classes have the same vtable: one pointer reaches both.
class ImageButton : public kit::CommandButton<_qvImageCommand> {
public:
    ImageButton(kit::Library const& library, kit::FakeForm& form, Kind const& kind,
                RECT const& place = kPlace, std::wstring const& name = L"Button1");

    /// How often the extender was told another width.
    int widths() { return form().record().countFrom("Extender.Width = "); }

    using Hosted::load;
    /// Loads what an empty bag says and shows it: subclassed, without caption.
    void load() { start(*kit::make<kit::FakeBag>().get()); }

    bool isChecked() const;
    void makeCheckButton() { EXPECT_EQ(dual()->put_CheckButton(VARIANT_TRUE), S_OK); }
    /// The same, and checked.
    void check();
    ComPtr<IFont> checkedFont() const;
    void setCheckedFont(IFont* font);
};

/// What assigning a property does besides storing and telling; what measures repaints, too.
enum Effect { kNothing = 0, kRepaints = 1, kMeasures = 3 };

/// A saved property: its name, its defaults, a value that is neither, and the effect of its setter.
struct SavedRow {
    wchar_t const* name;
    VARTYPE type;         ///< in a bag; VT_UNKNOWN stands for an object
    Variant imageDefault; ///< empty for objects
    Variant toolDefault;
    Variant other; ///< empty for objects and flags
    Effect effect;

    Variant const& defaultOf(Kind const& kind) const { return kind.isTool ? toolDefault : imageDefault; }
    Variant otherThanDefault(Kind const& kind) const
    {
        return type == VT_BOOL ? Variant::ofBool(!defaultOf(kind).toBool()) : other;
    }
};

/// All of them in the order of reading and writing; those that are no objects; the names of all.
std::vector<SavedRow> const& savedRows();
std::vector<SavedRow> savedValues();
std::vector<std::wstring> savedNames();

/// A value as the member gives it, as text: colours are numbers.
std::string valueOf(ImageButton const& button, wchar_t const* name);
/// Every saved property and ToolTipText as "Name = value".
std::vector<std::string> stateOf(ImageButton const& button);

/// Every test runs for both classes.
class ImageTest : public kit::ControlTest, public testing::WithParamInterface<Kind const*> {
protected:
    static Kind const& kind() { return *GetParam(); }
    kit::FakeForm form;
};

/// With a button that has nothing but its site.
class SitedTest : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};
    SitedTest() { EXPECT_EQ(button.setSite(), S_OK); }
};

/// With a button that was loaded and is shown.
class LoadedTest : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};
    LoadedTest() { button.load(); }
};

#define QV_BOTH_CLASSES(Suite)                                                                               \
    INSTANTIATE_TEST_SUITE_P(Of, Suite, testing::Values(&imageCommand(), &toolButton()),                     \
                             [](auto const& tested) { return std::string(tested.param->name); })

} // namespace quillet::image
