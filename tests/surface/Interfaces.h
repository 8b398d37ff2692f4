// The interfaces that a control offers and those that it must not offer.
#pragma once

#include "base/Compiler.h"

#include <objsafe.h>
#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <docobj.h>

// The tool chain's header declares the interface without its identifier.
QV_INTERFACE_UUID(IObjectSafety, 0xCB5BDC81, 0x93C1, 0x11CF, 0x8F, 0x20, 0x00, 0x80, 0x5F, 0x2C, 0xD0, 0x64)

namespace quillet::hosting {

struct NamedInterface {
    char const* name;
    IID iid;
};

#define QUILLET_NAMED(type)                                                                                  \
    {                                                                                                        \
#type, __uuidof(type)                                                                                \
    }
inline NamedInterface const kOffered[] = {
    QUILLET_NAMED(IUnknown),
    QUILLET_NAMED(IDispatch),
    QUILLET_NAMED(IOleObject),
    QUILLET_NAMED(IOleWindow),
    QUILLET_NAMED(IOleInPlaceObject),
    QUILLET_NAMED(IOleInPlaceActiveObject),
    QUILLET_NAMED(IOleControl),
    QUILLET_NAMED(IViewObject),
    QUILLET_NAMED(IViewObject2),
    QUILLET_NAMED(IViewObjectEx),
    QUILLET_NAMED(IDataObject),
    QUILLET_NAMED(IConnectionPointContainer),
    QUILLET_NAMED(IProvideClassInfo),
    QUILLET_NAMED(IProvideClassInfo2),
    QUILLET_NAMED(ISupportErrorInfo),
    QUILLET_NAMED(IPersist),
    QUILLET_NAMED(IPersistStreamInit),
    QUILLET_NAMED(IPersistStorage),
    QUILLET_NAMED(IPersistPropertyBag),
    QUILLET_NAMED(IQuickActivate),
    QUILLET_NAMED(IObjectWithSite),
    QUILLET_NAMED(IObjectSafety),
};

// Each of these leads some container away from what the control does well.
inline NamedInterface const kNotOffered[] = {
    QUILLET_NAMED(IPersistPropertyBag2),        QUILLET_NAMED(IOleDocument),    QUILLET_NAMED(IPersistMemory),
    QUILLET_NAMED(IOleInPlaceObjectWindowless), QUILLET_NAMED(IClientSecurity), QUILLET_NAMED(IMarshal),
};
#undef QUILLET_NAMED

} // namespace quillet::hosting
