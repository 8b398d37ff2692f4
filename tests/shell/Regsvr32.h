// Runs regsvr32 on the built component.
#pragma once

#include <windows.h>

#include <string>

namespace quillet {

/// Runs it with the arguments and the component's path behind them; its exit code, 0 for success.
DWORD regsvr32(std::wstring const& arguments);

} // namespace quillet
