#include <base/lgTrace.h>

#include <cstring>
#include <iostream>
#include <memory>

#include <base/assertions.h>
#include <base/lgLog.h>
#include <base/lgQueue.h>
#include <base/traceManager.h>

namespace Qn {

namespace {

// Sends every finished trace line to the logger; above the default manager.
class LgTraceManager : public TraceManager {
  public:
    static constexpr int Priority = 10;
    LgTraceManager() : TraceManager(Priority) {}
    void print(const char* line) override;
};

void LgTraceManager::print(const char* line) { LgTrace::print(line); }

std::unique_ptr<LgTraceManager>& installedManager() {
    static std::unique_ptr<LgTraceManager> manager;
    return manager;
}

}  // namespace

void LgTrace::installManager() {
    if (!installedManager()) installedManager() = std::make_unique<LgTraceManager>();
}

void LgTrace::removeManager() { installedManager().reset(); }

void LgTrace::print(const char* mess) {
    QN_ASSERT(mess);
    const size_t len = std::strlen(mess);
    if (len == 0) return;
    if (!LgLog::isLoggerActive()) {
        std::cout << mess << std::endl;
        return;
    }
    LgQueue& q = LgLog::getQueue();
    LgStream& s = q.getStream();
    if (LgLog::getBlockingTrace()) {
        // A line must fit a stream with its terminator: longer ones go in pieces.
        const size_t piece = LgStream::getMaxSize() - 1;
        if (len > piece) {
            char buffer[LgStream::BufSize];
            for (size_t at = 0; at < len; at += piece) {
                const size_t n = len - at < piece ? len - at : piece;
                std::memcpy(buffer, mess + at, n);
                buffer[n] = '\0';
                print(buffer);
            }
            return;
        }
        q.waitForSpace(static_cast<int>(len));
        QN_ASSERT_TEXT(
            !q.isEntryRingFull() && (s.getNumCharacters() >= static_cast<unsigned int>(len)),
            "!q.isFull() && ( s.getNumCharacters() >= static_cast<unsigned int>( len ))");
    }
    if (!q.reserveEntry(LgTypes::Tracing)) return;
    s << mess << ends;
    q.addEntry();
}

}  // namespace Qn
