#include <base/osFilePath.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ostream>

#include <base/assertions.h>
#include <base/osFileEx.h>

namespace Qn {

namespace {

// Every empty path shares this text, so that an empty path never allocates and
// a moved-from path stays valid; it is never written nor freed.
char emptyText[1] = {'\0'};

constexpr char Separator = '\\';

char* copyText(const char* text) {
    if (text == nullptr || text[0] == '\0') return emptyText;
    size_t size = std::strlen(text) + 1;
    char* copy = new char[size];
    std::memcpy(copy, text, size);
    return copy;
}

}  // namespace

OsFilePath::OsFilePath() noexcept : _text(emptyText) {}

OsFilePath::OsFilePath(const char* text) : _text(copyText(text)) {}

OsFilePath::OsFilePath(const OsFilePath& other) : _text(copyText(other._text)) {}

OsFilePath::OsFilePath(OsFilePath&& other) noexcept : _text(other._text) {
    other._text = emptyText;
}

OsFilePath::~OsFilePath() { adopt(nullptr); }

void OsFilePath::adopt(char* text) noexcept {
    if (_text != emptyText) delete[] _text;
    _text = text;
}

OsFilePath& OsFilePath::operator=(const OsFilePath& other) {
    if (this != &other) adopt(copyText(other._text));
    return *this;
}

OsFilePath& OsFilePath::operator=(OsFilePath&& other) noexcept {
    if (this != &other) {
        adopt(other._text);
        other._text = emptyText;
    }
    return *this;
}

OsFilePath& OsFilePath::operator=(const char* text) {
    set(text);
    return *this;
}

void OsFilePath::set(const char* text) {
    QN_ASSERT(text != nullptr);
    if (text != _text) adopt(copyText(text));
}

size_t OsFilePath::getLength() const { return std::strlen(_text); }

bool OsFilePath::isAbsolute() const {
    // Reads at most three characters: a shorter text ends before the third.
    if (_text[0] == '\0' || _text[1] == '\0' || _text[2] == '\0') return false;
    return _text[1] == ':' || (_text[0] == Separator && _text[1] == Separator);
}

void OsFilePath::checkElement(const OsFilePath& element) {
    if (element.isAbsolute()) QN_THROW(OsFileEx::ExIllegalPathConcat);
}

void OsFilePath::checkElement(const char* element) {
    QN_ASSERT(element != nullptr);
    if (std::strchr(element, Separator) != nullptr) QN_THROW(OsFileEx::ExSeparatorNotAllowed);
}

char* OsFilePath::join(const char* base, const char* element) {
    size_t baseLength = std::strlen(base);
    size_t elementLength = std::strlen(element);
    bool separator = baseLength > 0 && base[baseLength - 1] != Separator;
    size_t length = baseLength + (separator ? 1 : 0) + elementLength;
    if (length == 0) return emptyText;
    char* text = new char[length + 1];
    std::memcpy(text, base, baseLength);
    if (separator) text[baseLength] = Separator;
    std::memcpy(text + length - elementLength, element, elementLength + 1);
    return text;
}

OsFilePath& OsFilePath::operator+=(const OsFilePath& element) {
    checkElement(element);
    adopt(join(_text, element._text));
    return *this;
}

OsFilePath& OsFilePath::operator+=(const char* element) {
    checkElement(element);
    adopt(join(_text, element));
    return *this;
}

OsFilePath OsFilePath::operator+(const OsFilePath& element) const {
    checkElement(element);
    return OsFilePath(join(_text, element._text), Adopt{});
}

OsFilePath OsFilePath::operator+(const char* element) const {
    checkElement(element);
    return OsFilePath(join(_text, element), Adopt{});
}

OsFilePath OsFilePath::getBaseName() const {
    char full[SystemBufferSize];
    int finalComponent = performGetFullPath(_text, full);
    return finalComponent < 0 ? OsFilePath() : OsFilePath(full + finalComponent);
}

OsFilePath OsFilePath::getDirectoryName() const {
    char full[SystemBufferSize];
    performGetFullPath(_text, full);
    if (full[0] == '\0') return OsFilePath();
    if (std::strcmp(_text, ".") == 0 || std::strcmp(_text, "..") == 0) return OsFilePath(full);
    // Cut at the last separator; a trailing one is the last.
    char* cut = std::strrchr(full, Separator);
    if (cut == nullptr) return OsFilePath();
    *cut = '\0';
    return OsFilePath(full);
}

ArrayPtrRet<char> OsFilePath::getExtension() const {
    OsFilePath base = getBaseName();
    const char* dot = std::strrchr(base._text, '.');
    const char* extension = dot != nullptr ? dot + 1 : "";
    size_t size = std::strlen(extension) + 1;
    ArrayPtrRet<char> result(new char[size]);
    std::memcpy(result.get(), extension, size);
    return result;
}

OsFilePath OsFilePath::getRootDir() {
    char root[4];
    std::snprintf(root, sizeof root, "%c:\\", 64 + performGetCurrentDrive());
    return OsFilePath(root);
}

OsFilePath OsFilePath::getTempDir() { return performGetTempDir(); }

OsFilePath OsFilePath::getHomeDir() {
    const char* home = std::getenv("HOME");
    if (home == nullptr) QN_THROW(OsFileEx::ExHomeNotDefined);
    OsFilePath result(home);
    for (char* c = result._text; *c != '\0'; ++c) {
        if (*c == '/') *c = Separator;
    }
    return result;
}

std::ostream& OsFilePath::dump(std::ostream& out) const { return out << _text; }

int OsFilePath::compare(const char* a, const char* b) {
    int order = std::strcmp(a, b);
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

std::ostream& operator<<(std::ostream& out, const OsFilePath& path) { return path.dump(out); }

}  // namespace Qn
