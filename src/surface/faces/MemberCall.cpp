// One late-bound call of a member: the host's arguments converted, the vtable called, the answer converted.
#include "surface/faces/MemberCall.h"

#include "base/ComPtr.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"

#include <iterator>

namespace quillet {

namespace {

constexpr WORD kAssignment = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

/// Calls a function of the vtable. Pointers to all types are passed in the same way.
template <class... Arguments> HRESULT callSlot(IDispatch& dual, unsigned slot, Arguments... arguments)
{
    using Function = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, Arguments...);
    void* const* const table = *reinterpret_cast<void* const* const*>(&dual);
    return reinterpret_cast<Function>(table[slot])(&dual, arguments...);
}

bool isObject(VARIANT const& argument) noexcept
{
    VARTYPE const type = followed(argument).vt & ~VT_BYREF;
    return type == VT_DISPATCH || type == VT_UNKNOWN;
}

/// Moves the error information of a member that failed from the thread to the host's structure.
HRESULT asException(HRESULT failed, EXCEPINFO* exception) noexcept
{
    ComPtr<IErrorInfo> info;
    ::GetErrorInfo(0, info.put());
    if (!exception)
        return DISP_E_EXCEPTION;
    *exception = {};
    exception->scode = failed;
    if (info) {
        info->GetSource(&exception->bstrSource);
        info->GetDescription(&exception->bstrDescription);
        info->GetHelpFile(&exception->bstrHelpFile);
        info->GetHelpContext(&exception->dwHelpContext);
    }
    return DISP_E_EXCEPTION;
}

/// One call on its way.
class Call {
public:
    Call(IDispatch& dual, unsigned slot, Member const& member, MemberCall const& call) noexcept
        : m_dual(dual), m_slot(slot), m_member(member), m_call(call)
    {}

    /// What the member answers. Throws what the call is refused with before it.
    HRESULT run()
    {
        switch (m_member.kind) {
        case MemberKind::Value:
            return m_call.kind & DISPATCH_PROPERTYGET ? get() : put();
        case MemberKind::ReadOnly:
            require(DISPATCH_PROPERTYGET);
            return get();
        case MemberKind::Object:
            return m_call.kind & DISPATCH_PROPERTYGET ? get() : putReference();
        case MemberKind::Method:
            require(DISPATCH_METHOD);
            requireCount(0);
            return callSlot(m_dual, m_slot);
        case MemberKind::Function:
            require(DISPATCH_METHOD);
            return get();
        case MemberKind::WindowProcedure:
            require(DISPATCH_METHOD);
            return sendMessage();
        }
        return E_UNEXPECTED;
    }

private:
    void require(WORD kinds) const
    {
        if (!(m_call.kind & kinds))
            throw RunTimeError(DISP_E_MEMBERNOTFOUND);
    }

    void requireCount(UINT count) const
    {
        if (m_call.arguments.cArgs != count)
            throw RunTimeError(DISP_E_BADPARAMCOUNT);
    }

    HRESULT get()
    {
        requireCount(0);
        Variant value;
        VARIANT& answer = *value.address();
        if (m_member.type == VT_VARIANT)
            return answered(value, callSlot(m_dual, m_slot, static_cast<void*>(&answer)));
        HRESULT const done =
            callSlot(m_dual, m_slot, static_cast<void*>(&answer.byref)); // where every field is
        if (SUCCEEDED(done)) // script hosts refuse unsigned numbers
            answer.vt = m_member.type == VT_UI4 ? VARTYPE{VT_I4} : m_member.type;
        return answered(value, done);
    }

    HRESULT answered(Variant& value, HRESULT done) noexcept
    {
        if (SUCCEEDED(done) && m_call.result)
            *m_call.result = value.detach();
        return done;
    }

    /// A plain value is assigned by reference as by value: some hosts know no other assignment.
    HRESULT put()
    {
        require(kAssignment);
        requireCount(1);
        VARIANT const& given = m_call.arguments.rgvarg[0];
        if (!(m_call.kind & DISPATCH_PROPERTYPUT) && isObject(given))
            throw RunTimeError(DISP_E_MEMBERNOTFOUND);
        unsigned const slot = m_slot + 1;
        if (m_member.type == VT_VARIANT)
            return callSlot(m_dual, slot, given);
        Variant const value = converted(0);
        switch (m_member.type) {
        case VT_I2:
            return callSlot(m_dual, slot, value.get().iVal);
        case VT_BOOL:
            return callSlot(m_dual, slot, value.get().boolVal);
        case VT_BSTR:
            return callSlot(m_dual, slot, value.get().bstrVal);
        default:
            return callSlot(m_dual, slot, value.get().lVal);
        }
    }

    /// Script assigns objects like values.
    HRESULT putReference()
    {
        require(kAssignment);
        requireCount(1);
        auto const object = Variant::copyOf(m_call.arguments.rgvarg[0]).toObject();
        auto const dispatch = query<IDispatch>(object.get());
        if (object && !dispatch)
            throw RunTimeError(DISP_E_TYPEMISMATCH);
        return callSlot(m_dual, m_slot + 1, dispatch.get());
    }

    HRESULT sendMessage()
    {
        requireCount(static_cast<UINT>(std::size(kMessageParameters)));
        LONG message[std::size(kMessageParameters)];
        for (UINT i = 0; i < std::size(message); ++i)
            message[i] = converted(indexOf(i)).get().lVal;
        Variant result = Variant::ofLong(0);
        return answered(result, callSlot(m_dual, m_slot, message[0], message[1], message[2], message[3],
                                         &result.address()->lVal));
    }

    /// Where a parameter's argument is: the named ones come first, the others from the last to the first.
    UINT indexOf(UINT parameter) const
    {
        DISPPARAMS const& given = m_call.arguments;
        for (UINT i = 0; i < given.cNamedArgs; ++i)
            if (given.rgdispidNamedArgs[i] == static_cast<DISPID>(parameter))
                return i;
        if (parameter >= given.cArgs - given.cNamedArgs)
            throw RunTimeError(DISP_E_PARAMNOTOPTIONAL);
        return given.cArgs - 1 - parameter;
    }

    /// An argument in the member's type.
    Variant converted(UINT index) const
    {
        VARIANT const& given = followed(m_call.arguments.rgvarg[index]);
        if (given.vt == VT_NULL)
            throw RunTimeError(ErrorNumber::InvalidUseOfNull);
        bool const eitherSign = m_member.type == VT_UI4;
        VARTYPE const type = eitherSign ? VARTYPE{VT_I4} : m_member.type;
        if (given.vt == type)
            return Variant::copyOf(given); // the system's conversion to the same type takes far longer
        Variant value;
        HRESULT done = changeType(*value.put(), given, type);
        if (done == DISP_E_OVERFLOW && eitherSign)
            done = changeType(*value.put(), given, VT_UI4);
        if (SUCCEEDED(done))
            return value;
        if (m_call.badArgument)
            *m_call.badArgument = index;
        throw RunTimeError(done == DISP_E_BADVARTYPE ? DISP_E_TYPEMISMATCH : done);
    }

    IDispatch& m_dual;
    unsigned m_slot;
    Member const& m_member;
    MemberCall const& m_call;
};

Member const& memberOf(Members members, DISPID id)
{
    for (Member const& member : members)
        if (member.id == id)
            return member;
    throw RunTimeError(DISP_E_MEMBERNOTFOUND);
}

} // namespace

HRESULT callMember(IDispatch& dual, Members members, MemberCall const& call, ErrorSource const& source)
{
    Member const& member = memberOf(members, call.id);
    HRESULT done = S_OK;
    try {
        done = Call(dual, slotOf(members, member), member, call).run();
    } catch (RunTimeError const& error) {
        if (!error.description())
            throw; // the call is refused; a run-time error is told like one of the member
        done = reportCaught(source);
    }
    return SUCCEEDED(done) ? done : asException(done, call.exception);
}

} // namespace quillet
