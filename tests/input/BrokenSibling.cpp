// A flat command button of somebody else's making, whose Refresh answers what a test wants.
#include "BrokenSibling.h"

#include "typelib/DispatchIds.h"

namespace quillet::input {

HRESULT BrokenSibling::called(DISPID method)
{
    if (method != dispid::qvFlatCommand::Refresh)
        return E_NOTIMPL;
    ++refreshed;
    return m_answer;
}

} // namespace quillet::input
