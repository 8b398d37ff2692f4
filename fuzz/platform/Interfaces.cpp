// The identifiers of the interfaces that the readers ask for, as no library of this system has them.
#define INITGUID // makes the headers define what they otherwise declare

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>
