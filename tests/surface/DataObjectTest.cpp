// IDataObject: the control as a picture for documents.
#include "SurfaceTest.h"
#include "kit/Canvas.h"
#include "kit/NotCopied.h"

#include <ole2.h>

namespace quillet::hosting {
namespace {

FORMATETC formatOf(CLIPFORMAT format, DWORD medium, DWORD aspect = DVASPECT_CONTENT)
{
    return {format, nullptr, aspect, -1, medium};
}

/// Owns what a data object handed out.
struct Medium : kit::NotCopied {
    STGMEDIUM value{};
    ~Medium()
    {
        if (value.tymed != TYMED_NULL)
            ::ReleaseStgMedium(&value);
    }
};

class Data : public SurfaceTest {
protected:
    ComPtr<IDataObject> data = as<IDataObject>();
    FORMATETC picture = formatOf(CF_METAFILEPICT, TYMED_MFPICT);

    void SetUp() override
    {
        SurfaceTest::SetUp();
        ASSERT_TRUE(data);
        control.start();
    }
};

TEST_F(Data, isAMetafileOfTheControlsLookAndExtent)
{
    EXPECT_EQ(button()->put_Caption(nullptr), S_OK);
    EXPECT_EQ(button()->put_BackColor(kBack), S_OK);
    EXPECT_EQ(button()->put_BorderColor(kBorder), S_OK);
    EXPECT_EQ(button()->put_BorderWidth(Variant::ofShort(10).get()), S_OK);
    Medium medium;
    ASSERT_EQ(data->GetData(&picture, &medium.value), S_OK);
    ASSERT_EQ(medium.value.tymed, static_cast<DWORD>(TYMED_MFPICT));
    auto const* const described = static_cast<METAFILEPICT*>(::GlobalLock(medium.value.hMetaFilePict));
    ASSERT_TRUE(described);
    SIZEL const extent = kit::himetricOf({120, 40});
    EXPECT_EQ(described->mm, MM_ANISOTROPIC);
    EXPECT_EQ(described->xExt, extent.cx);
    EXPECT_EQ(described->yExt, extent.cy);
    kit::Canvas played(120, 40, kPaper);
    ::SetMapMode(played.dc(), MM_ANISOTROPIC);
    ::SetViewportExtEx(played.dc(), 120, 40, nullptr);
    ::PlayMetaFile(played.dc(), described->hMF);
    ::GlobalUnlock(medium.value.hMetaFilePict);
    EXPECT_EQ(played.at(60, 20), kBack);
    EXPECT_EQ(played.at(5, 5), kBorder);
    EXPECT_EQ(played.at(115, 35), kBorder);
    EXPECT_EQ(played.at(60, 35), kBorder);
    EXPECT_EQ(played.count(kPaper), 0);
}

TEST_F(Data, saysWhichFormatItHas)
{
    EXPECT_EQ(data->QueryGetData(&picture), S_OK);
    FORMATETC text = formatOf(CF_UNICODETEXT, TYMED_HGLOBAL);
    EXPECT_TRUE(FAILED(data->QueryGetData(&text)));
    FORMATETC elsewhere = formatOf(CF_METAFILEPICT, TYMED_ISTREAM);
    EXPECT_TRUE(FAILED(data->QueryGetData(&elsewhere)));
    FORMATETC icon = formatOf(CF_METAFILEPICT, TYMED_MFPICT, DVASPECT_ICON);
    EXPECT_TRUE(FAILED(data->QueryGetData(&icon)));
    EXPECT_TRUE(FAILED(data->QueryGetData(nullptr)));
    Medium medium;
    EXPECT_TRUE(FAILED(data->GetData(&text, &medium.value)));
    EXPECT_TRUE(FAILED(data->GetData(&picture, nullptr)));
    EXPECT_TRUE(FAILED(data->GetData(nullptr, &medium.value)));
}

TEST_F(Data, enumeratesItsFormat)
{
    ComPtr<IEnumFORMATETC> formats;
    ASSERT_EQ(data->EnumFormatEtc(DATADIR_GET, formats.put()), S_OK);
    ASSERT_TRUE(formats);
    FORMATETC found{};
    ULONG count = 0;
    EXPECT_EQ(formats->Next(1, &found, &count), S_OK);
    EXPECT_EQ(found.cfFormat, CF_METAFILEPICT);
    EXPECT_EQ(found.tymed, static_cast<DWORD>(TYMED_MFPICT));
    EXPECT_EQ(formats->Next(1, &found, &count), S_FALSE);
    EXPECT_EQ(count, 0U);
}

TEST_F(Data, cannotBeSetNorWrittenIntoAnothersMedium)
{
    Medium medium;
    EXPECT_TRUE(FAILED(data->SetData(&picture, &medium.value, FALSE)));
    EXPECT_TRUE(FAILED(data->GetDataHere(&picture, &medium.value)));
}

TEST_F(Data, takesAnAdviseOrSaysThatItDoesNot)
{
    auto const sink = kit::make<kit::ViewRecorder>();
    DWORD cookie = 0;
    HRESULT const result = data->DAdvise(&picture, 0, sink.get(), &cookie);
    EXPECT_TRUE(result == S_OK || result == OLE_E_ADVISENOTSUPPORTED);
    if (result == S_OK) {
        EXPECT_EQ(data->DUnadvise(cookie), S_OK);
    }
    EXPECT_TRUE(FAILED(data->DUnadvise(4711)));
}

} // namespace
} // namespace quillet::hosting
