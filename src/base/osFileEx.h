// Qn::OsFileEx: the exceptions of the file layer (paths, files, directories).
//
// Every member derives from a standard exception and from ExBase. The three
// that carry a path quote at most its first 256 characters.
//
//   try { dir.getChildrenPath(OsFileTypes::LeafName, filter); }
//   catch (const OsFileEx::ExInvalidPath& e) { std::cerr << e.what(); }
#pragma once

#include <stdexcept>

#include <base/exFamily.h>

namespace Qn {

class QN_BASE_API OsFileEx : public ExBase {
  public:
    class ExIllegalPathConcat;    // an absolute path appended to another path
    class ExSeparatorNotAllowed;  // a path element that holds a separator
    class ExHomeNotDefined;       // HOME is not set
    class ExFileExists;           // an element is in the way of a creation or a copy
    class ExNullFilePath;         // an empty path where a name is needed
    class ExInvalidPath;          // the element named by the path does not exist
    class ExPathNotWritable;      // a copy target that may not be written
    class ExNoRemoteUnbuffered;   // unbuffered I/O asked for on a network volume

  protected:
    OsFileEx(const char* file, int line);
};

QN_EX_FIXED(QN_BASE_API, OsFileEx, ExIllegalPathConcat, std::runtime_error,
            "Attempt to concatenate absolute path.");
QN_EX_FIXED(QN_BASE_API, OsFileEx, ExSeparatorNotAllowed, std::invalid_argument,
            "Separator not allowed in path elements.");
QN_EX_FIXED(QN_BASE_API, OsFileEx, ExHomeNotDefined, std::runtime_error,
            "Cannot get home directory from the environment.");
QN_EX_FIXED(QN_BASE_API, OsFileEx, ExFileExists, std::runtime_error, "File already exists.");
QN_EX_FIXED(QN_BASE_API, OsFileEx, ExNullFilePath, std::runtime_error, "File has null file path.");
QN_EX_FORMAT(QN_BASE_API, OsFileEx, ExInvalidPath, std::invalid_argument, "Invalid path: '%.*s'.");
// Worded as ExInvalidPath on purpose: only the class tells them apart.
QN_EX_FORMAT(QN_BASE_API, OsFileEx, ExPathNotWritable, std::invalid_argument,
             "Invalid path: '%.*s'.");
QN_EX_FORMAT(QN_BASE_API, OsFileEx, ExNoRemoteUnbuffered, std::runtime_error,
             "Unbuffered IO is impossible on a remote drive: '%.*s' is a remote path.");

}  // namespace Qn
