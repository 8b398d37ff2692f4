// The pages in the system's own frame, which finds them by their classes.
#include "OpenPage.h"
#include "browse/PageIds.h"
#include "kit/FakeForm.h"
#include "kit/Hosted.h"

#include <array>

namespace quillet::pages {
namespace {

/// Makes a class known to this process alone.
class KnownClass {
public:
    KnownClass(kit::Library const& library, CLSID const& classId)
    {
        EXPECT_EQ(::CoRegisterClassObject(classId, library.factory(classId).get(), CLSCTX_INPROC_SERVER,
                                          REGCLS_MULTIPLEUSE, &m_cookie),
                  S_OK);
    }
    ~KnownClass() { ::CoRevokeClassObject(m_cookie); }
    KnownClass(KnownClass const&) = delete;
    KnownClass& operator=(KnownClass const&) = delete;

private:
    DWORD m_cookie = 0;
};

std::vector<std::wstring> s_titles;

/// Notes the titles of the frame's pages and closes it.
void CALLBACK lookAtFrame(HWND, UINT, UINT_PTR timer, DWORD)
{
    HWND const frame = ::FindWindowW(L"#32770", nullptr);
    HWND const tabs = frame ? ::FindWindowExW(frame, nullptr, L"SysTabControl32", nullptr) : nullptr;
    if (!tabs)
        return;
    ::KillTimer(nullptr, timer);
    for (int i = 0; i < static_cast<int>(::SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0)); ++i) {
        wchar_t title[64] = L"";
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = title;
        item.cchTextMax = 64;
        ::SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        s_titles.emplace_back(title);
    }
    ::PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
}

class Frame : public kit::ControlTest {};

TEST_F(Frame, ofTheSystemsShowsTheFourPagesWhenTheContainerHasNoneOfItsOwn)
{
    KnownClass const known[] = {{library(), kGeneralPageClass},
                                {library(), kColoursPageClass},
                                {library(), kFontsPageClass},
                                {library(), kPicturesPageClass}};
    kit::FakeForm form;
    form.record().answer("Site.ShowPropertyFrame", E_NOTIMPL);
    kit::Hosted control(library(), kQvFlatCommandClass, form, {20, 20, 140, 60});
    control.start();
    s_titles.clear();
    ::SetTimer(nullptr, 0, 20, &lookAtFrame);
    EXPECT_EQ(control.doVerb(OLEIVERB_PROPERTIES), S_OK);
    EXPECT_THAT(s_titles, testing::ElementsAre(L"General", L"Colors", L"Fonts", L"Pictures"));
}

} // namespace
} // namespace quillet::pages
