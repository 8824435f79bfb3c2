// Qn::OsNativePath: the native form of a Windows-form path, for the POSIX
// companions of the file layer.
//
// A leading drive prefix "X:" is dropped ("C:\a\b" is "/a/b", "C:a" is "a", "C:"
// alone is "."), then every backslash becomes a slash; a native path such as
// "/tmp/x" passes through unchanged. Used only by POSIX code; a value object.
// The permissions of the library become mode bits here too.
#pragma once

#include <string>

#include <base/osFileTypes.h>

namespace Qn {

class OsNativePath {
  public:
    explicit OsNativePath(const char* path);

    const char* c_str() const { return _native.c_str(); }

    // The mode bits of permissions; a directory that may be read may also be
    // searched.
    static unsigned getMode(const OsFileTypes::Permissions& permissions, bool directory);

  private:
    std::string _native;
};

}  // namespace Qn
