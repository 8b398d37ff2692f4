// Which pictures the four picture properties take, and how they refuse the others.
#include "ImageButton.h"
#include "Pictures.h"
#include "kit/Errors.h"
#include "kit/ModalDialog.h"

#include <optional>

namespace quillet::image {
namespace {

using Get = HRESULT (STDMETHODCALLTYPE _qvImageCommand::*)(IPictureDisp**);
using Put = HRESULT (STDMETHODCALLTYPE _qvImageCommand::*)(IPictureDisp*);

struct PictureRow {
    wchar_t const* name;
    Get get;
    Put put;
    wchar_t const* refusal;
};

using B = _qvImageCommand;
PictureRow const kRows[] = {
    {L"Image", &B::get_Image, &B::putref_Image,
     L"Only icons and bitmaps may be assigned to the Image property."},
    {L"DisabledImage", &B::get_DisabledImage, &B::putref_DisabledImage,
     L"Only icons may be assigned to the DisabledImage property."},
    {L"HotImage", &B::get_HotImage, &B::putref_HotImage,
     L"Only icons may be assigned to the HotImage property."},
    {L"PressedImage", &B::get_PressedImage, &B::putref_PressedImage,
     L"Only icons may be assigned to the PressedImage property."},
};

/// What a message box said.
struct Said {
    std::wstring text;
    bool exclamation = false;
    bool onlyOk = false;
};

constexpr WORD kBoxIcon = 20; // the dialog's item with the icon, and the text beside it
constexpr WORD kBoxText = 0xFFFF;

/// Reads the message box that opens while it lives, and closes it.
class BoxReader {
public:
    std::optional<Said> const& said() const { return m_said; }

private:
    static bool showsExclamation(HWND box)
    {
        auto const exclamation = ::LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_EXCLAMATION));
        if (auto const icon = ::SendDlgItemMessageW(box, kBoxIcon, STM_GETICON, 0, 0))
            return reinterpret_cast<HICON>(icon) == exclamation;
        bool shows = false; // some systems number it like the text
        for (HWND item = ::GetWindow(box, GW_CHILD); item; item = ::GetWindow(item, GW_HWNDNEXT))
            if (auto const own = ::SendMessageW(item, STM_GETICON, 0, 0))
                shows = reinterpret_cast<HICON>(own) == exclamation;
        return shows;
    }
    void read(HWND box)
    {
        if (m_said)
            return;
        wchar_t text[200]{};
        ::GetDlgItemTextW(box, kBoxText, text, 200);
        bool const onlyOk =
            ::GetDlgItem(box, IDOK) && !::GetDlgItem(box, IDCANCEL) && !::GetDlgItem(box, IDNO);
        m_said = Said{text, showsExclamation(box), onlyOk};
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        ::EndDialog(box, IDOK);
    }

    std::optional<Said> m_said;
    kit::DialogWatch m_watch{[this](HWND dialog) { read(dialog); }};
};

class ImagePictureSetters : public LoadedTest {
protected:
    ImagePictureSetters() { button.forget(); }
    ComPtr<IPictureDisp> stored(PictureRow const& row)
    {
        ComPtr<IPictureDisp> picture;
        EXPECT_EQ((button.dual()->*row.get)(picture.put()), S_OK);
        return picture;
    }
    HRESULT assign(PictureRow const& row, IPictureDisp* picture)
    {
        return (button.dual()->*row.put)(picture);
    }
    void setStored(PictureRow const& row, IPictureDisp* picture)
    {
        SCOPED_TRACE(kit::narrow(row.name));
        ASSERT_EQ(assign(row, picture), S_OK);
        EXPECT_EQ(stored(row).get(), picture);
        button.forget();
    }
    void expectNothingHappened()
    {
        EXPECT_THAT(button.changes().take(), IsEmpty());
        EXPECT_EQ(button.paints(), 0);
    }
};
QV_BOTH_CLASSES(ImagePictureSetters);

TEST_P(ImagePictureSetters, takeBitmapsAndIconsAndKeepTheVeryObject)
{
    for (PictureRow const& row : kRows)
        for (auto const& picture : {pictureOf(kImage), kit::newIconPicture()})
            setStored(row, picture.get());
}

TEST_P(ImagePictureSetters, refuseOthersWithError481InUserModeAndKeepWhatTheyHad)
{
    for (PictureRow const& row : kRows) {
        auto const before = pictureOf(kImage);
        setStored(row, before.get());
        for (auto const& refused :
             {emptyPicture(), unloadedPicture(), metafilePicture(), ComPtr<IPictureDisp>()}) {
            EXPECT_EQ(assign(row, refused.get()), kInvalidPicture) << kit::narrow(row.name);
            EXPECT_EQ(stored(row).get(), before.get()) << kit::narrow(row.name);
        }
        expectNothingHappened();
    }
}

TEST_P(ImagePictureSetters, sayInvalidPictureToScripts)
{
    kit::Called const put = kit::setByName(*button.dual(), L"Image", emptyPicture().get());
    EXPECT_EQ(put.result, DISP_E_EXCEPTION);
    EXPECT_EQ(put.code, kInvalidPicture);
    EXPECT_EQ(put.description, L"Invalid picture");
}

TEST_P(ImagePictureSetters, refuseWhatIsNoPictureAtAll)
{
    EXPECT_TRUE(FAILED(kit::setByName(*button.dual(), L"Image", kit::newFont(L"Tahoma", 9).get()).result));
    auto const bag = kit::make<kit::FakeBag>();
    bag->put(L"Image", Variant::ofUnknown(kit::newFont(L"Tahoma", 9).get()));
    EXPECT_EQ(button.load(*bag.get()), kTypeMismatch);
}

TEST_P(ImagePictureSetters, atDesignTimeTellTheDesignerAndKeepWhatTheyHad)
{
    for (PictureRow const& row : kRows)
        for (auto const& refused : {metafilePicture(), emptyPicture()}) {
            auto const before = pictureOf(kImage);
            setStored(row, before.get());
            button.setUserMode(false);
            button.forget();
            BoxReader box;
            EXPECT_EQ(assign(row, refused.get()), S_OK) << kit::narrow(row.name);
            ASSERT_TRUE(box.said()) << kit::narrow(row.name);
            EXPECT_EQ(box.said()->text, row.refusal);
            EXPECT_TRUE(box.said()->exclamation);
            EXPECT_TRUE(box.said()->onlyOk);
            EXPECT_EQ(stored(row).get(), before.get()) << kit::narrow(row.name);
            expectNothingHappened();
            button.setUserMode(true);
        }
}

TEST_P(ImagePictureSetters, tellTheUserInsteadOfTheProgramWhileActiveIsFalse)
{
    ASSERT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    BoxReader box;
    EXPECT_EQ(assign(kRows[2], emptyPicture().get()), S_OK);
    ASSERT_TRUE(box.said());
    EXPECT_EQ(box.said()->text, kRows[2].refusal);
}

} // namespace
} // namespace quillet::image
