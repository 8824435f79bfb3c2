#include <base/dtTimecode.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>
#include <typeinfo>

#include <base/dtEx.h>
#include <base/dtTimeLess.h>

#include "support/reasonOf.h"

namespace {

using Qn::DtEx;
using Qn::DtTime;
using Qn::DtTimecode;
using Qn::Rational;
using Drop = DtTimecode::DropFrame;
const Rational Ntsc(30000, 1001), Ntsc60(60000, 1001), Ntsc120(120000, 1001), Film(24, 1);

// The type name of the DtEx that reading text raises ("v" when it reads).
std::string errorOf(const DtTimecode& timecode, const std::string& text) {
    try {
        timecode.frameFromText(text);
    } catch (const DtEx& e) {
        return typeid(e).name();
    }
    return typeid(void).name();
}

}  // namespace

// Drop-frame counting itself is checked label by label in EveryValidLabelRoundTrips.
TEST(DtTimecode, WritesTheLabelOfTheFrameThatContainsTheTime) {
    struct Row {
        DtTimecode timecode;
        DtTime time;
        const char* text;
    };
    const Row rows[] = {
        {DtTimecode(Rational(25, 1)), DtTime(90000 * 25 + 24, 25, 1), "25:00:00:24"},
        {DtTimecode(Rational(25, 1), Drop::Off, DtTimecode::Wrap24Hours), DtTime(90000 * 25, 25, 1),
         "01:00:00:00"},
        {DtTimecode(Ntsc), DtTime(1001, 1, 1), "00:16:41;00"},  // 30000 frames
        {DtTimecode(Ntsc, Drop::Off), DtTime(1800, Ntsc), "00:01:00:00"},
        {DtTimecode(Ntsc120), DtTime(7200, Ntsc120), "00:01:00:000"},
        {DtTimecode(Ntsc120, Drop::On), DtTime(7200, Ntsc120), "00:01:00;008"},
        {DtTimecode(Film), DtTime(999999999, 1000000000, 1), "00:00:00:23"},
        {DtTimecode(Film, Drop::Off, DtTimecode::AllowNegative), DtTime(-1, 48, 1), "-00:00:00:01"},
        {DtTimecode(Rational(1, 1)), DtTime(INT64_MAX, 1, 1), "2562047788015215:30:07:00"},
    };
    for (const Row& row : rows) EXPECT_EQ(row.timecode.toText(row.time), row.text);
    EXPECT_THROW(DtTimecode(Film).toText(DtTime(-1, 48, 1)), DtEx::ExTimecodeNegativeTime);
    EXPECT_THROW(DtTimecode(Rational(999, 1)).toText(DtTime(INT64_MAX, 1, 1)), DtEx::ExOverflow);
    EXPECT_FALSE(DtTimecode(Ntsc120).isDropFrame());
    EXPECT_FALSE(DtTimecode(Rational(24000, 1001)).isDropFrame());
    for (Rational bad :
         {Rational(0, 1), Rational(1000, 1), Rational(-24, 1), Rational(25000, 1001)})
        EXPECT_THROW(DtTimecode{bad}, DtEx::ExTimecodeRate);
    EXPECT_THROW(DtTimecode(Rational(24000, 1001), Drop::On), DtEx::ExTimecodeDropRate);
    EXPECT_EQ(QnTest::reasonOf<DtEx>([] { DtTimecode(Rational(25, 2)); }),
              "Frame rate 25/2 has no timecode.");
}

TEST(DtTimecode, ReadsTheThreeSeparatorsAndRefusesEverythingElse) {
    const DtTimecode ntsc(Ntsc, Drop::Off), film(Film, Drop::Default, DtTimecode::Wrap24Hours);
    EXPECT_EQ(ntsc.frameFromText("00:01:00;02"), 1800);  // the separator says how to count
    EXPECT_EQ(ntsc.frameFromText("00:01:00.02"), 1800);
    EXPECT_EQ(ntsc.frameFromText("00:01:00:02"), 1802);
    EXPECT_EQ(DtTimecode(Film, Drop::Off, DtTimecode::AllowNegative).frameFromText("-0:0:1:0"),
              -24);
    struct Row {
        DtTimecode timecode;
        std::string text;
        const char* error;
    };
    const Row rows[] = {
        {film, "00:00:00", typeid(DtEx::ExTimecodeFields).name()},
        {film, "00;00:00:00", typeid(DtEx::ExTimecodeFields).name()},
        {film, "00:00:00;00.1", typeid(DtEx::ExTimecodeFields).name()},
        {film, "00::00:00", typeid(DtEx::ExTimecodeDigits).name()},
        {film, "+1:00:00: 0", typeid(DtEx::ExTimecodeDigits).name()},
        {film, std::string("00:00\0:00:00", 11), typeid(DtEx::ExTimecodeDigits).name()},
        {film, "00:60:00:00", typeid(DtEx::ExTimecodeRange).name()},
        {film, "24:00:00:00", typeid(DtEx::ExTimecodeRange).name()},
        {ntsc, "100000000000000:00:00:00", typeid(DtEx::ExTimecodeRange).name()},
        {ntsc, "00:00:00;30", typeid(DtEx::ExTimecodeFrame).name()},
        {film, "00:00:00;01", typeid(DtEx::ExTimecodeDropSeparator).name()},
        {ntsc, "00:01:00;01", typeid(DtEx::ExTimecodeDroppedLabel).name()},
        {DtTimecode(Ntsc120), "00:01:00.007", typeid(DtEx::ExTimecodeDroppedLabel).name()},
        {ntsc, "-00:00:01:00", typeid(DtEx::ExTimecodeNegative).name()},
    };
    for (const Row& row : rows) EXPECT_EQ(errorOf(row.timecode, row.text), row.error) << row.text;
    const std::string longText = "1:2:3:" + std::string(300, 'x');
    EXPECT_EQ(QnTest::reasonOf<DtEx>([&] { film.frameFromText(longText); }),
              "Timecode '" + longText.substr(0, 256) + "' has a field that is not all digits.");
}

// Every label of the first eleven minutes and of hour 24 reads and writes back
// the same, but for the labels drop-frame skips; in order they are the
// consecutive frames.
TEST(DtTimecode, EveryValidLabelRoundTrips) {
    for (const DtTimecode timecode :
         {DtTimecode(Rational(25, 1)), DtTimecode(Ntsc), DtTimecode(Ntsc60),
          DtTimecode(Ntsc120, Drop::On), DtTimecode(Rational(120, 1))}) {
        const int nominal = timecode.getNominalRate(),
                  drop = timecode.isDropFrame() ? nominal / 15 : 0;
        for (int hour : {0, 24}) {
            int64_t frame = hour * 6 * (600 * nominal - 9 * drop);
            for (int s = 0; s < 660 * nominal; ++s) {
                char text[32];
                std::snprintf(text, sizeof text, "%02d:%02d:%02d%c%0*d", hour, s / nominal / 60,
                              s / nominal % 60, drop ? ';' : ':', nominal >= 100 ? 3 : 2,
                              s % nominal);
                if (drop != 0 && s / nominal % 60 == 0 && s % nominal < drop &&
                    s / nominal / 60 % 10 != 0) {
                    ASSERT_EQ(errorOf(timecode, text), typeid(DtEx::ExTimecodeDroppedLabel).name())
                        << text;
                    continue;
                }
                ASSERT_EQ(timecode.frameFromText(text), frame++) << text;
                ASSERT_EQ(timecode.toText(timecode.fromText(text)), text);
            }
        }
    }
}

// time -> text -> time gives the start of the frame that contains the time.
TEST(DtTimecode, TextOfAnyTimeReadsAsTheStartOfItsFrame) {
    std::mt19937_64 random(12);
    const Rational rates[] = {Rational(1000000000, 1), Rational(48000, 1), Ntsc, Rational(1, 7),
                              Film};
    const Qn::DtTimeLess less;
    for (const Rational& rate : {Film, Ntsc, Ntsc60, Ntsc120, Rational(999, 1)}) {
        const DtTimecode timecode(rate, Drop::Default, DtTimecode::AllowNegative);
        for (int i = 0; i < 20000; ++i) {
            const DtTime time(static_cast<int64_t>(random()) >> (14 + i % 40), rates[i % 5]);
            const DtTime start = timecode.fromText(timecode.toText(time));
            ASSERT_TRUE(!less(time, start) && less(time, start + 1)) << time;
        }
    }
}
