#include "frame/settings.h"

namespace zepm
{

const OwnSettings* settings = nullptr;

namespace
{

// Before all constructors that may call the library.
[[gnu::constructor(101)]] void findSettings() { settings = ownGetSettings(); }

} // namespace

} // namespace zepm
