#include <base/rnTextFile.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include <base/rnEx.h>

namespace Qn {

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

[[noreturn]] void accessFailed(const char* path, int error) {
    throw RnEx::ExSampleFileAccess(__FILE__, __LINE__, path, std::strerror(error));
}

}  // namespace

void RnTextFile::write(const char* path, const std::string& text) {
    std::FILE* file = std::fopen(path, "wb");
    if (!file) accessFailed(path, errno);
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    const int writeError = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written) accessFailed(path, writeError);
    if (!closed) accessFailed(path, errno);
}

std::string RnTextFile::read(const char* path) {
    FilePtr file(std::fopen(path, "rb"));
    if (!file) accessFailed(path, errno);
    std::string text;
    char buffer[4096];
    std::size_t got;
    while ((got = std::fread(buffer, 1, sizeof buffer, file.get())) > 0) text.append(buffer, got);
    if (std::ferror(file.get())) accessFailed(path, errno);
    return text;
}

}  // namespace Qn
