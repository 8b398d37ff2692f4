// Saved data: what a control would save, damaged and forged in every way, and what must hold of every load.
#include "SavedForm.h"

#include "HostileTest.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace quillet::hostile {

kit::Bytes savedForm(Life& life)
{
    auto const stream = kit::streamOf();
    auto const own = life.as<IPersistStreamInit>();
    if (!own || FAILED(own->Save(stream.get(), FALSE)))
        return {};
    return kit::bytesOf(*stream.get());
}

HRESULT expectWholeLoad(Life& life, Life& other, std::function<HRESULT()> const& load)
{
    kit::Bytes const before = savedForm(life);
    HRESULT const result = load();
    kit::Bytes const after = savedForm(life);
    EXPECT_FALSE(after.empty()) << "nothing can be saved any more\n" << Journal::text();
    if (FAILED(result)) {
        EXPECT_EQ(after, before) << "a refused load changed the control\n" << Journal::text();
        return result;
    }
    life.draw();
    HRESULT const again = other.as<IPersistStreamInit>()->Load(kit::streamOf(after).get());
    EXPECT_TRUE(SUCCEEDED(again)) << "what was saved is not taken back\n" << Journal::text();
    // (S_FALSE: the system does not read back every picture that it has saved.)
    if (again != S_OK)
        return result;
    // An option button's form may name a default that it need not name: then it is as good as without.
    if (life.kind().classId == kQvFlatOptionClass) {
        EXPECT_EQ(life.as<IPersistStreamInit>()->Load(kit::streamOf(after).get()), S_OK) << Journal::text();
    }
    EXPECT_EQ(savedForm(other), savedForm(life)) << "what was saved comes back as something else\n"
                                                 << Journal::text();
    return result;
}

namespace {

using kit::Bytes;

size_t placeIn(Bytes const& bytes, Random& random) { return random() % std::max<size_t>(bytes.size(), 1); }

Bytes::iterator at(Bytes& bytes, size_t place) { return bytes.begin() + static_cast<ptrdiff_t>(place); }

void flipBit(Bytes& bytes, Random& random)
{
    BYTE& byte = bytes[placeIn(bytes, random)];
    byte = static_cast<BYTE>(byte ^ (1U << random() % 8));
}

void changeByte(Bytes& bytes, Random& random)
{
    bytes[placeIn(bytes, random)] = static_cast<BYTE>(random() % 3 ? random() : 0xFF);
}

void cut(Bytes& bytes, Random& random) { bytes.resize(1 + placeIn(bytes, random)); }

void takeOut(Bytes& bytes, Random& random)
{
    size_t const from = placeIn(bytes, random);
    size_t const count = std::min<size_t>(1 + random() % 30, bytes.size() - from);
    bytes.erase(at(bytes, from), at(bytes, from + count));
    bytes.resize(std::max<size_t>(bytes.size(), 1));
}

void putIn(Bytes& bytes, Random& random)
{
    Bytes more(1 + random() % 30);
    std::ranges::generate(more, [&] { return static_cast<BYTE>(random()); });
    bytes.insert(at(bytes, placeIn(bytes, random)), more.begin(), more.end());
}

void doublePart(Bytes& bytes, Random& random)
{
    size_t const from = placeIn(bytes, random);
    size_t const count = std::min<size_t>(1 + random() % 200, bytes.size() - from);
    Bytes const part(at(bytes, from), at(bytes, from + count));
    bytes.insert(at(bytes, from), part.begin(), part.end());
}

void doubleAll(Bytes& bytes, Random&)
{
    Bytes const copy = bytes;
    bytes.insert(bytes.end(), copy.begin(), copy.end());
}

/// Lengths, counts and types are words and double words anywhere.
void forgeLength(Bytes& bytes, Random& random)
{
    constexpr DWORD kLengths[] = {0,         1,          2,          3,          8,         11,
                                  13,        0x7FFF,     0x8000,     0xFFFF,     0x10000,   0x4000001,
                                  0x3FFFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF};
    DWORD const length = oneOf(random, kLengths);
    size_t const size = random() % 2 ? sizeof(WORD) : sizeof(DWORD);
    if (bytes.size() > size)
        std::memcpy(bytes.data() + random() % (bytes.size() - size), &length, size);
}

/// What a saved font and a saved picture begin with; what follows is theirs.
void damageObject(Bytes& bytes, Random& random)
{
    Bytes const pictureMark{'l', 't', 0, 0};
    auto const picture = std::search(bytes.begin(), bytes.end(), pictureMark.begin(), pictureMark.end());
    auto const begin = picture == bytes.end() ? at(bytes, placeIn(bytes, random)) : picture;
    auto const rest = static_cast<size_t>(bytes.end() - begin);
    for (unsigned count = 1 + random() % 6; count > 0; --count)
        *(begin + static_cast<ptrdiff_t>(random() % std::min<size_t>(rest, 90))) =
            static_cast<BYTE>(random());
}

struct Damage {
    char const* name;
    void (*make)(Bytes&, Random&);
};

constexpr Damage kDamages[] = {
    {"bit", flipBit},       {"byte", changeByte},    {"cut", cut},
    {"taken out", takeOut}, {"put in", putIn},       {"part doubled", doublePart},
    {"doubled", doubleAll}, {"length", forgeLength}, {"object", damageObject},
    {"byte", changeByte},   {"length", forgeLength}, {"bit", flipBit},
};

} // namespace

kit::Bytes damaged(kit::Bytes bytes, Random& random, std::string& how)
{
    how.clear();
    for (unsigned count = 1 + random() % 3; count > 0; --count) {
        Damage const& damage = oneOf(random, kDamages);
        damage.make(bytes, random);
        how += std::string(how.empty() ? "" : ", ") + damage.name;
    }
    return bytes;
}

std::string hexadecimal(kit::Bytes const& bytes)
{
    std::string text;
    char digits[3];
    for (BYTE const byte : bytes) {
        std::snprintf(digits, sizeof(digits), "%02x", byte);
        text += digits;
    }
    return text;
}

} // namespace quillet::hostile
