// Streams and storages in memory.
#pragma once

#include "base/ComPtr.h"

#include <windows.h>

#include <objidl.h>

#include <vector>

namespace quillet::kit {

using Bytes = std::vector<BYTE>;

/// A stream that holds the bytes, at its beginning.
ComPtr<IStream> streamOf(Bytes const& bytes = {});

/// Everything that is in the stream, whatever its position; the position does not change.
Bytes bytesOf(IStream& stream);

ULONGLONG positionOf(IStream& stream);

/// A stream that fails: it reads the bytes and then no further, or takes so many and then no more.
ComPtr<IStream> brokenStream(Bytes const& bytes, ULONG bytesTaken);

/// An empty compound file.
ComPtr<IStorage> newStorage();

} // namespace quillet::kit
