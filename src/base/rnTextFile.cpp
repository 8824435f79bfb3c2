#include <base/rnTextFile.h>

#include <base/exSysError.h>
#include <base/osFileReader.h>
#include <base/osFileWriter.h>
#include <base/rnEx.h>

namespace Qn {

namespace {

// Runs a file operation, turning a system failure into the exporters' own
// exception with the path and the system's reason.
template <class Operation>
auto withAccessCheck(const char* path, Operation operation) {
    try {
        return operation();
    } catch (const ExSysError& failure) {
        throw RnEx::ExSampleFileAccess(__FILE__, __LINE__, path, failure.getReason());
    }
}

}  // namespace

void RnTextFile::write(const char* path, const std::string& text) {
    withAccessCheck(path, [&] {
        OsFileWriter writer{OsFilePath(path)};
        writer.open();
        writer.write(text.data(), text.size());
        writer.close();
    });
}

std::string RnTextFile::read(const char* path) {
    return withAccessCheck(path, [&] {
        OsFileReader reader{OsFilePath(path)};
        reader.open();
        std::string text;
        char buffer[4096];
        while (const size_t got = reader.read(buffer, sizeof buffer)) text.append(buffer, got);
        reader.close();
        return text;
    });
}

}  // namespace Qn
