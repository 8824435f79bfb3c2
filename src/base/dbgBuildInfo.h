// Qn::DbgBuildInfo: what a module (the application or one of its libraries)
// says about its build: its name and version, when it was built, and which
// libQNbase version it was compiled against.
//
// A build stamp is the compiler's "Mmm dd yyyy hh:mm:ss" (QN_BUILD_STAMP) or
// "yyyy-mm-dd hh:mm:ss" from a build system; other texts are kept but do not
// read as a time. A plain value; thread-safe to read.
#pragma once

#include <cstdint>
#include <string>

#include <base/dbgVersion.h>

namespace Qn {

class QN_BASE_API DbgBuildInfo {
  public:
    enum Kind { Library, Application };

    // A null name or stamp is kept as the empty text.
    DbgBuildInfo(const char* name, DbgVersion version, const char* stamp, DbgVersion baseVersion,
                 Kind kind = Library);

    const char* getName() const { return _name.c_str(); }
    DbgVersion getVersion() const { return _version; }
    const char* getStamp() const { return _stamp.c_str(); }
    // The libQNbase version the module was compiled against.
    DbgVersion getBaseVersion() const { return _baseVersion; }
    Kind getKind() const { return _kind; }

    // The stamp as the number yyyymmddhhmmss, which orders like the times; -1
    // when it does not read as a date and time.
    int64_t getStampValue() const { return parseStamp(_stamp.c_str()); }
    static int64_t parseStamp(const char* stamp);

    // "<name> (built <stamp>)", as the failures name a module.
    std::string describeBuild() const;

  private:
    std::string _name;
    DbgVersion _version;
    std::string _stamp;
    DbgVersion _baseVersion;
    Kind _kind;
};

}  // namespace Qn
