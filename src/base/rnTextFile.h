// Qn::RnTextFile: whole-file text input and output for the sample exporters.
// Paths follow the library's rules (OsFilePath); failures raise
// RnEx::ExSampleFileAccess with the path and the system's reason.
#pragma once

#include <string>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API RnTextFile {
  public:
    // Replaces the file at path with text.
    static void write(const char* path, const std::string& text);
    // The whole content of the file at path.
    static std::string read(const char* path);
};

}  // namespace Qn
