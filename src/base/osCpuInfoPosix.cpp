// POSIX companion of OsCpuInfo: the performance counter is CLOCK_MONOTONIC in
// nanoseconds; the processor name comes from /proc/cpuinfo (or uname), the
// caches from /sys/devices/system/cpu/cpu0/cache (or sysconf), the processor
// count and memory size from sysconf.
#include <base/osCpuInfo.h>

#include <sys/utsname.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <string>

#include <base/exSysErrorANSI.h>
#include <base/exSysErrorPosix.h>

namespace Qn {

namespace {

ArrayPtrRet<char> copyText(const std::string& text) {
    ArrayPtrRet<char> copy(new char[text.size() + 1]);
    std::memcpy(copy.get(), text.c_str(), text.size() + 1);
    return copy;
}

// The value of the first "key : value" line of /proc/cpuinfo with one of the
// keys that name the model on the various architectures; empty when none.
std::string cpuinfoModel() {
    std::ifstream in("/proc/cpuinfo");
    std::string line;
    while (std::getline(in, line)) {
        size_t colon = line.find(':');
        if (colon == std::string::npos) continue;
        std::string key = line.substr(0, line.find_last_not_of(" \t", colon - 1) + 1);
        if (key != "model name" && key != "Hardware" && key != "cpu model" && key != "cpu") {
            continue;
        }
        size_t value = line.find_first_not_of(" \t", colon + 1);
        if (value != std::string::npos) return line.substr(value);
    }
    return std::string();
}

std::string readFirstLine(const std::string& file) {
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);
    return line;
}

// A cache size as sysfs writes it ("48K", "32M"), in bytes.
uint64_t parseSize(const std::string& text) {
    size_t end = 0;
    uint64_t value = std::stoull(text, &end);
    if (end < text.size() && text[end] == 'K') value <<= 10;
    if (end < text.size() && text[end] == 'M') value <<= 20;
    return value;
}

long sysconfOrThrow(int name) {
    errno = 0;
    long value = sysconf(name);
    if (value <= 0) throw ExSysErrorPosix(__FILE__, __LINE__, errno != 0 ? errno : EINVAL);
    return value;
}

}  // namespace

uint64_t OsCpuInfo::performGetHwCounterFrequency() { return 1000000000ULL; }

uint64_t OsCpuInfo::getHwCounterValue() {
    timespec now;
    if (clock_gettime(CLOCK_MONOTONIC, &now) != 0) throw ExSysErrorANSI(__FILE__, __LINE__);
    return static_cast<uint64_t>(now.tv_sec) * 1000000000ULL + static_cast<uint64_t>(now.tv_nsec);
}

ArrayPtrRet<char> OsCpuInfo::getProcessorName() {
    std::string model = cpuinfoModel();
    if (!model.empty()) return copyText(model);
    utsname names;
    if (uname(&names) != 0) throw ExSysErrorPosix(__FILE__, __LINE__);
    return copyText(names.machine);
}

uint32_t OsCpuInfo::getProcessorCount() {
    return static_cast<uint32_t>(sysconfOrThrow(_SC_NPROCESSORS_ONLN));
}

uint64_t OsCpuInfo::performGetCacheSize(int level) {
    const std::string base = "/sys/devices/system/cpu/cpu0/cache/index";
    for (int index = 0;; ++index) {
        std::string dir = base + std::to_string(index) + "/";
        std::string levelText = readFirstLine(dir + "level");
        if (levelText.empty()) break;
        std::string type = readFirstLine(dir + "type");
        if (std::stoi(levelText) == level && type != "Instruction") {
            std::string size = readFirstLine(dir + "size");
            if (!size.empty()) return parseSize(size);
        }
    }
    static const int names[] = {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE,
                                _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE};
    long size = level <= 4 ? sysconf(names[level - 1]) : 0;
    return size > 0 ? static_cast<uint64_t>(size) : 0;
}

uint32_t OsCpuInfo::getCacheLineSize() {
    std::string line =
        readFirstLine("/sys/devices/system/cpu/cpu0/cache/index0/coherency_line_size");
    if (!line.empty()) return static_cast<uint32_t>(std::stoul(line));
    long size = sysconf(_SC_LEVEL1_DCACHE_LINESIZE);
    return size > 0 ? static_cast<uint32_t>(size) : 0;
}

uint64_t OsCpuInfo::getMemorySize() {
    return static_cast<uint64_t>(sysconfOrThrow(_SC_PHYS_PAGES)) *
           static_cast<uint64_t>(sysconfOrThrow(_SC_PAGESIZE));
}

}  // namespace Qn
