// Qn::DtTimecode: SMPTE timecode, the "HH:MM:SS:FF" text of a Qn::DtTime at a
// frame rate, and back.
//
// Rates: every integer rate from 1/1 to 999/1, and the NTSC rates 24000/1001,
// 30000/1001, 48000/1001, 60000/1001 and 120000/1001, whose labels count with
// the nominal integer rate (24, 30, 48, 60, 120). The frame field has two
// digits, three from 100 frames per second; hours have at least two digits and
// go past 23 unless the 24-hour wrap is asked for.
//
// Drop-frame ("HH:MM:SS;FF") keeps NTSC labels in step with the clock: at
// 30000/1001 the labels 00 and 01 are skipped at the start of every minute
// except the minutes divisible by 10; at 60000/1001 the labels 00 to 03, at
// 120000/1001 the labels 00 to 07. It is on by default at 30000/1001 and
// 60000/1001, as editing tools count, and may be forced on or off.
//
// Reading accepts "HH:MM:SS:FF" and the drop-frame forms "HH:MM:SS;FF" and
// "HH:MM:SS.FF": the separator before the frame field, not the drop-frame
// setting of the object, says how the text counts, so a tool's non-drop text
// at 29.97 reads as non-drop. A plain value type: immutable after construction,
// thread-safe, and neither writing into a caller's buffer nor reading
// allocates.
//
//   const Qn::DtTimecode ntsc(Qn::Rational(30000, 1001));     // drop-frame
//   std::string text = ntsc.toText(Qn::DtTime(17982, 30000, 1001)); // "00:10:00;00"
//   Qn::DtTime start = ntsc.fromText("00:01:00;02");          // frame 1800
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <base/dtTime.h>

namespace Qn {

class QN_BASE_API DtTimecode {
  public:
    // Whether labels drop: Default drops at 30000/1001 and 60000/1001 only.
    enum class DropFrame { Default, On, Off };
    // Options, combined with |: hours counted modulo 24, and negative times
    // written (and read) with a leading "-".
    enum Flags : unsigned { NoFlags = 0, Wrap24Hours = 1, AllowNegative = 2 };

    // Room for the longest text and its end mark ("-", 16 hour digits,
    // ":MM:SS:FFF").
    static constexpr size_t TextSize = 32;

    // Raises DtEx::ExTimecodeRate for a rate that has no timecode and
    // DtEx::ExTimecodeDropRate for DropFrame::On at a rate other than
    // 30000/1001, 60000/1001 or 120000/1001.
    explicit DtTimecode(Rational rate, DropFrame dropFrame = DropFrame::Default,
                        unsigned flags = NoFlags);

    Rational getRate() const { return _rate; }
    // The frames in one labelled second (30 at 30000/1001).
    int getNominalRate() const { return _nominal; }
    bool isDropFrame() const { return _drop != 0; }
    unsigned getFlags() const { return _flags; }

    // The label of the frame that contains time: the time converted exactly to
    // whole frames at the rate, rounding toward negative infinity. Writes the
    // text and its end mark into text and returns its length. Raises
    // DtEx::ExTimecodeNegativeTime for a time before zero unless AllowNegative,
    // DtEx::ExOverflow when the frame number does not fit in 64 bits.
    size_t toText(const DtTime& time, char (&text)[TextSize]) const;
    std::string toText(const DtTime& time) const;
    // The label of a frame number at the rate.
    size_t frameToText(int64_t frame, char (&text)[TextSize]) const;

    // The start of the frame that text labels, as a count of frames at the
    // rate. Raises, each with the text in its message:
    //  - DtEx::ExTimecodeFields: not four fields, or a separator other than
    //    ':' before the minutes and seconds (';' and '.' may only end the
    //    seconds);
    //  - DtEx::ExTimecodeDigits: an empty field or anything but digits;
    //  - DtEx::ExTimecodeDropSeparator: ';' or '.' at a rate without drop-frame;
    //  - DtEx::ExTimecodeRange: minutes or seconds above 59, hours of 24 or
    //    more with Wrap24Hours, or hours whose frame number does not fit;
    //  - DtEx::ExTimecodeFrame: a frame field at or above the nominal rate;
    //  - DtEx::ExTimecodeDroppedLabel: a label that drop-frame skips
    //    ("00:01:00;00" at 30000/1001);
    //  - DtEx::ExTimecodeNegative: a leading "-" unless AllowNegative.
    DtTime fromText(std::string_view text) const { return DtTime(frameFromText(text), _rate); }
    int64_t frameFromText(std::string_view text) const;

  private:
    enum class TextError { Fields, Digits, DropSeparator, Range, Frame, DroppedLabel, Negative };
    [[noreturn]] static void throwBadText(TextError error, std::string_view text);

    Rational _rate;
    int _nominal;   // frames per labelled second
    int _rateDrop;  // labels a drop-frame minute skips at this rate; 0 without drop-frame
    int _drop;      // labels skipped in written texts: _rateDrop or 0
    unsigned _flags;
    int64_t _dropMinute;  // frames in a minute that skips labels
    int64_t _tenMinutes;  // frames in ten minutes of drop-frame labels
};

}  // namespace Qn
