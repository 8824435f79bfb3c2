// The four sources of configuration values, from strongest to weakest:
//
//   source      priority     value of an alias
//   InInitOvr   4294967295   its key (set by the program)
//   InInitArg   15           the argument of the command-line option named by the
//                            first letter of its key
//   InInitEnv   10           the environment variable named by its key, if set
//   InInitDef   0            its key (a built-in default)
//
// The package "initialize" initialises the default, environment and override
// sources, in that order; "initArg" the command-line source.
#pragma once

#include <cstdint>

#include <base/inContextAliasRegistry.h>

namespace Qn {

class QN_BASE_API InInitOvr {
  public:
    static constexpr uint32_t Priority = 0xFFFFFFFFU;
    static InContextAliasRegistry& registry();
    static void initialize();
};

// Every letter of the command-line source takes an argument: "-t 4" or "-t4".
// Letters no alias knows are skipped, as are operands; "--" ends the options.
// When an option is given twice, the last one counts.
class QN_BASE_API InInitArg {
  public:
    static constexpr uint32_t Priority = 15;
    static InContextAliasRegistry& registry();
    static void initialize();
};

class QN_BASE_API InInitEnv {
  public:
    static constexpr uint32_t Priority = 10;
    static InContextAliasRegistry& registry();
    static void initialize();
};

class QN_BASE_API InInitDef {
  public:
    static constexpr uint32_t Priority = 0;
    static InContextAliasRegistry& registry();
    static void initialize();
};

}  // namespace Qn
