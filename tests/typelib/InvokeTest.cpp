// Hosts may call through the reloaded library: the system's ITypeInfo::Invoke finds, converts and calls.
#include "BuiltLibrary.h"
#include "base/Bstr.h"
#include "base/Variant.h"
#include "kit/Counterpart.h"
#include "typelib/DispatchIds.h"
#include "typelib/Interfaces.h"

#include <gtest/gtest.h>
#include <oleauto.h>

#include <vector>

namespace quillet {
namespace {

/// The owner type of a member's value.
template <class T> struct StoredAs {
    using Type = T;
};
template <> struct StoredAs<BSTR> {
    using Type = Bstr;
};
template <> struct StoredAs<VARIANT> {
    using Type = Variant;
};
template <class T> using Stored = typename StoredAs<T>::Type;

/// Keeps what it is given.
class CalledCommand final : public kit::DispatchCounterpart<_qvFlatCommand> {
public:
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) final
    {
        return m_info->GetIDsOfNames(names, count, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* error, UINT* badArgument) final
    {
        return m_info->Invoke(static_cast<_qvFlatCommand*>(this), id, flags, parameters, result, error,
                              badArgument);
    }

#define QV_VALUE(name, id, type, help)                                                                       \
    STDMETHODIMP get_##name(type* value) final { return answer(m_##name, value); }                           \
    STDMETHODIMP put_##name(type value) final { return keep(m_##name, value); }
#define QV_READ_ONLY(name, id, type, help)                                                                   \
    STDMETHODIMP get_##name(type* value) final { return answer(type{id}, value); }
#define QV_OBJECT(name, id, type, help)                                                                      \
    STDMETHODIMP get_##name(type** value) final                                                              \
    {                                                                                                        \
        *value = m_##name.copy();                                                                            \
        return S_OK;                                                                                         \
    }                                                                                                        \
    STDMETHODIMP putref_##name(type* value) final                                                            \
    {                                                                                                        \
        m_##name = value;                                                                                    \
        return S_OK;                                                                                         \
    }
#define QV_METHOD(name, id, help)                                                                            \
    STDMETHODIMP name() final                                                                                \
    {                                                                                                        \
        m_called.push_back(id);                                                                              \
        return S_OK;                                                                                         \
    }
#define QV_WINDOW_PROCEDURE(name, id, help)                                                                  \
    STDMETHODIMP name(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam, LONG* result) final                    \
    {                                                                                                        \
        m_message = {hwnd, uMsg, wParam, lParam};                                                            \
        *result = 42;                                                                                        \
        return S_OK;                                                                                         \
    }
#include "typelib/members/qvFlatCommand.inc"

#define QV_VALUE(name, id, type, help) Stored<type> m_##name{};
#define QV_OBJECT(name, id, type, help) ComPtr<type> m_##name;
#include "typelib/members/qvFlatCommand.inc"

    std::vector<LONG> m_message;
    std::vector<DISPID> m_called;

private:
    template <class T, class Given> static HRESULT answer(T const& stored, Given* value)
    {
        if constexpr (std::is_same_v<T, Bstr>)
            *value = stored.copy();
        else if constexpr (std::is_same_v<T, Variant>)
            *value = Variant(stored).detach();
        else
            *value = stored;
        return S_OK;
    }
    template <class T, class Given> static HRESULT keep(T& stored, Given value)
    {
        if constexpr (std::is_same_v<T, Bstr>)
            stored = Bstr(Bstr::viewOf(value));
        else if constexpr (std::is_same_v<T, Variant>)
            stored = Variant::copyOf(value);
        else
            stored = value;
        return S_OK;
    }

    ComPtr<ITypeInfo> m_info = builtVtable(__uuidof(_qvFlatCommand));
};

class Invoke : public testing::Test {
protected:
    HRESULT get(DISPID id, Variant& value)
    {
        DISPPARAMS none{};
        return object->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, value.put(), nullptr, nullptr);
    }

    HRESULT set(DISPID id, Variant value, WORD how = DISPATCH_PROPERTYPUT)
    {
        DISPID target = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{value.address(), &target, 1, 1};
        return object->Invoke(id, IID_NULL, 0, how, &parameters, nullptr, nullptr, nullptr);
    }

    /// What a member holds after it was set to value, through both directions of late binding.
    Variant roundTrip(DISPID id, Variant const& value)
    {
        EXPECT_EQ(set(id, value), S_OK);
        Variant result;
        EXPECT_EQ(get(id, result), S_OK);
        return result;
    }

    ComPtr<CalledCommand> object = kit::make<CalledCommand>();
};

using namespace dispid::qvFlatCommand;

TEST_F(Invoke, aStringSetByNameComesBack)
{
    OLECHAR name[] = L"caption"; // in another case than published
    LPOLESTR names[] = {name};
    DISPID id = 0;
    ASSERT_EQ(object->GetIDsOfNames(IID_NULL, names, 1, 0, &id), S_OK);
    EXPECT_EQ(id, Caption);
    EXPECT_EQ(roundTrip(id, Variant::ofString(L"&Save")).toString().view(), L"&Save");
    EXPECT_EQ(object->m_Caption.view(), L"&Save");
}

TEST_F(Invoke, aBooleanComesBackAsBoolean)
{
    Variant const result = roundTrip(Enabled, Variant::ofBool(true));
    EXPECT_EQ(result.type(), VT_BOOL);
    EXPECT_EQ(object->m_Enabled, VARIANT_TRUE);
}

TEST_F(Invoke, aSystemColourKeepsItsTopBit)
{
    Variant const result = roundTrip(BackColor, Variant::ofLong(static_cast<long>(0x8000000F)));
    EXPECT_EQ(object->m_BackColor, 0x8000000Fu);
    EXPECT_TRUE(result.type() == VT_I4 || result.type() == VT_UI4) << result.type();
    EXPECT_EQ(static_cast<unsigned long>(result.get().lVal), 0x8000000Ful);
}

TEST_F(Invoke, anEnumerationTravelsAsLong)
{
    Variant const result = roundTrip(BorderStyle, Variant::ofLong(1));
    EXPECT_EQ(object->m_BorderStyle, pdsButtonBorderStyleConstants::Fixed);
    EXPECT_EQ(result.type(), VT_I4);
    EXPECT_EQ(result.toLong(), 1);
}

TEST_F(Invoke, aVariantKeepsItsOwnType)
{
    Variant const result = roundTrip(BorderWidth, Variant::ofShort(3));
    EXPECT_EQ(result.type(), VT_I2);
    EXPECT_EQ(result.toShort(), 3);
    EXPECT_EQ(object->m_BorderWidth.type(), VT_I2);
}

TEST_F(Invoke, anObjectIsSetByReferenceAndComesBackTheSame)
{
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    OLECHAR face[] = L"Tahoma";
    description.lpstrName = face;
    description.cySize.Lo = 80000;
    description.sWeight = FW_NORMAL;
    ComPtr<IFontDisp> font;
    ASSERT_EQ(
        ::OleCreateFontIndirect(&description, __uuidof(IFontDisp), reinterpret_cast<void**>(font.put())),
        S_OK);

    ASSERT_EQ(set(Font, Variant::ofDispatch(font.get()), DISPATCH_PROPERTYPUTREF), S_OK);
    EXPECT_EQ(object->m_Font.get(), font.get());
    Variant result;
    ASSERT_EQ(get(Font, result), S_OK);
    EXPECT_EQ(result.type(), VT_DISPATCH);
    EXPECT_EQ(result.get().pdispVal, font.get());
}

TEST_F(Invoke, aReadOnlyMemberCanBeReadAndNotSet)
{
    Variant result;
    ASSERT_EQ(get(hwnd, result), S_OK);
    EXPECT_EQ(result.toLong(), hwnd);
    EXPECT_TRUE(FAILED(set(hwnd, Variant::ofLong(1)))); // systems differ in the error
}

TEST_F(Invoke, aMethodWithoutArgumentsIsCalled)
{
    DISPPARAMS none{};
    for (DISPID const id : {ShowAbout, Refresh})
        EXPECT_EQ(object->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(object->m_called, (std::vector<DISPID>{ShowAbout, Refresh}));
}

TEST_F(Invoke, theWindowProcedureTakesItsArgumentsByValueAndByReference)
{
    long message = 0x200;
    VARIANT arguments[4] = {}; // last first
    for (VARIANT& argument : arguments)
        argument.vt = VT_I4;
    arguments[0].lVal = 4;
    arguments[1].lVal = 3;
    arguments[2].vt = VT_BYREF | VT_I4;
    arguments[2].plVal = &message;
    arguments[3].lVal = 1;
    DISPPARAMS parameters{arguments, nullptr, 4, 0};
    Variant result;
    ASSERT_EQ(
        object->Invoke(WindowProc, IID_NULL, 0, DISPATCH_METHOD, &parameters, result.put(), nullptr, nullptr),
        S_OK);
    EXPECT_EQ(object->m_message, (std::vector<LONG>{1, 0x200, 3, 4}));
    EXPECT_EQ(result.toLong(), 42);
}

TEST_F(Invoke, aTextThatIsNoNumberIsATypeMismatch)
{
    EXPECT_EQ(set(CaptionIndent, Variant::ofString(L"wide")), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(object->m_CaptionIndent, 0);
}

TEST_F(Invoke, aNumberBeyondAnIntegerOverflows)
{
    EXPECT_EQ(set(CaptionIndent, Variant::ofLong(40000)), DISP_E_OVERFLOW);
    EXPECT_EQ(object->m_CaptionIndent, 0);
}

TEST_F(Invoke, aNumberInAStringConverts)
{
    EXPECT_EQ(roundTrip(CaptionIndent, Variant::ofString(L"12")).toShort(), 12);
}

TEST_F(Invoke, anUnknownNameIsRefused)
{
    OLECHAR name[] = L"NoSuchMember";
    LPOLESTR names[] = {name};
    DISPID id = 0;
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, names, 1, 0, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(id, DISPID_UNKNOWN);
}

} // namespace
} // namespace quillet
