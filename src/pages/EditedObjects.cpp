// The controls that a property page edits together.
#include "pages/EditedObjects.h"

#include "base/Bstr.h"
#include "base/ComCall.h"
#include "base/LateBound.h"
#include "base/RunTimeError.h"
#include "typelib/HelpContexts.h"

#include <algorithm>

namespace quillet {

namespace {

HRESULT identifierOf(IDispatch& object, std::wstring const& name, DISPID& id)
{
    auto* text = const_cast<wchar_t*>(name.c_str());
    return object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
}

bool hasProperty(IDispatch& object, std::wstring const& name)
{
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(identifierOf(object, name, id));
}

/// Owns the texts of an error report.
struct Report {
    EXCEPINFO info = {};
    Report() = default;
    ~Report()
    {
        for (BSTR const text : {info.bstrSource, info.bstrDescription, info.bstrHelpFile})
            Bstr::adopt(text);
    }
    Report(Report const&) = delete;
    Report& operator=(Report const&) = delete;
};

std::wstring textOf(HRESULT failed, Report const& report)
{
    if (failed == DISP_E_EXCEPTION && report.info.bstrDescription)
        return std::wstring(Bstr::viewOf(report.info.bstrDescription));
    if (failed == DISP_E_TYPEMISMATCH)
        return L"Type mismatch";
    if (failed == DISP_E_OVERFLOW)
        return L"Overflow";
    return L"The control does not take this value";
}

std::wstring assign(IDispatch& object, std::wstring const& property, Variant const& value)
{
    Report report;
    DISPID id = DISPID_UNKNOWN;
    HRESULT result = identifierOf(object, property, id);
    if (SUCCEEDED(result)) {
        bool const isObject = value.type() == VT_DISPATCH || value.type() == VT_UNKNOWN;
        Variant argument = value;
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS arguments = {argument.address(), &named, 1, 1};
        result = object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT,
                               isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, &arguments, nullptr,
                               &report.info, nullptr);
    }
    return FAILED(result) ? textOf(result, report) : std::wstring();
}

} // namespace

void EditedObjects::set(IUnknown* const* objects, ULONG count)
{
    std::vector<ComPtr<IDispatch>> taken;
    for (ULONG i = 0; i < count; ++i) {
        auto object = query<IDispatch>(objects[i]);
        if (!object)
            throw RunTimeError(ErrorNumber::TypeMismatch);
        taken.push_back(std::move(object));
    }
    m_objects = std::move(taken);
}

ComPtr<ITypeInfo> EditedObjects::description() const
{
    ComPtr<ITypeInfo> description;
    check(m_objects.front()->GetTypeInfo(0, LOCALE_NEUTRAL, description.put()));
    return description;
}

std::vector<DescribedProperty> EditedObjects::properties() const
{
    if (m_objects.empty())
        return {};
    auto properties = describedProperties(*description().get());
    std::erase_if(properties, [this](DescribedProperty const& each) {
        return !each.writable || std::ranges::any_of(m_objects, [&](ComPtr<IDispatch> const& object) {
            return !hasProperty(*object.get(), each.name);
        });
    });
    return properties;
}

DWORD EditedObjects::helpContext() const noexcept
{
    if (m_objects.empty())
        return kHelpManual;
    return orFallback(kHelpManual, [&] {
        DWORD topic = kHelpManual;
        check(description()->GetDocumentation(MEMBERID_NIL, nullptr, nullptr, &topic, nullptr));
        return topic;
    });
}

Variant EditedObjects::get(std::wstring const& property) const
{
    return propertyByName(m_objects.empty() ? nullptr : m_objects.front().get(), property.c_str());
}

std::wstring EditedObjects::put(std::wstring const& property, Variant const& value) const
{
    for (auto const& object : m_objects)
        if (auto reason = assign(*object.get(), property, value); !reason.empty())
            return reason;
    return {};
}

} // namespace quillet
