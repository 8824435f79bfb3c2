#include <base/dtTimeUtil.h>

#include <cerrno>
#include <cinttypes>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <base/dtEx.h>

namespace Qn {

namespace {

using ErrorCode = DtEx::DtStringError::ErrorCode;

// The next blank-separated token of a writable text, terminated in place;
// null when none is left. The position lives in the caller's cursor, never in
// state shared between threads.
char* nextToken(char*& cursor) {
    while (*cursor == ' ') ++cursor;
    if (*cursor == '\0') return nullptr;
    char* token = cursor;
    while (*cursor != ' ' && *cursor != '\0') ++cursor;
    if (*cursor == ' ') *cursor++ = '\0';
    return token;
}

// How a rate field reports its failures, and the lines they are raised from.
struct RateField {
    ErrorCode overflow;
    int overflowLine;
    ErrorCode malformed;
    int malformedLine;
};
constexpr RateField Numerator{DtEx::DtStringError::NumeratorOverflow, 106,
                              DtEx::DtStringError::NumeratorMalformed, 111};
constexpr RateField Denominator{DtEx::DtStringError::DenominatorOverflow, 121,
                                DtEx::DtStringError::DenominatorMalformed, 126};

// A rate field read as a base-10 integer: leading white space and a sign are
// accepted and reading stops at the first character that is not a digit.
int readRateField(const char* token, const RateField& field) {
    if (token == nullptr)
        throw DtEx::DtStringError("dtTimeUtil", field.malformedLine, field.malformed);
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(token, &end, 10);
    if (errno == ERANGE || value > INT_MAX || value < INT_MIN) {
        throw DtEx::DtStringError("dtTimeUtil", field.overflowLine, field.overflow);
    }
    if (value == 0 && end == token) {
        throw DtEx::DtStringError("dtTimeUtil", field.malformedLine, field.malformed);
    }
    return static_cast<int>(value);
}

// The rate and its reciprocal in the precision F (each term converted first).
template <class F>
F ticksPerSecond(const Rational& rate) {
    return static_cast<F>(rate.getNumerator()) / static_cast<F>(rate.getDenominator());
}

template <class F>
F secondsPerTick(const Rational& rate) {
    return static_cast<F>(rate.getDenominator()) / static_cast<F>(rate.getNumerator());
}

template <class F>
DtTime timeFromSeconds(const Rational& rate, F seconds) {
    return DtTime(IntWrap::truncTo<int64_t>(ticksPerSecond<F>(rate) * seconds), rate);
}

// CeilInt: the integer type the upper bound's ceiling goes through.
template <class F, class CeilInt>
Interval<DtTimeIndex> inclusiveCounts(const Rational& rate, const Interval<F>& seconds) {
    const F q = ticksPerSecond<F>(rate);
    return Interval<DtTimeIndex>(IntWrap::truncTo<int64_t>(q * seconds.getLower()),
                                 IntWrap::ceilTo<CeilInt>(q * seconds.getUpper()));
}

template <class F>
Interval<F> secondsOfCounts(const Rational& rate, const Interval<DtTimeIndex>& counts) {
    const F p = secondsPerTick<F>(rate);
    return Interval<F>(static_cast<F>(counts.getLower().getDouble() * p),
                       static_cast<F>(counts.getUpper().getDouble() * p));
}

}  // namespace

ArrayPtrRet<char> DtTimeUtil::getDtStringFromDtTime(const DtTime& time) {
    char buffer[64];
    const int length =
        std::snprintf(buffer, sizeof buffer, "%" PRId64 " %d %d", int64_t{time.getCount()},
                      time.getRate().getNumerator(), time.getRate().getDenominator());
    ArrayPtrRet<char> text(new char[length + 1]);
    std::memcpy(text.get(), buffer, static_cast<size_t>(length) + 1);
    return text;
}

DtTime DtTimeUtil::getDtTimeFromDtString(const char* text) {
    // The tokenizer terminates tokens in place, so it works on a copy.
    std::string copy(text != nullptr ? text : "");
    char* cursor = copy.data();
    const char* countToken = nextToken(cursor);
    const char* numeratorToken = nextToken(cursor);
    const char* denominatorToken = nextToken(cursor);

    const int64_t count = countToken != nullptr ? std::strtoll(countToken, nullptr, 10) : 0;
    const int numerator = readRateField(numeratorToken, Numerator);
    const int denominator = readRateField(denominatorToken, Denominator);
    return DtTime(count, numerator, denominator);
}

float DtTimeUtil::getSecondsFloat(const DtTime& time) {
    return time.getRate().getReciprocalFloat() * time.getCount().getFloat();
}

double DtTimeUtil::getSecondsDouble(const DtTime& time) {
    return time.getRate().getReciprocalDouble() * time.getCount().getDouble();
}

DtTime DtTimeUtil::getDtTimeFromSeconds(const Rational& rate, double seconds) {
    return timeFromSeconds(rate, seconds);
}

DtTime DtTimeUtil::getDtTimeFromSeconds(const Rational& rate, float seconds) {
    return timeFromSeconds(rate, seconds);
}

Interval<DtTimeIndex> DtTimeUtil::getInclusiveDtTimeIndexInterval(const DtTime& time,
                                                                  const Interval<double>& seconds) {
    return inclusiveCounts<double, int64_t>(time.getRate(), seconds);
}

Interval<DtTimeIndex> DtTimeUtil::getInclusiveDtTimeIndexInterval(const DtTime& time,
                                                                  const Interval<float>& seconds) {
    return inclusiveCounts<float, int32_t>(time.getRate(), seconds);
}

Interval<double> DtTimeUtil::getSecondsIntervalDouble(const DtTime& time,
                                                      const Interval<DtTimeIndex>& counts) {
    return secondsOfCounts<double>(time.getRate(), counts);
}

Interval<float> DtTimeUtil::getSecondsIntervalFloat(const DtTime& time,
                                                    const Interval<DtTimeIndex>& counts) {
    return secondsOfCounts<float>(time.getRate(), counts);
}

}  // namespace Qn
