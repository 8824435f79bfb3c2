// Qn::LgMajorGroup: a named set of log levels that are let through, and the
// process-wide registry of these groups.
//
// A group's mask is a union of level bits (lgTypes.h). A threshold selects a
// cumulative mask, every level from "Internal Error" down to it; Profiling is
// switched on and off apart from the severity threshold. Groups are found by
// name; producers hold a Qn::LgMinorGroup that refers to one.
//
//   Qn::LgMajorGroup::initialize("Main=Tracing,Io=Error");
//   Qn::LgMajorGroup& io = Qn::LgMajorGroup::getInstanceForName("Io");
//   io.setLogThreshold(Qn::LgTypes::Profiling, false);   // Error and Profiling
//   Qn::LgMajorGroup::printAll(std::cout);
//   Qn::LgMajorGroup::finalize();
//
// Thread-safety: the registry has no lock; initialize, parse, finalize and
// getInstanceForName belong to start-up and shutdown on one thread (or to the
// caller's own serialisation). A group's mask is atomic: reading it
// (getLogLevels, LgMinorGroup::isLevelEnabled) is safe on any thread while
// another sets the threshold.
#pragma once

#include <atomic>
#include <cstdint>
#include <iosfwd>

#include <base/lgTypes.h>

namespace Qn {

class QN_BASE_API LgMajorGroup {
  public:
    // A group with the mask of the current default threshold.
    LgMajorGroup();
    LgMajorGroup(const LgMajorGroup&) = delete;
    LgMajorGroup& operator=(const LgMajorGroup&) = delete;

    // Creates the empty registry, then applies spec when it is not null (see
    // parse). REQUIRES: the registry is absent ("!names", "!majorGroups").
    static void initialize(const char* spec);
    // Removes every group and frees the registry; references to groups are
    // invalid afterwards. REQUIRES: the registry is present ("names",
    // "majorGroups").
    static void finalize();
    // Whether the registry is present.
    static bool isInitialized();

    // Applies a group string "group=Level,group=Level,..." where Level is an
    // exact level name ("Fatal Error" keeps its blank). Each assignment sets the
    // group's threshold (creating the group); an unknown level name is reported
    // on std::cout as the exception's message and skipped, and creates no
    // group. An assignment without "=" raises ExInternalError
    // "Assertion 's' failed.". REQUIRES: an initialised registry.
    static void parse(const char* spec);

    // The group of that name, created with the default threshold's mask at the
    // first request; the same name always yields the same group, whose address
    // stays valid until finalize. The name is copied. REQUIRES: an initialised
    // registry.
    static LgMajorGroup& getInstanceForName(const char* name);

    // "Major Groups:" and one line per group in byte-wise name order: the name
    // right-aligned in 24 columns, a blank and the group's levels as
    // printLevels writes them.
    static void printAll(std::ostream& out);
    // The text of a mask: the name of the first of the cumulative masks of
    // Tracing, Informational, Warning, Error and Fatal Error that shares a bit
    // with it (so any severity bit prints "Tracing"), then ", Profiling" when
    // the Profiling bit is set.
    static void printLevels(std::ostream& out, uint32_t mask);

    // The threshold of groups made from now on; "Internal Error" is stored as
    // "Fatal Error". Existing groups keep their masks.
    // REQUIRES: l < NUM_LEVELS.
    static void setDefaultThreshold(LgTypes::Level l);
    static LgTypes::Level getDefaultThreshold();
    // The mask a threshold selects: cumulative for levels 0 to 5 (0x80, 0xC0,
    // ... 0xFC), 0x02 for Profiling. REQUIRES: l < NUM_LEVELS.
    static uint32_t getLevelMask(LgTypes::Level l);

    // Profiling adds the Profiling bit and changes nothing else. Any other level
    // sets the cumulative mask of that level ("Internal Error" counts as "Fatal
    // Error") and keeps the Profiling bit unless clearProfiling is true.
    // REQUIRES: l < NUM_LEVELS.
    void setLogThreshold(LgTypes::Level l, bool clearProfiling);
    // The group's mask.
    uint32_t getLogLevels() const { return _mask.load(std::memory_order_relaxed); }

  private:
    std::atomic<uint32_t> _mask;
};

}  // namespace Qn
