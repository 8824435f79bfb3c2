// Qn::DtTimecode against FFmpeg's libavutil, both directions: every frame of
// 25 hours at 29.97 and 59.94 drop-frame, every 997th frame at the common
// non-drop rates, and the labels where the two differ.
#include <base/dtTimecode.h>

#include <gtest/gtest.h>

#include <base/dtEx.h>

extern "C" {
#include <libavutil/log.h>
#include <libavutil/timecode.h>
}

namespace {

using Qn::DtTimecode;

// Compares the text of frames 0, step, 2 step, ... below end, and the frame
// each side reads from that text.
void compareFrames(AVRational rate, unsigned flags, int64_t end, int step) {
    const bool drop = (flags & AV_TIMECODE_FLAG_DROPFRAME) != 0;
    AVTimecode theirs;
    ASSERT_EQ(av_timecode_init(&theirs, rate, static_cast<int>(flags), 0, nullptr), 0);
    const DtTimecode ours(
        Qn::Rational(rate.num, rate.den),
        drop ? DtTimecode::DropFrame::On : DtTimecode::DropFrame::Off,
        (flags & AV_TIMECODE_FLAG_24HOURSMAX) != 0 ? DtTimecode::Wrap24Hours : DtTimecode::NoFlags);
    const int64_t day = int64_t{24} * 6 *
                        (600 * ours.getNominalRate() - (drop ? 9 * ours.getNominalRate() / 15 : 0));
    for (int64_t frame = 0; frame < end; frame += step) {
        char text[DtTimecode::TextSize], theirText[AV_TIMECODE_STR_SIZE];
        ours.frameToText(frame, text);
        av_timecode_make_string(&theirs, theirText, static_cast<int>(frame));
        ASSERT_STREQ(text, theirText) << "frame " << frame;
        AVTimecode read;
        ASSERT_EQ(av_timecode_init_from_string(&read, rate, text, nullptr), 0) << text;
        ASSERT_EQ(ours.frameFromText(text), read.start) << text;
        ASSERT_EQ(ours.frameFromText(text),
                  (ours.getFlags() & DtTimecode::Wrap24Hours) ? frame % day : frame)
            << text;
    }
}

}  // namespace

TEST(DtTimecodeAvutil, DropFrameAgreesOnEveryFrameOf25Hours) {
    compareFrames({30000, 1001}, AV_TIMECODE_FLAG_DROPFRAME, 25 * 107892, 1);
    compareFrames({60000, 1001}, AV_TIMECODE_FLAG_DROPFRAME | AV_TIMECODE_FLAG_24HOURSMAX,
                  25 * 215784, 1);
    compareFrames({120000, 1001}, AV_TIMECODE_FLAG_DROPFRAME, 25 * 431568, 7);
}

TEST(DtTimecodeAvutil, NonDropAgreesOnEvery997thFrame) {
    for (AVRational rate : {AVRational{24, 1}, AVRational{25, 1}, AVRational{30, 1},
                            AVRational{50, 1}, AVRational{60, 1}, AVRational{24000, 1001}}) {
        SCOPED_TRACE(rate.num);
        compareFrames(rate, 0, int64_t{25} * 3600 * (rate.num / rate.den + 1), 997);
    }
}

// libavutil reads any numbers in the four fields; SMPTE ST 12-1 has no such
// labels, so DtTimecode refuses them. At 29.97 drop-frame "00:01:00;00" does
// not exist (the minute starts at ;02), yet libavutil counts it as frame 1798,
// the frame of "00:00:59;28"; minutes and seconds run to 59 and frames below
// the nominal rate, yet libavutil carries "00:60:00;02" and "00:00:00;30" into
// the next hour and second.
TEST(DtTimecodeAvutil, LabelsTheStandardDoesNotHaveAreRefused) {
    av_log_set_level(AV_LOG_QUIET);
    const DtTimecode ours(Qn::Rational(30000, 1001));
    for (const char* text :
         {"00:01:00;00", "00:01:00;01", "00:60:00;02", "00:00:60;00", "00:00:00;30"}) {
        SCOPED_TRACE(text);
        AVTimecode read;
        EXPECT_EQ(av_timecode_init_from_string(&read, {30000, 1001}, text, nullptr), 0);
        EXPECT_THROW(ours.frameFromText(text), Qn::DtEx);
    }
    AVTimecode read;
    av_timecode_init_from_string(&read, {30000, 1001}, "00:01:00;00", nullptr);
    EXPECT_EQ(read.start, ours.frameFromText("00:00:59;28"));
}
