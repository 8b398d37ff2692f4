// Bags, streams and storages that give strange values, fail in the middle, give and take less than they say,
// or do something to the control meanwhile.
#include "Deeds.h"
#include "HostileTest.h"
#include "SavedForm.h"
#include "Values.h"
#include "base/Variant.h"
#include "kit/ByName.h"
#include "kit/Counterpart.h"
#include "kit/Fonts.h"
#include "kit/Memory.h"

#include <ocidl.h>
#include <windows.h>

#include <objidl.h>

#include <algorithm>
#include <functional>

namespace quillet::hostile {

/// A bag that answers each call as it is told.
class HostileBag final : public kit::Counterpart<IPropertyBag> {
public:
    std::function<HRESULT(VARIANT&)> reads; ///< fills what is asked for
    std::function<HRESULT()> writes;
    int calls = 0;

    STDMETHODIMP Read(LPCOLESTR, VARIANT* value, IErrorLog*) override
    {
        ++calls;
        return reads ? reads(*value) : E_INVALIDARG;
    }
    STDMETHODIMP Write(LPCOLESTR, VARIANT*) override
    {
        ++calls;
        return writes ? writes() : S_OK;
    }
};

/// A stream over bytes that goes wrong at one of its calls, the first being 1.
class HostileStream final : public kit::RefusingStream {
public:
    explicit HostileStream(kit::Bytes bytes = {}) : m_bytes(std::move(bytes)) {}

    ULONG most = 0xFFFFFFFF;    ///< bytes in one call
    int wrongAt = 0;            ///< the call that goes wrong; 0 for none
    HRESULT wrong = E_FAIL;     ///< what it answers
    ULONG claimed = 0;          ///< how many bytes it then says it has read or taken
    std::function<void()> deed; ///< what happens in that call instead of an answer of its own
    int calls = 0;
    kit::Bytes taken;

    STDMETHODIMP Read(void* target, ULONG size, ULONG* read) override;
    STDMETHODIMP Write(void const* source, ULONG size, ULONG* written) override;

private:
    /// Whether this call goes wrong; a deed is done and the call goes on as usual.
    bool goesWrong(ULONG* count);

    kit::Bytes m_bytes;
    size_t m_at = 0;
};

/// A storage that hands out one stream, or nothing.
class HostileStorage final : public kit::Counterpart<IStorage> {
public:
    ComPtr<IStream> stream;
    HRESULT answer = S_OK;
    std::function<void()> deed;

    STDMETHODIMP CreateStream(OLECHAR const*, DWORD, DWORD, DWORD, IStream** out) override
    {
        return handOut(out);
    }
    STDMETHODIMP OpenStream(OLECHAR const*, void*, DWORD, DWORD, IStream** out) override
    {
        return handOut(out);
    }
    STDMETHODIMP CreateStorage(OLECHAR const*, DWORD, DWORD, DWORD, IStorage**) override { return E_NOTIMPL; }
    STDMETHODIMP OpenStorage(OLECHAR const*, IStorage*, DWORD, SNB, DWORD, IStorage**) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP CopyTo(DWORD, IID const*, SNB, IStorage*) override { return E_NOTIMPL; }
    STDMETHODIMP MoveElementTo(OLECHAR const*, IStorage*, OLECHAR const*, DWORD) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP Commit(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Revert() override { return E_NOTIMPL; }
    STDMETHODIMP EnumElements(DWORD, void*, DWORD, IEnumSTATSTG**) override { return E_NOTIMPL; }
    STDMETHODIMP DestroyElement(OLECHAR const*) override { return E_NOTIMPL; }
    STDMETHODIMP RenameElement(OLECHAR const*, OLECHAR const*) override { return E_NOTIMPL; }
    STDMETHODIMP SetElementTimes(OLECHAR const*, FILETIME const*, FILETIME const*, FILETIME const*) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP SetClass(REFCLSID) override { return E_NOTIMPL; }
    STDMETHODIMP SetStateBits(DWORD, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }

private:
    HRESULT handOut(IStream** out)
    {
        if (deed)
            deed();
        *out = stream.copy();
        return answer;
    }
};

bool HostileStream::goesWrong(ULONG* count)
{
    if (++calls != wrongAt)
        return false;
    if (deed) {
        deed();
        return false;
    }
    if (count)
        *count = claimed;
    return true;
}

STDMETHODIMP HostileStream::Read(void* target, ULONG size, ULONG* read)
{
    if (goesWrong(read))
        return wrong;
    size_t const given = std::min<size_t>({size, most, m_bytes.size() - m_at});
    std::copy_n(m_bytes.begin() + static_cast<ptrdiff_t>(m_at), given, static_cast<BYTE*>(target));
    m_at += given;
    if (read)
        *read = static_cast<ULONG>(given);
    return given == size ? S_OK : S_FALSE;
}

STDMETHODIMP HostileStream::Write(void const* source, ULONG size, ULONG* written)
{
    if (goesWrong(written))
        return wrong;
    ULONG const given = std::min(size, most);
    auto const* const first = static_cast<BYTE const*>(source);
    taken.insert(taken.end(), first, first + given);
    if (written)
        *written = given;
    return S_OK;
}

namespace {

class HostileCarrier : public HostileControlTest {
protected:
    /// A control that holds a value for most properties.
    struct FullLife : Life {
        FullLife() : Life(HostileControlTest::kind())
        {
            begin();
            putProperties();
        }
    };
    static kit::Bytes fullForm()
    {
        FullLife life;
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
    static HRESULT loadBag(std::string const& title, IPropertyBag& bag)
    {
        return load(title, [&](Life& life) { return life.control.load(bag); });
    }
    static HRESULT loadStream(std::string const& title, IStream& stream)
    {
        return load(title, [&](Life& life) { return life.control.ask(&IPersistStreamInit::Load, &stream); });
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
        refused += FAILED(loadBag(row.name + " for everything", *bag.get()));
        if (isDue(12))
            for (wchar_t const* const name : {L"Font", L"MouseIcon", L"Image", L"Caption", L"BackColor",
                                              L"BorderWidth", L"Enabled", L"Value"}) {
                auto const one = kit::make<kit::FakeBag>();
                one->put(L"ForeColor", Variant::ofLong(77));
                one->put(name, row.value);
                loadBag(row.name + " for " + kit::narrow(name), *one.get());
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
            loadBag("garbage of type " + std::to_string(type), *bag.get());
        }
}

TEST_P(HostileCarrier, bagThatFailsToTakeAnyValueFailsTheSave)
{
    FullLife life;
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
        EXPECT_EQ(loadStream("pieces", *stream.get()), S_OK) << most;
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
            EXPECT_TRUE(FAILED(loadStream("wrong read " + std::to_string(at), *stream.get())))
                << row.answer << ' ' << row.claimed << ' ' << at;
        }
}

TEST_P(HostileCarrier, streamThatTakesLessThanItIsGivenFailsTheSave)
{
    FullLife life;
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
        live(kind(), std::string("carriers: ") + deed.name, [&](Life& life) {
            life.begin();
            life.show();
            auto const stream = kit::make<HostileStream>(full);
            stream->wrongAt = 2;
            stream->deed = [&] { deed.run(life); };
            auto const bag = kit::make<HostileBag>();
            auto const at = [&](int call) {
                if (bag->calls == call)
                    deed.run(life);
            };
            bag->reads = [&](VARIANT&) {
                at(4);
                return E_INVALIDARG;
            };
            bag->writes = [&] {
                at(2);
                return S_OK;
            };
            life.control.ask(&IPersistStreamInit::Load, stream.get());
            life.control.load(*bag.get());
            bag->calls = 0;
            life.control.save(*bag.get());
            stream->calls = 1;
            life.control.ask(&IPersistStreamInit::Save, stream.get(), TRUE);
            bag->reads = nullptr;
            bag->writes = nullptr;
            stream->deed = nullptr;
        });
    }
}

} // namespace
} // namespace quillet::hostile
