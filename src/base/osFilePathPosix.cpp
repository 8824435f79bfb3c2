// POSIX companion of OsFilePath: provides the full-path service, the current
// drive and the temporary directory for Windows-form paths. Native absolute
// paths come back with the prefix "C:" ("/home/u" is "C:\home\u").
#include <base/osFilePath.h>

#include <limits.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <base/exSysErrorPosix.h>

namespace Qn {

namespace {

constexpr char Separator = '\\';

// The current directory with backslashes and no drive ("\home\u").
std::string currentDirectory() {
    char native[PATH_MAX];
    if (getcwd(native, sizeof native) == nullptr) {
        throw ExSysErrorPosix(__FILE__, __LINE__, errno == ERANGE ? ENAMETOOLONG : errno);
    }
    std::string text(native);
    for (char& c : text) {
        if (c == '/') c = Separator;
    }
    return text;
}

// Appends the components of rest (a text that starts at a separator) to full:
// "." vanishes, ".." removes the previous component but never the root.
void appendNormalized(std::string& full, const std::string& rest, bool trailingSeparator) {
    std::vector<std::string> components;
    size_t pos = 0;
    while (pos < rest.size()) {
        size_t end = rest.find(Separator, pos);
        if (end == std::string::npos) end = rest.size();
        std::string component = rest.substr(pos, end - pos);
        if (component == "..") {
            if (!components.empty()) components.pop_back();
        } else if (!component.empty() && component != ".") {
            components.push_back(std::move(component));
        }
        pos = end + 1;
    }
    full += Separator;
    for (size_t i = 0; i < components.size(); ++i) {
        if (i > 0) full += Separator;
        full += components[i];
    }
    if (trailingSeparator && !components.empty()) full += Separator;
}

std::string resolve(const char* path) {
    std::string text(path);
    for (char& c : text) {
        if (c == '/') c = Separator;
    }
    if (text.empty()) throw ExSysErrorPosix(__FILE__, __LINE__, ENOENT);
    std::string root;  // kept verbatim: a drive "X:" or a share "\\server\share"
    std::string rest;  // the part to normalise, starting at a separator
    if (text.size() >= 2 && text[0] == Separator && text[1] == Separator) {
        size_t server = text.find(Separator, 2);
        size_t share = server == std::string::npos ? server : text.find(Separator, server + 1);
        root = text.substr(0, share);
        if (share != std::string::npos) rest = text.substr(share);
    } else if (text.size() >= 2 && text[1] == ':') {
        root = text.substr(0, 2);
        rest = text.size() > 2 && text[2] == Separator
                   ? text.substr(2)
                   : currentDirectory() + Separator + text.substr(2);
    } else {
        root = "C:";
        rest = text[0] == Separator ? text : currentDirectory() + Separator + text;
    }
    if (!rest.empty()) appendNormalized(root, rest, text.back() == Separator);
    return root;
}

}  // namespace

int OsFilePath::performGetFullPath(const char* path, char* buffer) {
    std::string full = resolve(path);
    if (full.size() >= static_cast<size_t>(SystemBufferSize)) {
        throw ExSysErrorPosix(__FILE__, __LINE__, ENAMETOOLONG);
    }
    std::memcpy(buffer, full.c_str(), full.size() + 1);
    if (full.back() == Separator) return -1;
    return static_cast<int>(full.rfind(Separator) + 1);
}

int OsFilePath::performGetCurrentDrive() { return 3; }

OsFilePath OsFilePath::performGetTempDir() {
    const char* native = std::getenv("TMPDIR");
    if (native == nullptr || native[0] == '\0') native = "/tmp";
    char full[SystemBufferSize];
    performGetFullPath(native, full);
    OsFilePath result(full);
    // An empty element adds the missing trailing separator.
    if (result.getText()[result.getLength() - 1] != Separator) result += "";
    return result;
}

}  // namespace Qn
