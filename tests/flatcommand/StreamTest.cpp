// qvFlatCommand in a stream, whole and damaged.
#include "FlatButton.h"
#include "kit/Errors.h"
#include "kit/Memory.h"

#include <algorithm>
#include <optional>
#include <random>

namespace quillet::flat {
namespace {

using kit::Bytes;

template <class T> void append(Bytes& bytes, T const& value)
{
    auto const* const first = reinterpret_cast<BYTE const*>(&value);
    bytes.insert(bytes.end(), first, first + sizeof value);
}

void append(Bytes& bytes, std::wstring const& text)
{
    for (wchar_t const letter : text)
        append(bytes, letter);
}

class FlatStream : public SitedTest {
protected:
    FlatStream() { EXPECT_EQ(button.initNew(), S_OK); }

    ComPtr<IPersistStreamInit> face() const { return button.as<IPersistStreamInit>(); }
    /// Bytes that a button with a value in every property saves.
    Bytes fullBytes()
    {
        FlatButton full(library(), form, kPlace, L"Full");
        full.setSite();
        full.initNew();
        full.assignAll();
        return full.saved();
    }
    /// Loaded without the font, which the last error tells.
    void expectTheFormsFont(FlatButton const& of) const
    {
        EXPECT_EQ(kit::takenError().description, L"Invalid property value");
        EXPECT_TRUE(kit::equalFonts(*of.font().get(), *formFont().get()));
    }
    static Bytes firstOf(Bytes const& bytes, size_t length)
    {
        return {bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(length)};
    }
};

TEST_F(FlatStream, givesBackWhatWasSaved)
{
    button.assignAll();
    auto const before = stateOf(button);
    FlatButton other(library(), form);
    ASSERT_EQ(other.setSite(), S_OK);
    ASSERT_EQ(other.load(button.saved()), S_OK);
    EXPECT_EQ(stateOf(other), before);
    EXPECT_TRUE(kit::equalFonts(*other.font().get(), *button.font().get()));
}

TEST_F(FlatStream, givesBackDefaultsOverOtherValues)
{
    button.setCaption(L"");
    auto const before = stateOf(button);
    FlatButton other(library(), form);
    ASSERT_EQ(other.setSite(), S_OK);
    other.assignAll();
    ASSERT_EQ(other.load(button.saved()), S_OK);
    EXPECT_EQ(stateOf(other), before);
}

TEST_F(FlatStream, givesBackACaptionOfAnyCharacters)
{
    std::wstring text = L"a&\x20AC\xD83D\xDE00\n\x0001";
    text += L'\0';
    text += std::wstring(3000, L'x');
    ASSERT_EQ(button->put_Caption(Bstr(text).get()), S_OK);
    FlatButton other(library(), form);
    ASSERT_EQ(other.load(button.saved()), S_OK);
    EXPECT_EQ(other.caption(), text);
}

TEST_F(FlatStream, leavesOutDefaults)
{
    button.setCaption(L"");
    Bytes const defaults = button.saved();
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(5).get()), S_OK);
    EXPECT_GT(button.saved().size(), defaults.size());
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(1).get()), S_OK);
    EXPECT_EQ(button.saved(), defaults);
}

TEST_F(FlatStream, readsAndWritesNothingButItsOwnPart)
{
    button.assignAll();
    FlatButton second(library(), form, kPlace, L"Second");
    ASSERT_EQ(second.setSite(), S_OK);
    ASSERT_EQ(second.initNew(), S_OK);
    auto const stream = kit::streamOf();
    ASSERT_EQ(face()->Save(stream.get(), TRUE), S_OK);
    ASSERT_EQ(second.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    Bytes const both = kit::bytesOf(*stream.get());
    auto const reading = kit::streamOf(both);
    FlatButton first(library(), form, kPlace, L"X");
    FlatButton next(library(), form, kPlace, L"Y");
    ASSERT_EQ(first.as<IPersistStreamInit>()->Load(reading.get()), S_OK);
    ASSERT_EQ(next.as<IPersistStreamInit>()->Load(reading.get()), S_OK);
    EXPECT_EQ(kit::positionOf(*reading.get()), both.size());
    EXPECT_EQ(first.caption(), L"&Save");
    EXPECT_EQ(next.caption(), L"Second");
}

TEST_F(FlatStream, saysHowLargeItWillBeAtMost)
{
    button.assignAll();
    ULARGE_INTEGER size{};
    ASSERT_EQ(face()->GetSizeMax(&size), S_OK);
    EXPECT_GE(size.QuadPart, button.saved().size());
    EXPECT_LT(size.QuadPart, 0x10000U);
    EXPECT_EQ(face()->GetSizeMax(nullptr), E_POINTER);
}

TEST_F(FlatStream, namesItsClass)
{
    CLSID classId{};
    EXPECT_EQ(face()->GetClassID(&classId), S_OK);
    EXPECT_EQ(classId, kQvFlatCommandClass);
    EXPECT_EQ(face()->GetClassID(nullptr), E_POINTER);
}

TEST_F(FlatStream, isDirtyFromAChangeToASaveThatClears)
{
    auto const persistent = face();
    ASSERT_EQ(button.load(button.saved()), S_OK);
    EXPECT_EQ(persistent->IsDirty(), S_FALSE);
    button.setCaption(L"changed");
    EXPECT_EQ(persistent->IsDirty(), S_OK);
    ASSERT_EQ(persistent->Save(kit::streamOf().get(), FALSE), S_OK);
    EXPECT_EQ(persistent->IsDirty(), S_OK);
    ASSERT_EQ(persistent->Save(kit::streamOf().get(), TRUE), S_OK);
    EXPECT_EQ(persistent->IsDirty(), S_FALSE);
}

TEST_F(FlatStream, refusesNoStream)
{
    EXPECT_TRUE(FAILED(face()->Load(nullptr)));
    EXPECT_TRUE(FAILED(face()->Save(nullptr, TRUE)));
}

TEST_F(FlatStream, endingTooEarlyIsRefusedAtEveryLengthAndChangesNothing)
{
    Bytes const full = fullBytes();
    auto const before = stateOf(button);
    for (size_t length = 0; length < full.size(); ++length) {
        SCOPED_TRACE(length);
        ASSERT_TRUE(FAILED(button.load(firstOf(full, length))));
        ASSERT_EQ(stateOf(button), before);
    }
    EXPECT_EQ(button.load(full), S_OK);
}

/// A form by hand: its mark, the version of its layout, how many values, how many bytes; then the values.
Bytes formOf(WORD version, WORD count, Bytes const& values, DWORD size)
{
    Bytes bytes{'Q', 'V', 'P', 'B'};
    append(bytes, version);
    append(bytes, count);
    append(bytes, size);
    bytes.insert(bytes.end(), values.begin(), values.end());
    return bytes;
}

/// A text named Caption that says how long it is.
Bytes captionOf(DWORD length, std::wstring const& text)
{
    std::wstring const name = L"Caption";
    Bytes bytes;
    append(bytes, static_cast<WORD>(name.size()));
    append(bytes, name);
    append(bytes, WORD{VT_BSTR});
    append(bytes, length);
    append(bytes, text);
    return bytes;
}

TEST_F(FlatStream, thatSaysOtherThanItHoldsIsRefusedAndChangesNothing)
{
    Bytes const whole = captionOf(4, L"hand");
    auto const size = static_cast<DWORD>(whole.size());
    ASSERT_EQ(button.load(formOf(1, 1, whole, size)), S_OK);
    ASSERT_EQ(button.caption(), L"hand");
    Bytes longer = whole;
    longer.push_back(0);
    struct Row {
        char const* what;
        Bytes bytes;
    };
    for (auto const& [what, bytes] :
         {Row{"an older version", formOf(0, 1, whole, size)},
          Row{"a newer version", formOf(2, 1, whole, size)},
          Row{"a byte behind its last value", formOf(1, 1, longer, size + 1)},
          Row{"a value behind its last", formOf(1, 0, whole, size)},
          Row{"a body longer than the stream", formOf(1, 1, whole, size + 1)},
          Row{"no body at all", formOf(1, 1, {}, size)},
          Row{"a text longer than its body", formOf(1, 1, captionOf(5, L"hand"), size)},
          Row{"a text of any length", formOf(1, 1, captionOf(0xFFFFFFFF, L"hand"), size)}}) {
        button.setCaption(L"kept");
        EXPECT_EQ(button.load(bytes), E_FAIL) << what;
        EXPECT_EQ(button.caption(), L"kept") << what;
    }
}

TEST_F(FlatStream, failingWhileItIsReadIsRefusedAndChangesNothing)
{
    Bytes const full = fullBytes();
    auto const before = stateOf(button);
    auto const persistent = face();
    for (size_t length = 0; length < full.size(); length += 3) {
        ASSERT_TRUE(FAILED(persistent->Load(kit::brokenStream(firstOf(full, length), 0).get()))) << length;
    }
    EXPECT_EQ(stateOf(button), before);
}

TEST_F(FlatStream, thatTakesNoMoreFailsTheSaveWhichStaysDirty)
{
    button.assignAll();
    auto const persistent = face();
    size_t const size = button.saved().size();
    for (size_t taken = 0; taken < size; taken += 7)
        ASSERT_EQ(persistent->Save(kit::brokenStream({}, static_cast<ULONG>(taken)).get(), TRUE),
                  STG_E_MEDIUMFULL)
            << taken;
    EXPECT_EQ(persistent->IsDirty(), S_OK);
}

TEST_F(FlatStream, withAFontThatGrewTooLargeIsLoadedInTheFormsFontAndSaysSo)
{
    button.setCaption(L"&Large");
    button.setFont(kit::newFont(L"Tahoma", 33).get());
    ASSERT_EQ(button.font()->put_Size(CY{.int64 = 3000 * 10000}), S_OK); // no setter of the button's own
    Bytes const bytes = button.saved();
    FlatButton other(library(), form);
    ASSERT_EQ(other.setSite(), S_OK);
    other.setFont(kit::newFont(L"Tahoma", 7).get());
    EXPECT_EQ(other.load(bytes), S_FALSE);
    expectTheFormsFont(other);
    EXPECT_EQ(other.caption(), L"&Large");
    EXPECT_EQ(other.as<IPersistStreamInit>()->IsDirty(), S_OK) << "what it would save is something else";
}

TEST_F(FlatStream, withAFontOfDamagedBytesIsLoadedInTheFormsFont)
{
    Bytes bytes = fullBytes();
    // Its name, an object, a font, and the length of its own bytes, which begin with their version.
    std::wstring const head = L"Font\xD\x1";
    auto const* const first = reinterpret_cast<BYTE const*>(head.data());
    auto const found = std::search(bytes.begin(), bytes.end(), first, first + head.size() * sizeof(wchar_t));
    ASSERT_NE(found, bytes.end());
    BYTE& version = *(found + static_cast<ptrdiff_t>(head.size() * sizeof(wchar_t)) + 4);
    ASSERT_EQ(version, 1);
    version = 0xEE;
    EXPECT_EQ(button.load(bytes), S_FALSE);
    expectTheFormsFont(button);
    EXPECT_EQ(button.caption(), L"&Save");
}

// Only a metafile's player can tell whether its records are whole: a stream takes none.
TEST_F(FlatStream, takesNoMetafileAndSaysSo)
{
    button.setCaption(L"&Played");
    PICTDESC description{};
    description.picType = PICTYPE_ENHMETAFILE;
    description.emf.hemf = ::CloseEnhMetaFile(::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr));
    ASSERT_EQ(button->putref_MouseIcon(kit::newPicture(description).get()), S_OK);
    ::SetErrorInfo(0, nullptr);
    auto const stream = kit::streamOf();
    EXPECT_EQ(face()->Save(stream.get(), TRUE), S_FALSE);
    EXPECT_EQ(kit::takenError().description, L"Invalid picture");
    FlatButton other(library(), form);
    EXPECT_EQ(other.load(kit::bytesOf(*stream.get())), S_OK);
    EXPECT_EQ(other.caption(), L"&Played");
    ULARGE_INTEGER size{};
    EXPECT_EQ(face()->GetSizeMax(&size), S_OK);
    EXPECT_EQ(size.QuadPart, kit::bytesOf(*stream.get()).size());
    EXPECT_EQ(button.as<IPersistStorage>()->Save(kit::newStorage().get(), FALSE), S_FALSE);
    EXPECT_EQ(button->putref_MouseIcon(nullptr), S_OK);
    EXPECT_EQ(face()->Save(stream.get(), TRUE), S_OK);
}

TEST_F(FlatStream, damagedAtRandomIsLoadedOrRefusedAndChangesNothingWhenRefused)
{
    Bytes const full = fullBytes();
    auto const before = stateOf(button);
    std::optional<FlatButton> target;
    std::mt19937 random(20260101);
    int refused = 0;
    int loaded = 0;
    constexpr int kRounds = 4000;
    for (int round = 0; round < kRounds; ++round) {
        Bytes damaged = full;
        for (unsigned changes = 1 + random() % 4; changes > 0; --changes)
            damaged[random() % damaged.size()] = static_cast<BYTE>(random() % 4 ? random() : 0xFFU);
        if (!target) {
            target.emplace(library(), form);
            ASSERT_EQ(target->setSite(), S_OK);
            ASSERT_EQ(target->initNew(), S_OK);
        }
        if (SUCCEEDED(target->load(damaged))) {
            ++loaded;
            target.reset(); // a fresh one for the next round
            continue;
        }
        ++refused;
        ASSERT_EQ(stateOf(*target), before) << "a refused stream changed the control in round " << round;
    }
    EXPECT_GT(refused, kRounds / 20) << "hardly anything is checked";
    EXPECT_GT(loaded, kRounds / 20) << "no damage is ever in a value";
}

// Lengths and counts of every size at every place: no buffer may be trusted.
TEST_F(FlatStream, withAnyLengthAtAnyPlaceIsLoadedOrRefused)
{
    Bytes const full = fullBytes();
    for (size_t at = 0; at + 4 <= full.size(); ++at)
        for (DWORD const value :
             {0U, 1U, 0x7FFFU, 0x8000U, 0xFFFFU, 0x10000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
            Bytes damaged = full;
            memcpy(damaged.data() + at, &value, sizeof value);
            button.load(damaged);
        }
    EXPECT_EQ(button.load(full), S_OK);
    EXPECT_EQ(button.caption(), L"&Save");
}

} // namespace
} // namespace quillet::flat
