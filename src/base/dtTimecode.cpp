#include <base/dtTimecode.h>

#include <algorithm>
#include <cstdio>

#include <base/dtEx.h>

namespace Qn {

namespace {

// The NTSC family: nominal rates whose n x 1000/1001 is a timecode rate.
constexpr int NtscNominal[] = {24, 30, 48, 60, 120};
// Fields read past this value saturate; any hour count this large is out of range.
constexpr uint64_t FieldLimit = 1000000000000000000ULL;

// value in decimal, with at least width digits, at out; returns the end.
char* writeDigits(char* out, uint64_t value, int width) {
    char digits[20];
    int n = 0;
    do {
        digits[n++] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value != 0);
    while (n < width) digits[n++] = '0';
    while (n > 0) *out++ = digits[--n];
    return out;
}

char* writeTwoDigits(char* out, uint64_t value) {
    out[0] = static_cast<char>('0' + value / 10);
    out[1] = static_cast<char>('0' + value % 10);
    return out + 2;
}

bool isSeparator(char c) { return c == ':' || c == ';' || c == '.'; }

// The decimal value of a field, or false when it is empty or has a non-digit.
bool readDigits(std::string_view field, uint64_t& value) {
    if (field.empty()) return false;
    value = 0;
    for (char c : field) {
        if (c < '0' || c > '9') return false;
        value = std::min(value * 10 + static_cast<uint64_t>(c - '0'), FieldLimit);
    }
    return true;
}

}  // namespace

DtTimecode::DtTimecode(Rational rate, DropFrame dropFrame, unsigned flags)
    : _rate(rate), _nominal(0), _flags(flags) {
    const int n = rate.getNumerator(), d = rate.getDenominator();
    if (d == 1 && n >= 1 && n <= 999) _nominal = n;
    if (d == 1001 && n % 1000 == 0 && std::ranges::count(NtscNominal, n / 1000) != 0)
        _nominal = n / 1000;
    char rateText[32];
    std::snprintf(rateText, sizeof rateText, "%d/%d", n, d);
    if (_nominal == 0) QN_THROW(DtEx::ExTimecodeRate, rateText);
    // 30000/1001 skips 2 labels a minute, 60000/1001 4 and 120000/1001 8.
    _rateDrop = d == 1001 && _nominal % 30 == 0 ? _nominal / 15 : 0;
    if (dropFrame == DropFrame::On && _rateDrop == 0) QN_THROW(DtEx::ExTimecodeDropRate, rateText);
    const bool drop =
        dropFrame == DropFrame::On || (dropFrame == DropFrame::Default && _nominal <= 60);
    _drop = drop ? _rateDrop : 0;
    _dropMinute = 60 * int64_t{_nominal} - _rateDrop;
    _tenMinutes = 600 * int64_t{_nominal} - 9 * int64_t{_rateDrop};
}

size_t DtTimecode::toText(const DtTime& time, char (&text)[TextSize]) const {
    int64_t frame = time.getCount();
    if (time.getRate() != _rate)
        frame = time.getCount().convertExact(time.getRate(), _rate, DtRounding::Floor);
    return frameToText(frame, text);
}

std::string DtTimecode::toText(const DtTime& time) const {
    char text[TextSize];
    return std::string(text, toText(time, text));
}

size_t DtTimecode::frameToText(int64_t frame, char (&text)[TextSize]) const {
    const bool negative = frame < 0;
    if (negative && (_flags & AllowNegative) == 0) QN_THROW(DtEx::ExTimecodeNegativeTime);
    uint64_t label = negative ? 0 - static_cast<uint64_t>(frame) : static_cast<uint64_t>(frame);
    if (_drop != 0) {
        // Every ten minutes but the first minute of each skip _drop labels.
        const uint64_t tens = label / static_cast<uint64_t>(_tenMinutes);
        const int64_t within = static_cast<int64_t>(label % static_cast<uint64_t>(_tenMinutes));
        label +=
            9 * static_cast<uint64_t>(_drop) * tens +
            static_cast<uint64_t>(_drop * (std::max<int64_t>(within - _drop, 0) / _dropMinute));
    }
    const uint64_t nominal = static_cast<uint64_t>(_nominal);
    const uint64_t seconds = label / nominal, minutes = seconds / 60;
    const uint64_t hours = (_flags & Wrap24Hours) != 0 ? minutes / 60 % 24 : minutes / 60;
    char* out = text;
    if (negative) *out++ = '-';
    out = writeDigits(out, hours, 2);
    *out++ = ':';
    out = writeTwoDigits(out, minutes % 60);
    *out++ = ':';
    out = writeTwoDigits(out, seconds % 60);
    *out++ = _drop != 0 ? ';' : ':';
    out = writeDigits(out, label % nominal, _nominal >= 100 ? 3 : 2);
    *out = '\0';
    return static_cast<size_t>(out - text);
}

int64_t DtTimecode::frameFromText(std::string_view text) const {
    std::string_view rest = text;
    const bool negative = !rest.empty() && rest.front() == '-';
    if (negative) {
        if ((_flags & AllowNegative) == 0) throwBadText(TextError::Negative, text);
        rest.remove_prefix(1);
    }
    // Four fields; the last separator alone may be a drop-frame one.
    std::string_view fields[4];
    char lastSeparator = ':';
    for (int i = 0; i < 4; ++i) {
        const size_t end = i < 3 ? rest.find_first_of(":;.") : rest.size();
        if (end == std::string_view::npos) throwBadText(TextError::Fields, text);
        fields[i] = rest.substr(0, end);
        if (i < 3) {
            if (i < 2 && rest[end] != ':') throwBadText(TextError::Fields, text);
            lastSeparator = rest[end];
            rest.remove_prefix(end + 1);
        }
    }
    if (std::ranges::any_of(fields[3], isSeparator)) throwBadText(TextError::Fields, text);
    uint64_t hh, mm, ss, ff;
    if (!readDigits(fields[0], hh) || !readDigits(fields[1], mm) || !readDigits(fields[2], ss) ||
        !readDigits(fields[3], ff)) {
        throwBadText(TextError::Digits, text);
    }
    const int drop = lastSeparator != ':' ? _rateDrop : 0;
    if (lastSeparator != ':' && drop == 0) throwBadText(TextError::DropSeparator, text);
    if (mm > 59 || ss > 59 || ((_flags & Wrap24Hours) != 0 && hh >= 24))
        throwBadText(TextError::Range, text);
    const uint64_t nominal = static_cast<uint64_t>(_nominal);
    if (ff >= nominal) throwBadText(TextError::Frame, text);
    if (drop != 0 && ss == 0 && ff < static_cast<uint64_t>(drop) && mm % 10 != 0)
        throwBadText(TextError::DroppedLabel, text);
    // Hours below FieldLimit / 3600 keep the minutes from overflowing; the
    // label count must then fit in 63 bits.
    const uint64_t minutes = hh * 60 + mm;
    uint64_t label;
    if (hh >= FieldLimit / 3600 || __builtin_mul_overflow(minutes * 60 + ss, nominal, &label) ||
        label + ff > static_cast<uint64_t>(INT64_MAX)) {
        throwBadText(TextError::Range, text);
    }
    const uint64_t frame = label + ff - static_cast<uint64_t>(drop) * (minutes - minutes / 10);
    return negative ? -static_cast<int64_t>(frame) : static_cast<int64_t>(frame);
}

void DtTimecode::throwBadText(TextError error, std::string_view text) {
    char quoted[ExBase::ArgPrecision + 1];
    const size_t size = std::min(text.size(), sizeof quoted - 1);
    text.copy(quoted, size);
    quoted[size] = '\0';
    switch (error) {
        case TextError::Fields:
            QN_THROW(DtEx::ExTimecodeFields, quoted);
        case TextError::Digits:
            QN_THROW(DtEx::ExTimecodeDigits, quoted);
        case TextError::DropSeparator:
            QN_THROW(DtEx::ExTimecodeDropSeparator, quoted);
        case TextError::Range:
            QN_THROW(DtEx::ExTimecodeRange, quoted);
        case TextError::Frame:
            QN_THROW(DtEx::ExTimecodeFrame, quoted);
        case TextError::DroppedLabel:
            QN_THROW(DtEx::ExTimecodeDroppedLabel, quoted);
        case TextError::Negative:
            QN_THROW(DtEx::ExTimecodeNegative, quoted);
    }
    QN_THROW(DtEx::ExTimecodeFields, quoted);
}

}  // namespace Qn
