// Qn::ExSysErrorNative: the system-error exception of the platform being built
// (ExSysErrorWindows on Windows, ExSysErrorPosix elsewhere). Portable code and
// tests raise and catch this name.
#pragma once

#if defined(_WIN32)
#include <base/exSysErrorWindows.h>
namespace Qn {
using ExSysErrorNative = ExSysErrorWindows;
}
#else
#include <base/exSysErrorPosix.h>
namespace Qn {
using ExSysErrorNative = ExSysErrorPosix;
}
#endif
