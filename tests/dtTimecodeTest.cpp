#include <base/dtTimecode.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>
#include <typeinfo>

#include <base/dtEx.h>
#include <base/dtTimeLess.h>

namespace {

using Qn::DtEx;
using Qn::DtTime;
using Qn::DtTimecode;
using Qn::Rational;
using Drop = DtTimecode::DropFrame;
constexpr unsigned Negative = DtTimecode::AllowNegative, Wrap = DtTimecode::Wrap24Hours;

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

TEST(DtTimecode, WritesTheLabelOfTheFrameThatContainsTheTime) {
    struct Row {
        Rational rate;
        Drop drop;
        unsigned flags;
        DtTime time;
        const char* text;
    };
    const Rational ntsc(30000, 1001), ntsc60(60000, 1001), ntsc120(120000, 1001);
    const Row rows[] = {
        {Rational(24, 1), Drop::Default, 0, DtTime(86400, 24, 1), "01:00:00:00"},
        {Rational(25, 1), Drop::Default, 0, DtTime(25 * 90000 + 24, 25, 1), "25:00:00:24"},
        {Rational(25, 1), Drop::Default, Wrap, DtTime(25 * 90000 + 24, 25, 1), "01:00:00:24"},
        {ntsc, Drop::Default, 0, DtTime(1799, ntsc), "00:00:59;29"},
        {ntsc, Drop::Default, 0, DtTime(1800, ntsc), "00:01:00;02"},
        {ntsc, Drop::Default, 0, DtTime(17982, ntsc), "00:10:00;00"},
        {ntsc, Drop::Off, 0, DtTime(1800, ntsc), "00:01:00:00"},
        {ntsc60, Drop::Default, 0, DtTime(3600, ntsc60), "00:01:00;04"},
        {ntsc120, Drop::Default, 0, DtTime(7200, ntsc120), "00:01:00:000"},
        {ntsc120, Drop::On, 0, DtTime(7200, ntsc120), "00:01:00;008"},
        {Rational(999, 1), Drop::Default, 0, DtTime(998, 999, 1), "00:00:00:998"},
        // Other rates: the frame is the floor, also before zero.
        {Rational(24, 1), Drop::Default, 0, DtTime(1, 48, 1), "00:00:00:00"},
        {Rational(24, 1), Drop::Default, Negative, DtTime(-1, 48, 1), "-00:00:00:01"},
        {Rational(24, 1), Drop::Default, 0, DtTime(999999999, 1000000000, 1), "00:00:00:23"},
        {ntsc, Drop::Default, 0, DtTime(1001, 1, 1), "00:16:41;00"},  // 30000 frames
        {Rational(1, 1), Drop::Default, 0, DtTime(INT64_MAX, 1, 1), "2562047788015215:30:07:00"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const DtTimecode timecode(row.rate, row.drop, row.flags);
        EXPECT_EQ(timecode.toText(row.time), row.text);
    }
    EXPECT_THROW(DtTimecode(Rational(24, 1)).toText(DtTime(-1, 48, 1)),
                 DtEx::ExTimecodeNegativeTime);
    EXPECT_THROW(DtTimecode(Rational(999, 1)).toText(DtTime(INT64_MAX, 1, 1)), DtEx::ExOverflow);
}

TEST(DtTimecode, AcceptsTheRatesThatHaveTimecode) {
    EXPECT_TRUE(DtTimecode(Rational(30000, 1001)).isDropFrame());
    EXPECT_TRUE(DtTimecode(Rational(60000, 1001)).isDropFrame());
    EXPECT_FALSE(DtTimecode(Rational(120000, 1001)).isDropFrame());
    EXPECT_FALSE(DtTimecode(Rational(24000, 1001)).isDropFrame());
    EXPECT_EQ(DtTimecode(Rational(48000, 1001)).getNominalRate(), 48);
    for (Rational rate : {Rational(0, 1), Rational(1000, 1), Rational(-24, 1),
                          Rational(25000, 1001), Rational(1, 2)}) {
        EXPECT_THROW(DtTimecode{rate}, DtEx::ExTimecodeRate);
    }
    EXPECT_THROW(DtTimecode(Rational(24000, 1001), Drop::On), DtEx::ExTimecodeDropRate);
    EXPECT_THROW(DtTimecode(Rational(30, 1), Drop::On), DtEx::ExTimecodeDropRate);
    try {
        DtTimecode(Rational(25, 2));
    } catch (const DtEx::ExTimecodeRate& e) {
        EXPECT_STREQ(e.what(), "Frame rate 25/2 has no timecode.");
    }
}

TEST(DtTimecode, ReadsTheThreeSeparatorsAndRefusesEverythingElse) {
    const DtTimecode ntsc(Rational(30000, 1001), Drop::Off),
        film(Rational(24, 1), Drop::Default, Wrap);
    EXPECT_EQ(ntsc.frameFromText("00:01:00;02"), 1800);  // the separator says how to count
    EXPECT_EQ(ntsc.frameFromText("00:01:00.02"), 1800);
    EXPECT_EQ(ntsc.frameFromText("00:01:00:02"), 1802);
    EXPECT_EQ(DtTimecode(Rational(24, 1), Drop::Off, Negative).frameFromText("-0:0:1:0"), -24);
    struct Row {
        DtTimecode timecode;
        std::string text;
        std::string error;
    };
    const Row rows[] = {
        {film, "00:00:00", typeid(DtEx::ExTimecodeFields).name()},
        {film, "00:00:00:00:00", typeid(DtEx::ExTimecodeFields).name()},
        {film, "00;00:00:00", typeid(DtEx::ExTimecodeFields).name()},
        {film, "00:00:00;00.1", typeid(DtEx::ExTimecodeFields).name()},
        {film, "00:00:0a:00", typeid(DtEx::ExTimecodeDigits).name()},
        {film, "00::00:00", typeid(DtEx::ExTimecodeDigits).name()},
        {film, "00:00:00: 1", typeid(DtEx::ExTimecodeDigits).name()},
        {film, "+1:00:00:00", typeid(DtEx::ExTimecodeDigits).name()},
        {film, "00:60:00:00", typeid(DtEx::ExTimecodeRange).name()},
        {film, "00:00:60:00", typeid(DtEx::ExTimecodeRange).name()},
        {film, "24:00:00:00", typeid(DtEx::ExTimecodeRange).name()},
        {ntsc, "100000000000000:00:00:00", typeid(DtEx::ExTimecodeRange).name()},
        {ntsc, "99999999999999999999999:00:00:00", typeid(DtEx::ExTimecodeRange).name()},
        {film, "00:00:00:24", typeid(DtEx::ExTimecodeFrame).name()},
        {ntsc, "00:00:00;30", typeid(DtEx::ExTimecodeFrame).name()},
        {film, "00:00:00;01", typeid(DtEx::ExTimecodeDropSeparator).name()},
        {ntsc, "00:01:00;01", typeid(DtEx::ExTimecodeDroppedLabel).name()},
        {DtTimecode(Rational(60000, 1001)), "00:01:00;03",
         typeid(DtEx::ExTimecodeDroppedLabel).name()},
        {DtTimecode(Rational(120000, 1001)), "00:01:00.007",
         typeid(DtEx::ExTimecodeDroppedLabel).name()},
        {ntsc, "-00:00:01:00", typeid(DtEx::ExTimecodeNegative).name()},
        {ntsc, std::string("00:00\0:00:00", 11), typeid(DtEx::ExTimecodeDigits).name()},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(errorOf(row.timecode, row.text), row.error);
    }
    EXPECT_EQ(errorOf(ntsc, "00:10:00;00"), typeid(void).name());
    const std::string longText = "1:2:3:" + std::string(300, 'x');
    try {
        film.frameFromText(longText);
    } catch (const DtEx::ExTimecodeDigits& e) {
        EXPECT_EQ(std::string(e.what()),
                  "Timecode '" + longText.substr(0, 256) + "' has a field that is not all digits.");
    }
}

// Every label of the first eleven minutes and of hour 24 reads and writes back
// the same, except the labels drop-frame skips; the labels read in order are
// the consecutive frames.
TEST(DtTimecode, EveryValidLabelRoundTrips) {
    struct Config {
        Rational rate;
        Drop drop;
    };
    for (const Config config :
         {Config{Rational(25, 1), Drop::Off}, Config{Rational(30000, 1001), Drop::On},
          Config{Rational(60000, 1001), Drop::On}, Config{Rational(120000, 1001), Drop::On},
          Config{Rational(120, 1), Drop::Off}}) {
        const DtTimecode timecode(config.rate, config.drop);
        const int nominal = timecode.getNominalRate(),
                  drop = timecode.isDropFrame() ? nominal / 15 : 0;
        for (int hour : {0, 24}) {
            int64_t expected = hour * 6 * (600 * nominal - 9 * drop);
            for (int s = 0; s < 660 * nominal; ++s) {
                char text[32];
                std::snprintf(text, sizeof text,
                              nominal >= 100 ? "%02d:%02d:%02d%c%03d" : "%02d:%02d:%02d%c%02d",
                              hour, s / nominal / 60, s / nominal % 60, drop ? ';' : ':',
                              s % nominal);
                const bool skipped = drop != 0 && s / nominal % 60 == 0 && s % nominal < drop &&
                                     s / nominal / 60 % 10 != 0;
                SCOPED_TRACE(text);
                if (skipped) {
                    ASSERT_EQ(errorOf(timecode, text), typeid(DtEx::ExTimecodeDroppedLabel).name());
                    continue;
                }
                ASSERT_EQ(timecode.frameFromText(text), expected++);
                ASSERT_EQ(timecode.toText(timecode.fromText(text)), text);
            }
        }
    }
}

// time -> text -> time gives the start of the frame that contains the time.
TEST(DtTimecode, TextOfAnyTimeReadsAsTheStartOfItsFrame) {
    std::mt19937_64 random(12);
    std::uniform_int_distribution<int64_t> counts(-(int64_t{1} << 50), int64_t{1} << 50);
    const Rational rates[] = {Rational(1000000000, 1), Rational(48000, 1), Rational(30000, 1001),
                              Rational(1, 7), Rational(24, 1)};
    const Qn::DtTimeLess less;
    for (const Rational& rate : {Rational(24, 1), Rational(30000, 1001), Rational(60000, 1001),
                                 Rational(120000, 1001), Rational(999, 1)}) {
        const DtTimecode timecode(rate, Drop::Default, Negative);
        for (int i = 0; i < 20000; ++i) {
            const DtTime time(counts(random) >> (i % 40), rates[i % 5]);
            const DtTime start = timecode.fromText(timecode.toText(time));
            ASSERT_FALSE(less(time, start));
            ASSERT_TRUE(less(time, start + 1));
        }
    }
}
