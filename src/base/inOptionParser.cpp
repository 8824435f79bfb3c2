#include <base/inOptionParser.h>

#include <cstring>

namespace Qn {

InOptionParser::InOptionParser(const Vector<std::string>& words, const char* letters)
    : _words(words), _letters(letters ? letters : "") {
    _reportMissingAsColon = !_letters.empty() && _letters[0] == ':';
}

bool InOptionParser::isKnown(char letter) const {
    return letter != ':' && _letters.find(letter) != std::string::npos;
}

bool InOptionParser::takesArgument(char letter) const {
    const size_t at = _letters.find(letter);
    return at != std::string::npos && at + 1 < _letters.size() && _letters[at + 1] == ':';
}

int InOptionParser::next() {
    _argument = nullptr;
    if (_ended) return -1;
    if (_charIndex == 0) {
        // Find the next word that holds options, skipping operands.
        while (_index < _words.size()) {
            const std::string& word = _words[_index];
            if (word == "--") {
                ++_index;
                _ended = true;
                return -1;
            }
            if (word.size() > 1 && word[0] == '-') break;
            ++_index;
        }
        if (_index >= _words.size()) return -1;
        _charIndex = 1;
    }

    const std::string& word = _words[_index];
    const char letter = word[_charIndex++];
    _option = static_cast<unsigned char>(letter);
    if (!takesArgument(letter)) {
        if (_charIndex >= word.size()) {
            ++_index;
            _charIndex = 0;
        }
        return isKnown(letter) ? _option : '?';
    }
    // An argument is the rest of this word, or else the next word.
    const size_t rest = _charIndex;
    _charIndex = 0;
    ++_index;
    if (rest < word.size()) {
        _argument = word.c_str() + rest;
        return _option;
    }
    if (_index < _words.size()) {
        _argument = _words[_index++].c_str();
        return _option;
    }
    return _reportMissingAsColon ? ':' : '?';
}

int InOptionParser::getSubOption(char** options, const char* const* tokens, char** value) {
    *value = nullptr;
    char* entry = *options;
    if (!entry || *entry == '\0') return -1;
    char* end = std::strchr(entry, ',');
    if (end) {
        *end = '\0';
        *options = end + 1;
    } else {
        *options = entry + std::strlen(entry);
    }
    char* equals = std::strchr(entry, '=');
    const size_t keywordLength = equals ? static_cast<size_t>(equals - entry) : std::strlen(entry);
    for (int i = 0; tokens[i]; ++i) {
        if (std::strlen(tokens[i]) == keywordLength &&
            std::strncmp(tokens[i], entry, keywordLength) == 0) {
            if (equals) *value = equals + 1;
            return i;
        }
    }
    *value = entry;
    return -1;
}

}  // namespace Qn
