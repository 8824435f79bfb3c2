// The library's tour: a host program that declares its own package and
// configuration, starts the library with its command line, uses it, and
// finalises it.
//
//   make demo                                   # threads from the default (2)
//   QN_DEMO_THREADS=3 make demo                 # ... from the environment
//   ./build/release/examples/qndemo -t 4        # ... from the command line
//   ./build/release/examples/qndemo -o 5        # ... from a program override
//   QN_DEBUG_INITIALIZE=1 make demo             # trace of the start-up
//   QN_TRACE_OPTIONS=show=Demo,line ./build/release/examples/qndemo
#include <cstring>
#include <exception>
#include <iostream>
#include <string>

#include <base/dtRefTimeFactory.h>
#include <base/dtTime.h>
#include <base/dtTimeMark.h>
#include <base/dtTimeUtil.h>
#include <base/dtTimecode.h>
#include <base/exBase.h>
#include <base/inBasePackages.h>
#include <base/inContextAlias.h>
#include <base/inInitGuard.h>
#include <base/inInitMgr.h>
#include <base/inVariable.h>
#include <base/lgDemo.h>
#include <base/lgLog.h>
#include <base/osFilePath.h>
#include <base/prProfilerRegistry.h>
#include <base/rnSamplePicture.h>
#include <base/traceDemo.h>

namespace QnInit {
class demo;
}

namespace {

// The demo's package needs the whole library; its variable takes the number of
// producer threads from an override, "-t", QN_DEMO_THREADS or the default.
Qn::InInit<QnInit::demo> demoPackage("demo", Qn::InPackageDeps<QnInit::base>{});
const Qn::InArgAlias threadsOption("t", "-t <threads>");
const Qn::InEnvAlias threadsVariable("QN_DEMO_THREADS", "environment variable QN_DEMO_THREADS");
const Qn::InDefAlias threadsDefault("2", "built-in default");
Qn::InVariable<int> threads("demo.threads", demoPackage, threadsOption, threadsVariable,
                            threadsDefault);

// "-o <n>" is the demo's own option, handled before the library takes the
// command line: it shows that a program override beats every other source.
void overrideFromCommandLine(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], "-o") == 0)
            Qn::InVariableBase::overrideViaHandle("demo.threads", argv[i + 1], "-o override");
}

void section(const char* title) { std::cout << "\n== " << title << "\n"; }

// Exact discrete time: a film second re-expressed at the NTSC rate, two rates
// added at their shared rate, a time through its text form and back, one time
// as timecode, and a reference time read at a stream rate.
void showExactTime() {
    const Qn::Rational film(24, 1), ntsc(30000, 1001);
    const Qn::DtTime second(24, film);
    std::cout << second << " at NTSC: " << second.convertRate(ntsc) << "\n";
    std::cout << "frame 1000 at NTSC, to nearest: "
              << int64_t{Qn::DtTimeIndex(1000).convert(film, ntsc, std::round_to_nearest)} << "\n";
    std::cout << Qn::DtTime(10, film) << " + " << Qn::DtTime(10, 25, 1) << " = "
              << Qn::DtTime(10, film) + Qn::DtTime(10, 25, 1) << "\n";
    const Qn::DtTime time(100, ntsc);
    const Qn::ArrayPtrRet<char> text = Qn::DtTimeUtil::getDtStringFromDtTime(time);
    const Qn::DtTime back = Qn::DtTimeUtil::getDtTimeFromDtString(text.get());
    std::cout << time << " -> \"" << text.get() << "\" -> " << back
              << (back == time && back.isRateEqual(time) ? " (exact)" : " (differs)") << "\n";
    // One time, 1 h 2 min 3.5 s, as the timecode of its frame at three rates.
    const Qn::DtTime clock(3723500, 1000, 1);
    for (const Qn::Rational rate : {film, Qn::Rational(25, 1), ntsc}) {
        std::cout << "timecode at " << rate.getDouble()
                  << " fps: " << Qn::DtTimecode(rate).toText(clock) << "\n";
    }
    // Reference times in exact arithmetic: the NTSC frame one second of the
    // reference clock after a mark.
    const Qn::DtRefTimeFactory& factory = Qn::DtRefTimeFactory::getInstance();
    const Qn::DtTimeMark mark(Qn::DtTime(0, ntsc), factory.create());
    const Qn::DtRefTime later = factory.createExact(mark.getRefTime(), 1, Qn::Rational(1, 1));
    std::cout << "one reference second after the mark: NTSC frame "
              << int64_t{mark.evalTimeExact(later).getStreamTime().getCount()} << "\n";
}

// Runs one part of the tour under a profiler of its own name.
template <class Part>
void tour(Qn::PrProfilerRegistry& profilers, const char* title, Part part) {
    section(title);
    Qn::PrProfiler& profiler = profilers.create(title, Qn::PrProfiler::Hardware);
    profiler.start();
    part();
    profiler.stop();
    profiler.endCycle();
}

}  // namespace

int main(int argc, char** argv) {
    try {
        overrideFromCommandLine(argc, argv);
        // Initialises every package in dependency order; the library takes the
        // command line (argc is 0 afterwards).
        Qn::InInitGuard library(argc, argv);
        Qn::PrProfilerRegistry profilers;
        const Qn::OsFilePath picture = Qn::OsFilePath::getTempDir() + "qndemo-samples.svg";

        tour(profilers, "Start-up", [] { std::cout << Qn::InInitMgr::getInstance(); });
        tour(profilers, "Configuration", [] {
            std::cout << "producer threads: " << threads.getValue() << " (from "
                      << threads.initSource() << ")\n";
        });
        tour(profilers, "Logging", [] { Qn::LgDemo::logFromThreads(threads.getValue()); });
        tour(profilers, "Tracing", [] { Qn::TraceDemo::traceNestedCalls(); });
        tour(profilers, "Exact time", [] { showExactTime(); });
        tour(profilers, "Sampling", [&picture] {
            Qn::RnSamplePicture::writeUniformVersusHalton(picture.getText());
            std::cout << "256 uniform and 256 Halton points: " << picture.getText() << "\n";
        });

        section("Summary");
        profilers.report(std::cout);
        const char* events = Qn::LgLog::getEventFileName();
        const char* profiling = Qn::LgLog::getProfilingFileName();
        std::cout << "\nevents log:    " << (events ? events : "none") << "\n"
                  << "profiling log: " << (profiling ? profiling : "none") << "\n"
                  << "sample picture: " << picture.getText() << "\n"
                  << "finalising the packages in reverse order\n";
        return 0;
    } catch (const Qn::ExBase& failure) {
        std::cerr << failure.getDetailedReason() << std::endl;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << std::endl;
    }
    return 1;
}
