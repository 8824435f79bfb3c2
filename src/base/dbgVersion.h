// Qn::DbgVersion: a version number major.minor.patch, and the version and build
// stamp of the libQNbase headers a module is compiled with.
//
// QN_BASE_VERSION and QN_BUILD_STAMP are macros so that they take their value
// where they are expanded: in a library's own source file, they say which
// libQNbase headers that library was compiled with, and when.
//
//   Qn::DbgVersion built = QN_BASE_VERSION;                // 0.1.0
//   if (!built.isCompatibleWith(runningVersion)) ...
#pragma once

#include <compare>
#include <string>

#include <base/qnExport.h>

// The version of libQNbase; the project's version in CMakeLists.txt is the same.
#define QN_BASE_VERSION_MAJOR 0
#define QN_BASE_VERSION_MINOR 1
#define QN_BASE_VERSION_PATCH 0
#define QN_BASE_VERSION \
    ::Qn::DbgVersion(QN_BASE_VERSION_MAJOR, QN_BASE_VERSION_MINOR, QN_BASE_VERSION_PATCH)

// When the source file that expands it is compiled: "Mmm dd yyyy hh:mm:ss".
#define QN_BUILD_STAMP __DATE__ " " __TIME__

namespace Qn {

class QN_BASE_API DbgVersion {
  public:
    constexpr DbgVersion() = default;
    constexpr DbgVersion(int majorPart, int minorPart, int patchPart)
        : _major(majorPart), _minor(minorPart), _patch(patchPart) {}

    constexpr int getMajor() const { return _major; }
    constexpr int getMinor() const { return _minor; }
    constexpr int getPatch() const { return _patch; }
    // No part is negative.
    constexpr bool isValid() const { return _major >= 0 && _minor >= 0 && _patch >= 0; }

    // Whether a module compiled against this version of a library runs with
    // the library at version loaded. The major versions must agree and the
    // loaded minor must be at least this one (minor versions only add); while
    // the major version is 0 any minor version may break, so the minors must
    // agree too. Patch versions never matter.
    constexpr bool isCompatibleWith(const DbgVersion& loaded) const {
        if (_major != loaded._major) return false;
        return _major == 0 ? _minor == loaded._minor : _minor <= loaded._minor;
    }

    // "major.minor.patch".
    std::string toString() const;

    friend constexpr auto operator<=>(const DbgVersion&, const DbgVersion&) = default;

  private:
    int _major = 0;
    int _minor = 0;
    int _patch = 0;
};

}  // namespace Qn
