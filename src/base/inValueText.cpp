#include <base/inValueText.h>

#include <cctype>
#include <cstdlib>
#include <cstring>

namespace Qn {

int InValueText::toInt(const char* text) { return text ? std::atoi(text) : 0; }

bool InValueText::toBool(const char* text) {
    if (!text || std::strcmp(text, "0") == 0) return false;
    static const char falseText[] = "false";
    size_t i = 0;
    for (; text[i] && i < sizeof falseText - 1; ++i)
        if (std::tolower(static_cast<unsigned char>(text[i])) != falseText[i]) return true;
    return !(i == sizeof falseText - 1 && text[i] == '\0');
}

}  // namespace Qn
