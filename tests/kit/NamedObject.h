// A late-bound object whose properties a test makes up: an extender, a form, a collection.
#pragma once

#include "base/Variant.h"
#include "kit/Counterpart.h"

#include <oaidl.h>
#include <windows.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace quillet::kit {

/// Notes each property read as "Who.Name" and each one written as "Who.Name = value".
class NamedObject final : public DispatchCounterpart<IDispatch> {
public:
    using Provider = std::function<Variant(Variant const& argument)>;

    NamedObject(std::string who, SharedRecord record) : m_who(std::move(who)), m_record(std::move(record)) {}

    /// Offers a property of a fixed value, or of one that is worked out when somebody asks; the argument is
    /// empty where none was given.
    void offer(std::wstring const& name, Variant value)
    {
        Property& property = propertyNamed(name);
        property.value = std::move(value);
        property.provider = nullptr;
        property.failure = S_OK;
    }
    void provide(std::wstring const& name, Provider provider)
    {
        Property& property = propertyNamed(name);
        property.provider = std::move(provider);
        property.failure = S_OK;
    }
    /// The property is known by name, but reading it fails.
    void refuse(std::wstring const& name, HRESULT result = E_FAIL) { propertyNamed(name).failure = result; }
    void remove(std::wstring const& name)
    {
        std::erase_if(m_properties, [&](Property const& property) { return property.isNamed(name); });
    }
    void removeAll() { m_properties.clear(); }
    /// Runs when the property is written.
    void onWrite(std::wstring const& name, std::function<void(Variant const&)> action)
    {
        propertyNamed(name).written = std::move(action);
    }
    /// The present value, as last offered or written; empty when there is none.
    Variant value(std::wstring const& name) const
    {
        auto const found = std::ranges::find_if(m_properties, [&](auto const& p) { return p.isNamed(name); });
        return found == m_properties.end() ? Variant() : found->value;
    }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO*, UINT*) override;

private:
    struct Property {
        std::wstring name;
        DISPID id;
        Variant value;
        Provider provider;
        std::function<void(Variant const&)> written;
        HRESULT failure = S_OK;

        bool isNamed(std::wstring const& other) const
        {
            return ::lstrcmpiW(name.c_str(), other.c_str()) == 0;
        }
    };

    Property& propertyNamed(std::wstring const& name);
    Property* find(std::wstring const& name);
    Property* find(DISPID id);
    HRESULT read(Property const& property, DISPPARAMS const& arguments, VARIANT* result);
    HRESULT write(Property& property, DISPPARAMS const& arguments);

    std::string m_who;
    SharedRecord m_record;
    std::vector<Property> m_properties;
    DISPID m_lastId = 0;
};

std::string narrow(std::wstring_view text);

} // namespace quillet::kit
