// Bags, streams and storages that give strange values, fail in the middle, give and take less than they say,
// or do something to the control while they are asked.
#include "Carriers.h"
#include "Deeds.h"
#include "HostileTest.h"
#include "SavedForm.h"
#include "Values.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"

namespace quillet::hostile {
namespace {

class HostileCarrier : public HostileControlTest {
protected:
    /// A form that holds a value for most properties.
    static kit::Bytes fullForm()
    {
        Life life(kind());
        life.begin();
        life.putProperties();
        return savedForm(life);
    }
    /// Loads by the action: a failure leaves the control as it was, a success something to draw and save.
    static HRESULT load(std::string const& title, std::function<HRESULT(Life&)> const& action)
    {
        Journal::begin(std::string(kind().name) + ": " + title);
        HRESULT result = S_OK;
        {
            Life life(kind());
            life.begin();
            Life other(kind());
            other.control.setSite();
            result = expectWholeLoad(life, other, [&] { return action(life); });
            life.show();
            life.draw();
        }
        expectNothingLeft();
        return result;
    }
    static HRESULT loadBag(Life& life, IPropertyBag& bag) { return life.control.load(bag); }
    static HRESULT loadStream(Life& life, IStream& stream)
    {
        return life.as<IPersistStreamInit>()->Load(&stream);
    }
};
QV_ALL_CONTROLS(HostileCarrier);

TEST_P(HostileCarrier, bagThatAnswersValuesOfAnyTypeIsLoadedOrRefused)
{
    int refused = 0;
    for (NamedValue const& row : strangeValues()) {
        if (!isDue(2))
            continue;
        auto const bag = kit::make<HostileBag>();
        bag->reads = [&](VARIANT& value) {
            value = Variant(row.value).detach();
            return S_OK;
        };
        refused +=
            FAILED(load(row.name + " for everything", [&](Life& life) { return loadBag(life, *bag.get()); }));
        if (isDue(12))
            for (wchar_t const* const name : {L"Font", L"MouseIcon", L"Image", L"Caption", L"BackColor",
                                              L"BorderWidth", L"Enabled", L"Value"}) {
                auto const one = kit::make<kit::FakeBag>();
                one->put(L"ForeColor", Variant::ofLong(77));
                one->put(name, row.value);
                load(row.name + " for " + kit::narrow(name),
                     [&](Life& life) { return loadBag(life, *one.get()); });
            }
    }
    EXPECT_GT(refused, 2);
}

TEST_P(HostileCarrier, bagThatWritesGarbageIntoTheValueAndFailsIsHeardAsAFailureAlone)
{
    for (HRESULT const result : {E_FAIL, E_INVALIDARG, E_OUTOFMEMORY, DISP_E_TYPEMISMATCH, E_POINTER})
        for (int const type :
             {int{VT_BSTR}, int{VT_UNKNOWN}, int{VT_DISPATCH}, VT_VARIANT | VT_BYREF, 0x7F7F}) {
            if (!isDue(5))
                continue;
            auto const bag = kit::make<HostileBag>();
            bag->reads = [&](VARIANT& value) {
                value.llVal = 0x0BADF00D0BADF00D;
                value.vt = static_cast<VARTYPE>(type);
                return result;
            };
            load("garbage of type " + std::to_string(type),
                 [&](Life& life) { return loadBag(life, *bag.get()); });
        }
}

TEST_P(HostileCarrier, bagThatFailsToTakeAnyValueFailsTheSave)
{
    Life life(kind());
    life.begin();
    life.putProperties();
    auto const whole = kit::make<HostileBag>();
    EXPECT_EQ(life.control.save(*whole.get()), S_OK);
    EXPECT_GT(whole->calls, 0);
    life.putProperties();
    for (int at = 1; at <= whole->calls; ++at) {
        auto const bag = kit::make<HostileBag>();
        bag->writes = [&] { return bag->calls == at ? E_ACCESSDENIED : S_OK; };
        EXPECT_EQ(life.control.save(*bag.get()), E_ACCESSDENIED) << at;
        EXPECT_EQ(life.as<IPersistStreamInit>()->IsDirty(), S_OK) << at;
        bag->writes = nullptr; // it held itself
    }
}

TEST_P(HostileCarrier, streamThatGivesAByteAtATimeIsLoaded)
{
    kit::Bytes const full = fullForm();
    for (ULONG const most : {1U, 3U, 64U}) {
        auto const stream = kit::make<HostileStream>(full);
        stream->most = most;
        EXPECT_EQ(load("pieces", [&](Life& life) { return loadStream(life, *stream.get()); }), S_OK) << most;
    }
}

TEST_P(HostileCarrier, streamThatFailsOrSaysNonsenseInAnyReadIsRefused)
{
    struct Row {
        HRESULT answer;
        ULONG claimed;
    };
    kit::Bytes const full = fullForm();
    for (Row const row : {Row{E_FAIL, 0}, Row{STG_E_READFAULT, 7}, Row{S_OK, 0}, Row{S_FALSE, 0},
                          Row{S_OK, 0x7FFFFFFF}, Row{S_OK, 0xFFFFFFFF}, Row{E_PENDING, 0}})
        for (int at = 1; at < 5; ++at) {
            if (!isDue(4))
                continue;
            auto const stream = kit::make<HostileStream>(full);
            stream->most = 50;
            stream->wrongAt = at;
            stream->wrong = row.answer;
            stream->claimed = row.claimed;
            EXPECT_TRUE(FAILED(load("wrong read " + std::to_string(at),
                                    [&](Life& life) { return loadStream(life, *stream.get()); })))
                << row.answer << ' ' << row.claimed << ' ' << at;
        }
}

TEST_P(HostileCarrier, streamThatTakesLessThanItIsGivenFailsTheSave)
{
    Life life(kind());
    life.begin();
    life.putProperties();
    auto const own = life.as<IPersistStreamInit>();
    for (ULONG const most : {0U, 1U, 11U, 40U}) {
        auto const stream = kit::make<HostileStream>();
        stream->most = most;
        HRESULT const result = own->Save(stream.get(), TRUE);
        EXPECT_TRUE(FAILED(result)) << most;
        EXPECT_EQ(own->IsDirty(), S_OK) << "a save that failed says that the control is saved";
    }
    auto const fails = kit::make<HostileStream>();
    fails->wrongAt = 1;
    fails->wrong = STG_E_MEDIUMFULL;
    EXPECT_EQ(own->Save(fails.get(), TRUE), STG_E_MEDIUMFULL);
}

TEST_P(HostileCarrier, storageThatFailsOrHandsOutNothingIsRefused)
{
    for (HRESULT const answer : {S_OK, E_FAIL, STG_E_FILENOTFOUND}) {
        auto const storage = kit::make<HostileStorage>();
        storage->answer = answer;
        if (FAILED(answer))
            storage->stream = kit::streamOf(fullForm());
        EXPECT_TRUE(FAILED(load("storage", [&](Life& life) {
            auto const own = life.as<IPersistStorage>();
            EXPECT_TRUE(FAILED(own->Save(storage.get(), FALSE)));
            return own->Load(storage.get());
        })));
    }
}

TEST_P(HostileCarrier, thatDoesSomethingToTheControlWhileItIsAskedIsLivedWith)
{
    kit::Bytes const full = fullForm();
    for (Deed const& deed : deeds()) {
        if (!isDue(5))
            continue;
        Journal::begin(std::string(kind().name) + ": carriers: " + deed.name);
        {
            Life life(kind());
            life.begin();
            life.show();
            auto const stream = kit::make<HostileStream>(full);
            stream->wrongAt = 2;
            stream->deed = [&] { deed.run(life); };
            auto const bag = kit::make<HostileBag>();
            bag->reads = [&](VARIANT&) {
                if (bag->calls == 4)
                    deed.run(life);
                return E_INVALIDARG;
            };
            bag->writes = [&] {
                if (bag->calls == 2)
                    deed.run(life);
                return S_OK;
            };
            if (auto const own = life.as<IPersistStreamInit>())
                own->Load(stream.get());
            life.control.load(*bag.get());
            bag->calls = 0;
            life.control.save(*bag.get());
            stream->calls = 1;
            if (auto const own = life.as<IPersistStreamInit>())
                own->Save(stream.get(), TRUE);
            bag->reads = nullptr;
            bag->writes = nullptr;
            stream->deed = nullptr;
            life.live();
        }
        expectNothingLeft();
    }
}

} // namespace
} // namespace quillet::hostile
