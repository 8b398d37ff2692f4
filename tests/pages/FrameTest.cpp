// The pages in the system's own frame, which finds them by their classes.
#include "OpenPage.h"
#include "browse/PageIds.h"
#include "kit/FakeForm.h"
#include "kit/Hosted.h"
#include "kit/ModalDialog.h"

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
    std::vector<std::wstring> titles;
    kit::DialogWatch const watch([&](HWND frame) {
        titles = kit::pageTitles(frame);
        ::PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(control.doVerb(OLEIVERB_PROPERTIES), S_OK);
    EXPECT_THAT(titles, testing::ElementsAre(L"General", L"Colors", L"Fonts", L"Pictures"));
}

} // namespace
} // namespace quillet::pages
