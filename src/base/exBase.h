// Qn::ExBase: root of every exception the library raises.
//
// An exception keeps the source file and line of its raise and a reason text, all
// in fixed inline buffers: building one never allocates, so it can be raised when
// memory is exhausted. Texts that do not fit are cut (file name at 127
// characters, reason and detailed line at 1023).
//
// Module families derive from ExBase (see exFamily.h for the one-line way to
// declare their concrete exceptions). Thread-safety: an exception object is not
// shared; getDetailedReason() fills a cache on first call.
#pragma once

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API ExBase {
  public:
    static constexpr int ReasonSize = 1024;
    static constexpr int FileNameSize = 128;
    // Precision of every text substituted into a family's message ("%.*s").
    static constexpr int ArgPrecision = 256;

    // Stores the line and a copy of the file name (cut to 127 characters; a null
    // name leaves it empty). The reason starts empty.
    ExBase(const char* fileName, int lineNo);
    ExBase(const ExBase& other);
    ExBase& operator=(const ExBase& other);

    // The reason text; never null, empty when none was set.
    virtual const char* getReason() const;
    // "[Exception Type = <class>, File = <file>, Line=<line>]\n" followed by the
    // reason as it was at the first call; later calls return the same text.
    virtual const char* getDetailedReason() const;
    virtual ~ExBase();
    // A heap copy of the most-derived exception, to store and re-throw it later.
    virtual ExBase* clone() const = 0;

    const char* getFileName() const { return _fileName; }
    int getLineNo() const { return _lineNo; }

  protected:
    // Appends text to the reason (it never replaces); null is ignored.
    void setReason(const char* text);
    // Appends a message formatted with one or two text arguments, each cut to
    // ArgPrecision characters: the format uses "%.*s" for each argument.
    void setReasonCut(const char* format, const char* arg);
    void setReasonCut(const char* format, const char* arg1, const char* arg2);

  private:
    void setFileName(const char* fileName);

    mutable char _detailedReason[ReasonSize];
    char _reason[ReasonSize];
    char _fileName[FileNameSize];
    int _lineNo;
};

}  // namespace Qn
