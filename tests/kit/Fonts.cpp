// Standard font and picture objects for tests to hand out.
#include "kit/Fonts.h"

#include "base/Bstr.h"
#include "base/Handles.h"
#include "base/RunTimeError.h"

namespace quillet::kit {

namespace {

constexpr LONGLONG kPoint = 10000; // a currency counts ten-thousandths

} // namespace

ComPtr<IFont> newFont(wchar_t const* name, int points, bool bold)
{
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<wchar_t*>(name);
    description.cySize.int64 = points * kPoint;
    description.sWeight = bold ? FW_BOLD : FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    ComPtr<IFont> font;
    check(::OleCreateFontIndirect(&description, IID_IFont, reinterpret_cast<void**>(font.put())));
    return font;
}

ComPtr<IFont> copyOf(IFont& font, bool underlined)
{
    ComPtr<IFont> copy;
    check(font.Clone(copy.put()));
    check(copy->put_Underline(underlined));
    return copy;
}

std::wstring nameOf(IFont& font)
{
    Bstr name;
    check(font.get_Name(name.put()));
    return std::wstring(name.view());
}

int pointsOf(IFont& font)
{
    CY size{};
    check(font.get_Size(&size));
    return static_cast<int>((size.int64 + kPoint / 2) / kPoint);
}

bool isUnderlined(IFont& font)
{
    BOOL underlined = FALSE;
    check(font.get_Underline(&underlined));
    return underlined != FALSE;
}

HFONT handleOf(IFont& font)
{
    HFONT handle = nullptr;
    check(font.get_hFont(&handle));
    return handle;
}

bool equalFonts(IFont& a, IFont& b)
{
    handleOf(a);
    handleOf(b);
    return a.IsEqual(&b) == S_OK;
}

ComPtr<IPictureDisp> newPicture(PICTDESC description)
{
    description.cbSizeofstruct = sizeof description;
    ComPtr<IPictureDisp> picture;
    check(::OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE,
                                     reinterpret_cast<void**>(picture.put())));
    return picture;
}

ComPtr<IPictureDisp> newBitmapPicture(int width, int height, COLORREF color)
{
    WindowDc const screen(nullptr);
    UniqueMemoryDc const dc(::CreateCompatibleDC(screen.get()));
    UniqueBitmap bitmap(::CreateCompatibleBitmap(screen.get(), width, height));
    {
        SelectScope const selected(dc.get(), bitmap.get());
        UniqueBrush const brush(::CreateSolidBrush(color));
        RECT const all{0, 0, width, height};
        ::FillRect(dc.get(), &all, brush.get());
    }
    PICTDESC description{};
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = bitmap.release(); // the picture owns it
    return newPicture(description);
}

ComPtr<IPictureDisp> newIconPicture()
{
    PICTDESC description{};
    description.picType = PICTYPE_ICON;
    description.icon.hicon = ::CopyIcon(::LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_WARNING)));
    return newPicture(description);
}

} // namespace quillet::kit
