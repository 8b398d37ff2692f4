// A button's state read from a bag and from a stream and written into them, against what only moves the same
// values.
#include "base/RunTimeError.h"
#include "base/Variant.h"
#include "bench/Container.h"
#include "bench/Rounds.h"
#include "kit/Fonts.h"
#include "kit/HostWindow.h"
#include "typelib/Guids.h"
#include "typelib/Interfaces.h"

#include <string>
#include <vector>

namespace quillet::bench {

namespace {

constexpr int kCalls = 50;

/// Values by name in memory, in the order of their writing. It remembers what it was asked for.
class MemoryBag final : public Owned<IPropertyBag> {
public:
    struct Asked {
        std::wstring name;
        VARTYPE type;
    };
    struct Held {
        std::wstring name;
        Variant value;
    };

    std::vector<Asked> const& asked() const noexcept { return m_asked; }
    std::vector<Held> const& held() const noexcept { return m_held; }
    void clear() { m_held.clear(); }
    void remember(bool on) noexcept { m_remembers = on; }

    STDMETHODIMP QueryInterface(REFIID, void** object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override
    {
        if (m_remembers)
            m_asked.push_back({name, value->vt});
        for (Held const& row : m_held)
            if (row.name == name)
                return ::VariantCopy(value, const_cast<VARIANT*>(&row.value.get()));
        return E_INVALIDARG;
    }
    STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override
    {
        m_held.push_back({name, Variant::copyOf(*value)});
        return S_OK;
    }

private:
    std::vector<Held> m_held;
    std::vector<Asked> m_asked;
    bool m_remembers = true;
};

/// A loaded button that is not shown yet.
class LoadedButton {
public:
    explicit LoadedButton(kit::Library const& library)
    {
        auto const factory = library.factory(kQvFlatCommandClass);
        check(deref(factory.get())
                  .CreateInstance(nullptr, IID_IOleObject, reinterpret_cast<void**>(m_object.put())));
        check(m_object->SetClientSite(&m_site));
        SavedButton saved;
        check(m_object.as<IPersistPropertyBag>()->Load(&saved, nullptr));
    }
    ~LoadedButton() { m_object->SetClientSite(nullptr); }
    LoadedButton(LoadedButton const&) = delete;
    LoadedButton& operator=(LoadedButton const&) = delete;

    template <class T> ComPtr<T> as() const { return m_object.as<T>(); }

private:
    kit::HostWindow m_window{40, 40, 200, 100};
    Frame m_frame{m_window.handle()};
    Site m_site{m_frame, m_window.handle(), {20, 20, 140, 52}};
    ComPtr<IOleObject> m_object;
};

void rewind(IStream& stream) { check(stream.Seek({}, STREAM_SEEK_SET, nullptr)); }

ComPtr<IStream> memoryStream()
{
    ComPtr<IStream> stream;
    check(::CreateStreamOnHGlobal(nullptr, TRUE, stream.put()));
    return stream;
}

/// Moves exactly the values that the control reads and writes.
Rows measureBag(LoadedButton const& button, Effort effort)
{
    auto const persistent = button.as<IPersistPropertyBag>();
    MemoryBag bag;
    check(persistent->Save(&bag, TRUE, FALSE));
    check(persistent->Load(&bag, nullptr));
    std::vector<MemoryBag::Asked> const asked = bag.asked();
    std::vector<MemoryBag::Held> const held = bag.held();
    bag.remember(false);

    auto const loadOurs = [&] { persistent->Load(&bag, nullptr); };
    auto const readValues = [&] {
        for (MemoryBag::Asked const& each : asked) {
            Variant value;
            value.address()->vt = each.type;
            value.address()->byref = nullptr;
            if (FAILED(bag.Read(each.name.c_str(), value.address(), nullptr)))
                value.address()->vt = VT_EMPTY;
        }
    };
    Comparison const loading = compare(effort, kCalls, loadOurs, readValues);

    auto const saveOurs = [&] {
        bag.clear();
        persistent->Save(&bag, TRUE, FALSE);
    };
    auto const writeValues = [&] {
        bag.clear();
        for (MemoryBag::Held const& each : held)
            bag.Write(each.name.c_str(), const_cast<VARIANT*>(&each.value.get()));
    };
    return {{"a button loaded from a bag", loading},
            {"a button saved into a bag", compare(effort, kCalls, saveOurs, writeValues)}};
}

/// Moves as many bytes, and makes the one object among them, a font of the button's own, from its own bytes.
Rows measureStream(LoadedButton const& button, Effort effort)
{
    auto const font = kit::newFont(L"Tahoma", 12).as<IFontDisp>();
    check(button.as<_qvFlatCommand>()->putref_Font(font.get()));
    auto const persistent = button.as<IPersistStreamInit>();
    auto const stream = memoryStream();
    check(persistent->Save(stream.get(), TRUE));
    STATSTG status{};
    check(stream->Stat(&status, STATFLAG_NONAME));
    std::vector<BYTE> bytes(status.cbSize.LowPart);
    ULONG moved = 0;
    rewind(*stream.get());
    check(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &moved));

    auto const fontStream = memoryStream();
    check(font.as<IPersistStream>()->Save(fontStream.get(), TRUE));

    auto const loadOurs = [&] {
        rewind(*stream.get());
        persistent->Load(stream.get());
    };
    auto const readBytes = [&] {
        rewind(*stream.get());
        stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &moved);
        rewind(*fontStream.get());
        FONTDESC description{};
        description.cbSizeofstruct = sizeof description;
        description.lpstrName = const_cast<LPOLESTR>(L"Tahoma");
        ComPtr<IFont> made;
        ::OleCreateFontIndirect(&description, IID_IFont, reinterpret_cast<void**>(made.put()));
        made.as<IPersistStream>()->Load(fontStream.get());
    };
    auto const saveOurs = [&] {
        rewind(*stream.get());
        persistent->Save(stream.get(), TRUE);
    };
    auto const writeBytes = [&] {
        rewind(*fontStream.get());
        font.as<IPersistStream>()->Save(fontStream.get(), TRUE);
        rewind(*stream.get());
        stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &moved);
    };
    Comparison const loading = compare(effort, kCalls, loadOurs, readBytes);
    return {{"a button loaded from a stream", loading},
            {"a button saved into a stream", compare(effort, kCalls, saveOurs, writeBytes)}};
}

} // namespace

Rows measureSaving(kit::Library const& library, Effort effort)
{
    LoadedButton const button(library);
    Rows rows = measureBag(button, effort);
    for (Row& row : measureStream(button, effort))
        rows.push_back(std::move(row));
    return rows;
}

} // namespace quillet::bench
