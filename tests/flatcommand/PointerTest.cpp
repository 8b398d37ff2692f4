// The mouse pointer that shows over qvFlatCommand.
#include "FlatButton.h"
#include "kit/Fonts.h"

namespace quillet::flat {
namespace {

class FlatPointer : public FlatTest {
protected:
    kit::FakeForm form;
    ShownButton button{library(), form};

    /// The pointer after the window was asked for one.
    HCURSOR shown()
    {
        ::SetCursor(nullptr);
        ::SendMessageW(button.window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(button.window()),
                       MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    }
    static HCURSOR system(LPCWSTR name) { return ::LoadCursorW(nullptr, name); }
};

TEST_F(FlatPointer, isTheArrowAtFirst) { EXPECT_EQ(shown(), system(reinterpret_cast<LPCWSTR>(IDC_ARROW))); }

TEST_F(FlatPointer, isTheSystemsOfThatNumber)
{
    auto const pointers = {IDC_ARROW,    IDC_ARROW,       IDC_CROSS,    IDC_IBEAM,  IDC_ARROW,   IDC_SIZEALL,
                           IDC_SIZENESW, IDC_SIZENS,      IDC_SIZENWSE, IDC_SIZEWE, IDC_UPARROW, IDC_WAIT,
                           IDC_NO,       IDC_APPSTARTING, IDC_HELP,     IDC_SIZEALL};
    for (SHORT number = 0; auto const identifier : pointers) {
        EXPECT_EQ(button->put_MousePointer(number), S_OK);
        EXPECT_EQ(shown(), system(reinterpret_cast<LPCWSTR>(identifier))) << number;
        ++number;
    }
}

TEST_F(FlatPointer, isTheArrowForNumbersThatNameNone)
{
    for (SHORT const number : std::initializer_list<SHORT>{-1, 16, 98, 32767}) {
        EXPECT_EQ(button->put_MousePointer(number), S_OK);
        EXPECT_EQ(shown(), system(reinterpret_cast<LPCWSTR>(IDC_ARROW))) << number;
    }
}

TEST_F(FlatPointer, isTheMouseIconForNumber99AndOnlyThen)
{
    auto const icon = kit::newIconPicture();
    EXPECT_EQ(button->putref_MouseIcon(icon.get()), S_OK);
    EXPECT_EQ(shown(), system(reinterpret_cast<LPCWSTR>(IDC_ARROW)));
    EXPECT_EQ(button->put_MousePointer(99), S_OK);
    OLE_HANDLE handle = 0;
    query<IPicture>(icon.get())->get_Handle(&handle);
    EXPECT_EQ(shown(), reinterpret_cast<HCURSOR>(static_cast<LONG_PTR>(static_cast<LONG>(handle))));
    EXPECT_EQ(button->putref_MouseIcon(nullptr), S_OK);
    EXPECT_EQ(shown(), system(reinterpret_cast<LPCWSTR>(IDC_ARROW)));
}

} // namespace
} // namespace quillet::flat
