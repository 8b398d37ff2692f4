// The identifiers of the interfaces that the readers ask for, as no library of this system has them.
#include <initguid.h>

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>
