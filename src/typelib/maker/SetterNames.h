// Names the parameters of puts in a written library.
#pragma once

namespace quillet {

/// CreateTypeLib2 refuses a name for the last parameter of a put or putref, though the file format has a
/// place for it. So each get's result, which needs none, borrows the name while the library is made, and this
/// moves it in the finished file to the put that follows the get. Throws when the file is not as expected.
void moveSetterNames(wchar_t const* file);

} // namespace quillet
