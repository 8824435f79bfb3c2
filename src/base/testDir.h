// Qn::TestDir: where test programs put the files they make.
//
//   const Qn::OsFilePath dir = Qn::TestDir::create(Qn::TestDir::getDefaultPath() + "decode");
//
// Thread-safe: the default path is computed once, by the first caller.
#pragma once

#include <base/osFilePath.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API TestDir {
  public:
    // The directory named by QN_TEST_DIR in the start-up snapshot when it is set
    // and not empty, else the system's temporary directory. Computed at the
    // first call; raises what OsFilePath::getTempDir raises.
    static const OsFilePath& getDefaultPath();
    // Creates the directory path and its missing parents (an existing directory
    // is accepted) and returns path. Raises ExInternalError when a file is in
    // the way, ExSysErrorNative when the system refuses, OsFileEx::ExNullFilePath
    // for an empty path.
    static OsFilePath create(const OsFilePath& path);
};

}  // namespace Qn
