// A recording counterpart of a container's property bag.
#include "kit/FakeBag.h"

namespace quillet::kit {

namespace {

std::vector<std::wstring> namesOf(std::vector<FakeBag::Row> const& rows)
{
    std::vector<std::wstring> names;
    for (FakeBag::Row const& row : rows)
        names.push_back(row.name);
    return names;
}

} // namespace

void FakeBag::put(std::wstring const& name, Variant value) { m_values[name] = std::move(value); }

void FakeBag::remove(std::wstring const& name) { m_values.erase(name); }

bool FakeBag::has(std::wstring const& name) const { return m_values.contains(name); }

Variant FakeBag::value(std::wstring const& name) const
{
    auto const found = m_values.find(name);
    return found == m_values.end() ? Variant() : found->second;
}

void FakeBag::fail(std::wstring const& name, HRESULT result) { m_failures[name] = result; }

std::vector<std::wstring> FakeBag::namesRead() const { return namesOf(reads); }

std::vector<std::wstring> FakeBag::namesWritten() const { return namesOf(writes); }

STDMETHODIMP FakeBag::Read(LPCOLESTR name, VARIANT* value, IErrorLog*)
{
    if (!name || !value)
        return E_POINTER;
    Row& row = reads.emplace_back(Row{name, value->vt, {}});
    if (auto const failure = m_failures.find(name); failure != m_failures.end())
        return failure->second;
    auto const found = m_values.find(name);
    if (found == m_values.end())
        return E_INVALIDARG; // what bags answer for a name that they do not hold
    Variant answer = found->second;
    if (values == Values::Converted && row.type != VT_EMPTY) {
        HRESULT const result = ::VariantChangeType(answer.address(), answer.address(), 0, row.type);
        if (FAILED(result))
            return result;
    }
    row.value = answer;
    *value = answer.detach();
    return S_OK;
}

STDMETHODIMP FakeBag::Write(LPCOLESTR name, VARIANT* value)
{
    if (!name || !value)
        return E_POINTER;
    writes.push_back(Row{name, value->vt, Variant::copyOf(*value)});
    if (auto const failure = m_failures.find(name); failure != m_failures.end())
        return failure->second;
    m_values[name] = Variant::copyOf(*value);
    return S_OK;
}

} // namespace quillet::kit
