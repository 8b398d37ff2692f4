// A recording counterpart of a container's property bag.
#pragma once

#include "base/Variant.h"
#include "kit/Counterpart.h"

#include <ocidl.h>
#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace quillet::kit {

/// Keeps values of any type by name (case does not matter, as in real bags).
class FakeBag final : public Counterpart<IPropertyBag> {
public:
    struct Row {
        std::wstring name;
        VARTYPE type;  ///< asked for on entry of a read; given in a write
        Variant value; ///< what the bag answered, or was given
    };
    /// What happens to a value that a caller asks for by type.
    enum class Values { AsTheyAre, Converted };

    Values values = Values::AsTheyAre;
    std::vector<Row> reads;
    std::vector<Row> writes;

    void put(std::wstring const& name, Variant value) { m_values[name] = std::move(value); }
    void remove(std::wstring const& name) { m_values.erase(name); }
    bool has(std::wstring const& name) const { return m_values.contains(name); }
    Variant value(std::wstring const& name) const { return has(name) ? m_values.at(name) : Variant(); }
    /// Reads and writes of this name fail.
    void fail(std::wstring const& name, HRESULT result = E_FAIL) { m_failures[name] = result; }

    std::vector<std::wstring> namesRead() const { return namesOf(reads); }
    std::vector<std::wstring> namesWritten() const { return namesOf(writes); }

    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override
    {
        if (!name || !value)
            return E_POINTER;
        Row& row = reads.emplace_back(Row{name, value->vt, {}});
        if (m_failures.contains(name))
            return m_failures[name];
        if (!has(name))
            return E_INVALIDARG; // what bags answer for a name that they do not hold
        Variant answer = m_values[name];
        if (values == Values::Converted && row.type != VT_EMPTY) {
            HRESULT const result = ::VariantChangeType(answer.address(), answer.address(), 0, row.type);
            if (FAILED(result))
                return result;
        }
        row.value = answer;
        *value = answer.detach();
        return S_OK;
    }
    STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override
    {
        if (!name || !value)
            return E_POINTER;
        writes.push_back(Row{name, value->vt, Variant::copyOf(*value)});
        if (m_failures.contains(name))
            return m_failures[name];
        m_values[name] = Variant::copyOf(*value);
        return S_OK;
    }

private:
    static std::vector<std::wstring> namesOf(std::vector<Row> const& rows)
    {
        std::vector<std::wstring> names;
        for (Row const& row : rows)
            names.push_back(row.name);
        return names;
    }

    struct IgnoringCase {
        bool operator()(std::wstring const& a, std::wstring const& b) const
        {
            return ::lstrcmpiW(a.c_str(), b.c_str()) < 0;
        }
    };

    std::map<std::wstring, Variant, IgnoringCase> m_values;
    std::map<std::wstring, HRESULT, IgnoringCase> m_failures;
};

} // namespace quillet::kit
