// Qn::LgTypes: the seven log levels, their names and their bits.
//
// Levels run from the most severe (InternalError, 0) to Profiling (6); a lower
// number is more severe. Each level has one bit of a group's level mask
// (InternalError 0x80 down to Profiling 0x02; bit 0x01 is never used).
//
//   const char* name = Qn::LgTypes::getLevelName(Qn::LgTypes::Warning);  // "Warning"
//   Qn::LgTypes::Level l = Qn::LgTypes::getLevelFromName("Fatal Error");
//
// Plain constant data: safe from any thread.
#pragma once

#include <cstdint>

#include <base/qnExport.h>

namespace Qn {

class QN_BASE_API LgTypes {
  public:
    enum Level : uint32_t {
        InternalError = 0,
        FatalError = 1,
        Error = 2,
        Warning = 3,
        Informational = 4,
        Tracing = 5,
        Profiling = 6,
    };
    static constexpr uint32_t NUM_LEVELS = 7;

    // The bit of a level in a level mask; the eighth entry is 0, so any index
    // below 8 is safe on the hot path.
    static uint32_t getLevelBit(Level l) { return LevelBits[l]; }

    // "Internal Error", "Fatal Error", "Error", "Warning", "Informational",
    // "Tracing" or "Profiling". REQUIRES: l < NUM_LEVELS (ExInternalError).
    static const char* getLevelName(Level l);
    // The level whose name equals s exactly (case-sensitive, whole string).
    // Raises LgEx::InvalidLevelString for any other text.
    // REQUIRES: s is not null (ExInternalError "Assertion 's' failed.").
    static Level getLevelFromName(const char* s);

  private:
    static constexpr uint32_t LevelBits[8] = {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x00};
};

}  // namespace Qn
