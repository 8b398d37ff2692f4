// What the sources call and nobody's answer depends on: error info, the system's texts, a stock font, the
// last error, the component's file; and the identifiers of interfaces, as no library of this system has them.
#define INITGUID // makes the headers define what they otherwise declare

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <oleauto.h>

HRESULT WINAPI CreateErrorInfo(ICreateErrorInfo**) { return E_NOTIMPL; }
HRESULT WINAPI SetErrorInfo(ULONG, IErrorInfo*) { return S_OK; }
DWORD WINAPI FormatMessageW(DWORD, LPCVOID, DWORD, DWORD, LPWSTR, DWORD, va_list*) { return 0; }
HGDIOBJ WINAPI GetStockObject(INT) { return nullptr; }
DWORD WINAPI GetLastError() { return ERROR_GEN_FAILURE; }
DWORD WINAPI GetModuleFileNameW(HMODULE, LPWSTR, DWORD) { return 0; }
