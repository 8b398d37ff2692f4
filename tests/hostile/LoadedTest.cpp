// Saved data of every damage loaded into live controls, pictures among them: refused, and then nothing has
// changed, or taken, and then the control goes on.
#include "HostileTest.h"
#include "Life.h"
#include "SavedForm.h"
#include "Values.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"
#include "kit/Pump.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace quillet::hostile {
namespace {

using kit::Bytes;

constexpr int kRunsOfALife = 100;
constexpr wchar_t const* kSavedNames[] = {
    L"Caption",       L"BackColor",     L"ForeColor",      L"Enabled",       L"Font",
    L"BorderStyle",   L"BorderWidth",   L"MouseIcon",      L"Image",         L"HotImage",
    L"Value",         L"AutoSizeWidth", L"Checked",        L"CheckButton",   L"HotForeColor",
    L"CaptionIndent", L"MousePointer",  L"OfficeXPColors", L"CentreCaption", L"Active"};

class HostileData : public HostileControlTest {
protected:
    Random random{options().seed};
    int taken = 0;
    int refused = 0;

    /// A live control, shown, with a value in most properties, and what it saves.
    struct Target {
        Life life{kind()};
        Life other{kind()};
        kit::Bytes full;

        Target()
        {
            life.begin();
            life.control.activate();
            life.putProperties();
            if (auto const own = life.as<IDispatch>())
                kit::setByName(*own.get(), L"MouseIcon", kit::newIconPicture().get());
            other.control.setSite();
            full = savedForm(life);
        }
    };
    void count(HRESULT result) { ++(SUCCEEDED(result) ? taken : refused); }
    /// So many runs, a few of them with each control.
    void run(int runs, std::function<void(Target&, int)> const& one)
    {
        for (int done = 0; done < runs && !HasFailure();) {
            {
                Target target;
                EXPECT_GT(target.full.size(), 100U);
                for (int i = 0; i < kRunsOfALife && done < runs && !HasFailure(); ++i, ++done) {
                    Journal::begin(std::string(kind().name) + ": run " + std::to_string(done) +
                                   " of --seed=" + std::to_string(options().seed));
                    one(target, done);
                    if (i % 10 == 0)
                        kit::pumpPending();
                }
            }
            expectNothingLeft();
        }
        std::printf("    %d taken, %d refused\n", taken, refused);
    }
};
QV_ALL_CONTROLS(HostileData);

TEST_P(HostileData, inAStreamIsTakenWholeOrRefused)
{
    run(options().runsOr(300), [&](Target& target, int) {
        std::string how;
        kit::Bytes const bytes = damaged(target.full, random, how);
        Journal::step(how + ": " + hexadecimal(bytes));
        count(expectWholeLoad(target.life, target.other, [&] {
            return target.life.as<IPersistStreamInit>()->Load(kit::streamOf(bytes).get());
        }));
    });
    EXPECT_GT(refused, taken / 50);
    EXPECT_GT(taken, refused / 50);
}

TEST_P(HostileData, withAFontOfAnImpossibleSizeIsLoadedInTheFormsFont)
{
    Target target;
    kit::Bytes bytes = target.full;
    kit::Bytes const tenPoints{0xA0, 0x86, 0x01, 0x00}; // as a saved font has them
    auto const size = std::search(bytes.begin(), bytes.end(), tenPoints.begin(), tenPoints.end());
    ASSERT_NE(size, bytes.end());
    size[3] = 0x19; // 42,000 points
    EXPECT_EQ(target.life.as<IPersistStreamInit>()->Load(kit::streamOf(bytes).get()), S_FALSE)
        << "the loss is told";
    auto const own = target.life.as<IDispatch>();
    auto const font = query<IFont>(kit::getByName(*own.get(), L"Font").value.toObject().get());
    ASSERT_TRUE(font);
    CY points = {};
    ASSERT_EQ(font->get_Size(&points), S_OK);
    EXPECT_LE(points.int64, 2160 * 10000) << "the form's";
}

TEST_P(HostileData, ofAnotherDamagedControlIsTakenWholeOrRefused)
{
    // Damage upon damage: what was taken once is damaged again.
    kit::Bytes last;
    run(options().runsOr(50), [&](Target& target, int done) {
        std::string how;
        if (last.size() < 40 || last.size() > 20'000 || done % 12 == 0)
            last = target.full;
        kit::Bytes const bytes = damaged(last, random, how);
        Journal::step(how + ": " + hexadecimal(bytes));
        HRESULT const result = expectWholeLoad(target.life, target.other, [&] {
            return target.life.as<IPersistStreamInit>()->Load(kit::streamOf(bytes).get());
        });
        count(result);
        if (SUCCEEDED(result))
            last = bytes;
    });
}

TEST_P(HostileData, inABagIsTakenWholeOrRefused)
{
    auto const values = strangeValues();
    run(options().runsOr(60), [&](Target& target, int) {
        auto const bag = kit::make<kit::FakeBag>();
        for (int i = 1 + below(random, 4); i > 0; --i) {
            wchar_t const* const name = oneOf(random, kSavedNames);
            NamedValue const& row = values[random() % values.size()];
            bool const isObject = row.value.type() == VT_UNKNOWN;
            if (isObject && random() % 4)
                continue; // most objects are refused
            Journal::step(kit::narrow(name) + ": " + row.name);
            bag->put(name, row.value);
        }
        count(
            expectWholeLoad(target.life, target.other, [&] { return target.life.control.load(*bag.get()); }));
    });
    EXPECT_GT(refused, 0);
    EXPECT_GT(taken, 0);
}

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
