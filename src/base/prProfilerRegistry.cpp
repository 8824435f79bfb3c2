#include <base/prProfilerRegistry.h>

#include <cstdio>
#include <cstring>
#include <ostream>

#include <base/assertions.h>
#include <base/prEx.h>

namespace Qn {

PrProfilerRegistry::PrProfilerRegistry() = default;

PrProfilerRegistry::~PrProfilerRegistry() = default;

PrProfiler& PrProfilerRegistry::create(const char* name, PrProfiler::Clock clock) {
    return add(ObjPtr<PrProfiler>(new PrProfiler(name, clock)));
}

PrProfiler& PrProfilerRegistry::add(ObjPtr<PrProfiler> profiler) {
    QN_ASSERT(profiler != nullptr);
    if (indexOf(profiler->getName()) >= 0)
        throw PrEx::ExDuplicateProfiler(__FILE__, __LINE__, profiler->getName());
    _profilers.push_back(std::move(profiler));
    return *_profilers.back();
}

bool PrProfilerRegistry::remove(const char* name) {
    const ptrdiff_t index = indexOf(name);
    if (index < 0) return false;
    _profilers.erase(_profilers.begin() + index);
    return true;
}

PrProfiler* PrProfilerRegistry::find(const char* name) const {
    const ptrdiff_t index = indexOf(name);
    return index < 0 ? nullptr : _profilers[static_cast<size_t>(index)].get();
}

PrProfiler& PrProfilerRegistry::get(const char* name) const {
    PrProfiler* profiler = find(name);
    if (profiler == nullptr)
        throw PrEx::ExUnknownProfiler(__FILE__, __LINE__, name != nullptr ? name : "");
    return *profiler;
}

ptrdiff_t PrProfilerRegistry::indexOf(const char* name) const {
    if (name == nullptr) return -1;
    for (size_t i = 0; i < _profilers.size(); ++i)
        if (std::strcmp(_profilers[i]->getName(), name) == 0) return static_cast<ptrdiff_t>(i);
    return -1;
}

void PrProfilerRegistry::resetAll() {
    for (ObjPtr<PrProfiler>& profiler : _profilers) profiler->reset();
}

void PrProfilerRegistry::report(std::ostream& stream) const {
    // Each column's header, its rule and its values have the same width.
    static const char Rule[] = "------------------------";
    char line[512];
    std::snprintf(line, sizeof line, "%-24s %8s %14s %14s %14s %14s\n", "Profiler", "cycles",
                  "total", "average", "minimum", "maximum");
    stream << line;
    std::snprintf(line, sizeof line, "%.24s %.8s %.14s %.14s %.14s %.14s\n", Rule, Rule, Rule, Rule,
                  Rule, Rule);
    stream << line;
    for (const ObjPtr<PrProfiler>& p : _profilers) {
        std::snprintf(line, sizeof line, "%-24s %8llu %14.6f %14.6f %14.6f %14.6f\n", p->getName(),
                      static_cast<unsigned long long>(p->getCount()), p->getTotal(),
                      p->getAverage(), p->getMinimum(), p->getMaximum());
        stream << line;
    }
}

}  // namespace Qn
