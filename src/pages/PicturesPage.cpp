// The pictures page: a preview, another picture from a file, none.
#include "browse/PageIds.h"
#include "pages/CommonDialogs.h"
#include "pages/ListPage.h"
#include "pages/PageClass.h"

#include <olectl.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace quillet {

namespace {

constexpr WORD kClear = 110;
constexpr wchar_t kFilter[] = L"Pictures\0*.bmp;*.gif;*.jpg;*.ico;*.cur;*.wmf;*.emf\0All files\0*.*\0";

/// A button refuses an empty picture for any of its images, so these can be exchanged but not taken away.
bool canBeCleared(std::wstring_view property) noexcept { return !property.ends_with(L"Image"); }

class PicturesPage final : public ListPage {
public:
    PicturesPage() noexcept : ListPage(L"Pictures", ValueKind::Picture) {}

protected:
    void fillBeside(PageWindow& window) override;
    void showValue() override;
    void choose() override;
    void onOtherCommand(WORD control, WORD notification) override;
    void drawSample(HDC dc, RECT const& place) override;
};

void PicturesPage::fillBeside(PageWindow& window)
{
    addSample(window, {kBeside, 4, 134, 80});
    addChooser(window, L"&Load...");
    window.add(L"BUTTON", L"Cl&ear", WS_TABSTOP | BS_PUSHBUTTON, kClear, {kBeside + 64, 90, 60, 14});
}

void PicturesPage::showValue()
{
    if (!properties().empty())
        ::EnableWindow(window().control(kClear), canBeCleared(properties()[chosen()].name));
}

void PicturesPage::onOtherCommand(WORD control, WORD notification)
{
    if (control == kClear && notification == BN_CLICKED)
        changeChosen(Variant::ofDispatch(nullptr));
}

void PicturesPage::choose()
{
    wchar_t path[MAX_PATH] = L"";
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = dialogOwner();
    dialog.lpstrFilter = kFilter;
    dialog.lpstrFile = path;
    dialog.nMaxFile = MAX_PATH;
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!chooseFile(dialog))
        return;
    ComPtr<IPictureDisp> picture;
    if (FAILED(::OleLoadPicturePath(path, nullptr, 0, 0, IID_IPictureDisp,
                                    reinterpret_cast<void**>(picture.put())))) {
        ::MessageBoxW(dialog.hwndOwner, (std::wstring(path) + L" is not a picture that can be used.").c_str(),
                      L"Pictures", MB_OK | MB_ICONEXCLAMATION);
        return;
    }
    changeChosen(Variant::ofDispatch(picture.get()));
}

/// Draws the whole picture, as large as it fits.
void PicturesPage::drawSample(HDC dc, RECT const& place)
{
    auto const picture = query<IPicture>(shown(chosen()).toObject().get());
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    if (!picture || FAILED(picture->get_Width(&width)) || FAILED(picture->get_Height(&height)) ||
        width <= 0 || height <= 0)
        return;
    LONG const spaceX = place.right - place.left;
    LONG const spaceY = place.bottom - place.top;
    LONG const shownX = std::min<LONG>(spaceX, ::MulDiv(spaceY, width, height));
    LONG const shownY = std::min<LONG>(spaceY, ::MulDiv(spaceX, height, width));
    // Pictures have their origin at the bottom.
    picture->Render(dc, place.left + (spaceX - shownX) / 2, place.top + (spaceY - shownY) / 2, shownX, shownY,
                    0, height, width, -height, nullptr);
}

} // namespace

constinit PageClass const kPicturesPage = {kPicturesPageClass, &createPage<PicturesPage>,
                                           L"Quillet pictures property page"};

} // namespace quillet
