// Damaged pictures of every kind, loaded into a button that shows them.
#include "HostileTest.h"
#include "Life.h"
#include "Mutations.h"
#include "kit/Fonts.h"
#include "kit/Pump.h"

#include <cstdio>
#include <cstring>

namespace quillet::hostile {
namespace {

using kit::Bytes;

Bytes savedBytes(IUnknown* picture)
{
    auto const stream = kit::streamOf();
    EXPECT_EQ(query<IPersistStream>(picture)->Save(stream.get(), TRUE), S_OK);
    return kit::bytesOf(*stream.get());
}

Bytes savedBitmap(WORD depth)
{
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colours[256];
    } info = {};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = 9;
    info.header.biHeight = 5;
    info.header.biPlanes = 1;
    info.header.biBitCount = depth;
    void* bits = nullptr;
    PICTDESC description = {};
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap =
        ::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0);
    return savedBytes(kit::newPicture(description).get());
}

Bytes savedCursor()
{
    PICTDESC description = {};
    description.picType = PICTYPE_ICON;
    description.icon.hicon = ::CopyIcon(::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW)));
    return savedBytes(kit::newPicture(description).get());
}

/// One white pixel.
Bytes savedGif()
{
    return {'l', 't', 0, 0, 35, 0,   0, 0, 'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0,   0x80, 0, 0,  255,
            255, 255, 0, 0, 0,  ',', 0, 0, 0,   0,   1,   0,   1,   0,   0, 2, 2, 'D', 1,    0, ';'};
}

template <class T> void append(Bytes& bytes, T value)
{
    auto const* const first = reinterpret_cast<BYTE const*>(&value);
    bytes.insert(bytes.end(), first, first + sizeof value);
}

/// What a button saves that has nothing but an image.
Bytes formWith(Bytes const& picture)
{
    constexpr wchar_t kName[] = L"Image";
    Bytes body;
    append<WORD>(body, 5);
    body.insert(body.end(), reinterpret_cast<BYTE const*>(kName), reinterpret_cast<BYTE const*>(kName + 5));
    append<WORD>(body, VT_UNKNOWN);
    append<WORD>(body, 2); // a picture
    append(body, static_cast<DWORD>(picture.size()));
    body.insert(body.end(), picture.begin(), picture.end());
    Bytes form = {'Q', 'V', 'P', 'B', 1, 0, 1, 0};
    append(form, static_cast<DWORD>(body.size()));
    form.insert(form.end(), body.begin(), body.end());
    return form;
}

/// So that most damage lies behind the frame.
void putLengthRight(Bytes& picture)
{
    if (picture.size() < 8)
        return;
    auto const length = static_cast<DWORD>(picture.size() - 8);
    std::memcpy(picture.data(), "lt\0\0", 4);
    std::memcpy(picture.data() + 4, &length, sizeof length);
}

class HostilePicture : public HostileTest {
protected:
    /// A button that is shown, and what it does with a picture.
    struct Shown {
        Life life{kControls[1]};

        Shown()
        {
            life.begin();
            life.control.activate();
        }
        HRESULT load(Bytes const& picture)
        {
            HRESULT const result =
                life.as<IPersistStreamInit>()->Load(kit::streamOf(formWith(picture)).get());
            life.draw();
            return result;
        }
    };
};

TEST_F(HostilePicture, ofEveryKindIsTakenAsItWasSaved)
{
    Shown shown;
    EXPECT_EQ(shown.load(savedBytes(kit::newIconPicture().get())), S_OK);
    EXPECT_EQ(shown.load(savedCursor()), S_OK);
    EXPECT_EQ(shown.load(savedGif()), S_OK);
    for (WORD const depth : {WORD{1}, WORD{4}, WORD{8}, WORD{24}})
        EXPECT_EQ(shown.load(savedBitmap(depth)), S_OK) << depth;
}

TEST_F(HostilePicture, isTakenAndDrawnOrLeftOut)
{
    std::vector<Bytes> const pictures = {savedBytes(kit::newIconPicture().get()),
                                         savedCursor(),
                                         savedGif(),
                                         savedBitmap(1),
                                         savedBitmap(4),
                                         savedBitmap(8),
                                         savedBitmap(24)};
    Random random{options().seed};
    int taken = 0;
    int leftOut = 0;
    {
        Shown shown;
        for (int run = options().runsOr(100) * 20; run > 0; --run) {
            std::string how;
            Bytes picture = damaged(pictures[random() % pictures.size()], random, how);
            if (random() % 4)
                putLengthRight(picture);
            Journal::begin("a picture, --seed=" + std::to_string(options().seed));
            Journal::step(how + ": " + hexadecimal(picture));
            HRESULT const result = shown.load(picture);
            ASSERT_TRUE(SUCCEEDED(result)) << result << Journal::text();
            ++(result == S_OK ? taken : leftOut);
            if (run % 100 == 0)
                kit::pumpPending();
        }
    }
    expectNothingLeft();
    std::printf("    %d taken, %d left out\n", taken, leftOut);
    EXPECT_GT(taken, leftOut / 20);
    EXPECT_GT(leftOut, taken / 20);
}

} // namespace
} // namespace quillet::hostile
