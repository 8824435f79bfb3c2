#include "workload.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

namespace QnPerf {

namespace {

// The largest count: a cycle's buffers stay well under a gigabyte.
constexpr unsigned long MaxCount = 100000000;

}  // namespace

Workload parseWorkload(int argc, const char* const* argv, const char* const* kinds,
                       const char* usage) {
    if (argc == 2) {
        Workload workload;
        for (; kinds[workload.kind] != nullptr; ++workload.kind)
            if (std::strcmp(kinds[workload.kind], argv[0]) == 0) break;
        char* end = nullptr;
        errno = 0;
        const unsigned long count = std::strtoul(argv[1], &end, 10);
        if (kinds[workload.kind] != nullptr && *argv[1] >= '0' && *argv[1] <= '9' && *end == '\0' &&
            errno == 0 && count >= 1 && count <= MaxCount) {
            workload.count = static_cast<unsigned>(count);
            return workload;
        }
    }
    throw std::invalid_argument(std::string("usage: ") + usage);
}

}  // namespace QnPerf
