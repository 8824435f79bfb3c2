// Qn::OsFilePath: a file-system path in Windows form, the argument of every file
// operation of the library.
//
// The path owns one NUL-terminated narrow text and changes it only where an
// operation below says so: no separator conversion, no trimming. The separator
// is the backslash on every platform; the POSIX layer maps that form onto the
// native file system (a drive prefix "X:" names the root "/").
//
//   OsFilePath log = OsFilePath::getTempDir() + "qn" + "events.log";
//   OsFilePath dir = log.getDirectoryName();     // C:\tmp\qn
//   ArrayPtrRet<char> ext = log.getExtension();  // "log"
//
// Thread-safety: a plain value. The decompositions resolve relative paths against
// the process's current directory, which other threads may change.
#pragma once

#include <cstddef>
#include <iosfwd>

#include <base/arrayPtr.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API OsFilePath {
  public:
    // Size of the buffers that receive text from the system (full path,
    // temporary directory); a longer result raises the system's "name too long".
    static constexpr int SystemBufferSize = 1024;

    // An empty path.
    OsFilePath() noexcept;
    // A copy of text; a null pointer gives an empty path.
    OsFilePath(const char* text);
    OsFilePath(const OsFilePath& other);
    // Takes the text of other, which becomes empty.
    OsFilePath(OsFilePath&& other) noexcept;
    ~OsFilePath();

    // Copy the text as given. A failed allocation leaves the old text.
    OsFilePath& operator=(const OsFilePath& other);
    OsFilePath& operator=(OsFilePath&& other) noexcept;
    // REQUIRES: text is not null (ExInternalError otherwise).
    OsFilePath& operator=(const char* text);
    void set(const char* text);

    // The text; never null.
    const char* getText() const { return _text; }
    size_t getLength() const;
    bool isEmpty() const { return _text[0] == '\0'; }

    // Absolute when the text has at least three characters and either its second
    // is a colon ("C:\x", and also "C:x") or its first two are backslashes
    // ("\\server\share"). "C:" and "\dir" are relative.
    bool isAbsolute() const;
    bool isRelative() const { return !isAbsolute(); }

    // Appends one element, with a separator unless this path is empty or already
    // ends with one ("C:\" + "a" is "C:\a"; "" + "a" is "a"; "C:\d" + "" is
    // "C:\d\"). The element is appended verbatim.
    // Raises OsFileEx::ExIllegalPathConcat when element is absolute.
    OsFilePath& operator+=(const OsFilePath& element);
    // Raises OsFileEx::ExSeparatorNotAllowed when element holds a backslash (a
    // forward slash is accepted). REQUIRES: element is not null.
    OsFilePath& operator+=(const char* element);
    // The same on a copy; this path is unchanged.
    OsFilePath operator+(const OsFilePath& element) const;
    OsFilePath operator+(const char* element) const;

    // The final component of the full path ("C:\a\b.txt" gives "b.txt"); empty
    // when the full path ends with a separator ("C:\"). Relative paths resolve
    // against the current directory. Raises ExSysErrorNative when the path
    // cannot be resolved (an empty path, a full path of 1024 characters or more).
    OsFilePath getBaseName() const;
    // The full path without its final component and without a trailing
    // separator: "C:\dir\file" gives "C:\dir", "C:\file" and "C:\" give "C:";
    // "." and ".." give the full path of the current directory or of its parent.
    // Failures as getBaseName.
    OsFilePath getDirectoryName() const;
    // The text after the last dot of the base name ("gz" for "a.tar.gz", "cfg"
    // for ".cfg"); empty for "name." or a name without a dot. Never null.
    // Failures as getBaseName.
    ArrayPtrRet<char> getExtension() const;

    // The root of the current drive ("C:\" on POSIX).
    static OsFilePath getRootDir();
    // The system's temporary directory with a trailing separator ("C:\tmp\" on
    // POSIX: $TMPDIR when set and not empty, else /tmp). Raises ExSysErrorNative.
    static OsFilePath getTempDir();
    // $HOME with every forward slash turned into a backslash. Raises
    // OsFileEx::ExHomeNotDefined when HOME is not set.
    static OsFilePath getHomeDir();

    // Writes the text, nothing else.
    std::ostream& dump(std::ostream& out) const;

    // Byte-wise comparison of unsigned characters, case-sensitive: -1 when a
    // sorts first, 1 when b does, 0 when equal. Not path-aware.
    static int compare(const char* a, const char* b);
    static const char* getSeparator() { return "\\"; }

    bool operator==(const OsFilePath& other) const { return compare(_text, other._text) == 0; }

  private:
    // Adopts an allocated text.
    struct Adopt {};
    OsFilePath(char* text, Adopt) noexcept : _text(text) {}

    static void checkElement(const OsFilePath& element);
    static void checkElement(const char* element);
    // A new text: base, a separator when needed, element.
    static char* join(const char* base, const char* element);
    void adopt(char* text) noexcept;

    // The full-path service: resolves path into buffer (SystemBufferSize bytes)
    // and returns the offset of the final component, or -1 when the full path
    // ends with a separator. Raises ExSysErrorNative on failure.
    static int performGetFullPath(const char* path, char* buffer);
    // The current drive: 1 for A, 2 for B, 3 for C, ...
    static int performGetCurrentDrive();
    static OsFilePath performGetTempDir();

    char* _text;
};

QN_BASE_API std::ostream& operator<<(std::ostream& out, const OsFilePath& path);

}  // namespace Qn
