// Saved data of every damage loaded into live controls: refused, and then nothing has changed, or taken, and
// then it can be drawn, saved and loaded again.
#include "HostileTest.h"
#include "Mutations.h"
#include "SavedForm.h"
#include "Values.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"
#include "kit/Pump.h"

#include <algorithm>

namespace quillet::hostile {
namespace {

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

} // namespace
} // namespace quillet::hostile
