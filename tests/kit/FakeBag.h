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

    void put(std::wstring const& name, Variant value);
    void remove(std::wstring const& name);
    bool has(std::wstring const& name) const;
    Variant value(std::wstring const& name) const;
    /// Reads and writes of this name fail.
    void fail(std::wstring const& name, HRESULT result = E_FAIL);

    std::vector<std::wstring> namesRead() const;
    std::vector<std::wstring> namesWritten() const;

    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
    STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override;

private:
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
