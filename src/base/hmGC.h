// Qn::HmGC: the leak detector the test runner drives.
//
// Two kinds of leak detection may back it:
// - a debugging heap (isMemDebugLoaded()); this build has none, so the test
//   runner warns instead of using one;
// - the leak checker of AddressSanitizer, when the library is built with it
//   and the program runs with its runtime (isLeakCheckerLoaded()). checkLeaks()
//   then asks for a leak check at once; the checker writes its own report, with
//   the stacks, to the standard error stream.
//
//   Qn::HmGC detector;
//   detector.setOutput(&std::cerr);
//   detector.setThrowException(true);
//   detector.checkLeaks();          // raises HmGCEx::ExGarbageDetected on leaks
//
// Known leaks are listed in a text of entries "KNOWNLEAK f1 f2 ... ENDL", one
// blank-separated token per stack frame from the innermost outwards; a leak
// whose innermost frames match an entry is not reported (isLeakValid).
//
// An object is used by one thread at a time.
#pragma once

#include <iosfwd>

#include <base/arrayPtr.h>
#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API HmGC {
  public:
    // No output stream, no exception, no stack dump until the setters say so.
    HmGC() = default;
    ~HmGC() = default;

    // Where leak summaries go (not owned; null writes nothing).
    void setOutput(std::ostream* out) { _output = out; }
    // Whether a check that finds leaks raises HmGCEx::ExGarbageDetected.
    void setThrowException(bool value) { _throwException = value; }
    // Whether a debugging heap dumps the stack of each leak.
    void setStackDump(bool value) { _stackDump = value; }
    std::ostream* getOutput() const { return _output; }
    bool isThrowException() const { return _throwException; }
    bool isStackDump() const { return _stackDump; }

    // Whether the debugging version of the heap library is loaded: never in
    // this build.
    static bool isMemDebugLoaded() { return false; }
    // Whether AddressSanitizer's leak checker can be asked for a check.
    static bool isLeakCheckerLoaded();

    // Asks the leak checker for a check of the blocks allocated so far that
    // nothing points to any more. Returns whether it found leaks; when it did,
    // writes a summary line to the output and, with the throw flag, raises
    // HmGCEx::ExGarbageDetected. Without a leak checker it finds nothing.
    bool checkLeaks() const;

  protected:
    // Whether a leak whose stack is frames (frame texts, innermost first, ended
    // by a null entry) is real (true) or matches an entry of knownLeaks
    // (false). A frame matches an entry's token that begins with the frame's
    // text. A null or malformed list (an entry that ends before ENDL) makes
    // the leak real; the text is never read past its end.
    bool isLeakValid(ArrayPtr<char>* frames, const char* knownLeaks) const;

  private:
    std::ostream* _output = nullptr;
    bool _throwException = false;
    bool _stackDump = false;
};

}  // namespace Qn
