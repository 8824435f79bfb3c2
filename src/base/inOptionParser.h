// Qn::InOptionParser: getopt-style parsing of a stored command line, and of
// comma-separated sub-option lists.
//
// Options are single letters after "-"; several may share one word ("-ab").
// The letter string names the known letters, a letter followed by ":" takes an
// argument, given either in the same word ("-tvalue") or as the next word
// ("-t value"). Words that are not options (operands) are skipped and parsing
// goes on after them, so options may follow operands; "--" ends the options.
// next() returns the letter, '?' (63) for an unknown letter or a missing
// argument (':' instead for a missing argument when the letter string starts
// with ':'), and -1 at the end. The first word is the program name and is not
// parsed.
//
//   Qn::InOptionParser parser(Qn::InContextAliasMgrBase::args(), "t:v");
//   for (int c; (c = parser.next()) != -1;)
//       if (c == 't') threads = std::atoi(parser.getArgument());
//
// Not thread-safe; the parser holds its own position, nothing is shared.
#pragma once

#include <string>

#include <base/qnExport.h>
#include <base/vector.h>

namespace Qn {

class QN_BASE_API InOptionParser {
  public:
    // The words are read, not copied: they must outlive the parser.
    InOptionParser(const Vector<std::string>& words, const char* letters);

    // The next option letter, '?', ':' or -1 (see above).
    int next();
    // The argument of the last option that takes one; null otherwise.
    const char* getArgument() const { return _argument; }
    // The letter of the last option returned, or the unknown letter behind '?'.
    int getOption() const { return _option; }
    // The index of the next word to parse.
    size_t getIndex() const { return _index; }

    // Splits the next entry off a comma-separated list "keyword[=value],...":
    // advances *options past the entry (and its comma, which it overwrites),
    // sets *value to the text after "=" (null when there is none) and returns
    // the index of keyword in tokens (a null-terminated table), or -1 when the
    // keyword is not in the table, in which case *value is the whole entry.
    // Returns -1 with *value null at the end of the list.
    static int getSubOption(char** options, const char* const* tokens, char** value);

  private:
    // Whether letter is known, and whether it takes an argument.
    bool isKnown(char letter) const;
    bool takesArgument(char letter) const;

    const Vector<std::string>& _words;
    std::string _letters;
    bool _reportMissingAsColon;
    size_t _index = 1;
    size_t _charIndex = 0;
    bool _ended = false;
    const char* _argument = nullptr;
    int _option = 0;
};

}  // namespace Qn
