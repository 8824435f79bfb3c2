// The file layer side by side with std::filesystem: copying a 256 MiB file,
// listing a directory of 50,000 entries, and joining and splitting paths.
// The files live in a temporary directory that the program creates at start
// and removes at exit.
#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <base/osDirectory.h>
#include <base/osFile.h>
#include <base/osFilePath.h>
#include <base/osPassThroughFilter.h>

namespace {

namespace fs = std::filesystem;

constexpr size_t BigFileSize = size_t{256} << 20;
constexpr int DirectoryEntries = 50000;

fs::path workDir;

// The library's form of a native path ("/tmp/x" is "C:\tmp\x" on POSIX).
Qn::OsFilePath toQn(const fs::path& native) {
    std::string text = native.string();
    if (!text.empty() && text[0] == '/') text = "C:" + text;
    for (char& c : text) {
        if (c == '/') c = '\\';
    }
    return Qn::OsFilePath(text.c_str());
}

void makeBigFile() {
    std::vector<char> block(1 << 20);
    for (size_t i = 0; i < block.size(); ++i) block[i] = static_cast<char>(i * 31);
    std::ofstream out(workDir / "big", std::ios::binary);
    for (size_t written = 0; written < BigFileSize; written += block.size()) {
        out.write(block.data(), static_cast<std::streamsize>(block.size()));
    }
}

void makeBigDirectory() {
    fs::create_directory(workDir / "many");
    for (int i = 0; i < DirectoryEntries; ++i) {
        std::ofstream(workDir / "many" / ("entry-" + std::to_string(i) + ".dat"));
    }
}

void BM_OsFileCopyTo(benchmark::State& state) {
    Qn::OsFile source(toQn(workDir / "big"));
    Qn::OsFilePath target = toQn(workDir / "copy-qn");
    for (auto _ : state) {
        source.copyTo(target);
        state.PauseTiming();
        fs::remove(workDir / "copy-qn");
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * BigFileSize));
}
BENCHMARK(BM_OsFileCopyTo)->Unit(benchmark::kMillisecond)->Iterations(4);

void BM_StdCopyFile(benchmark::State& state) {
    for (auto _ : state) {
        fs::copy_file(workDir / "big", workDir / "copy-std");
        state.PauseTiming();
        fs::remove(workDir / "copy-std");
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * BigFileSize));
}
BENCHMARK(BM_StdCopyFile)->Unit(benchmark::kMillisecond)->Iterations(4);

void BM_OsDirectoryGetChildrenPath(benchmark::State& state) {
    Qn::OsDirectory directory(toQn(workDir / "many"));
    Qn::OsPassThroughFilter all;
    for (auto _ : state) {
        auto children = directory.getChildrenPath(Qn::OsFileTypes::FullPath, all);
        benchmark::DoNotOptimize(children->data());
    }
}
BENCHMARK(BM_OsDirectoryGetChildrenPath)->Unit(benchmark::kMillisecond);

void BM_StdDirectoryIterator(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<fs::path> children;
        for (const auto& entry : fs::directory_iterator(workDir / "many")) {
            children.push_back(entry.path());
        }
        benchmark::DoNotOptimize(children.data());
    }
}
BENCHMARK(BM_StdDirectoryIterator)->Unit(benchmark::kMillisecond);

void BM_OsFilePathConcatenate(benchmark::State& state) {
    Qn::OsFilePath base("C:\\work\\project");
    for (auto _ : state) {
        Qn::OsFilePath path = base + "src" + "module" + "file.txt";
        benchmark::DoNotOptimize(path.getText());
    }
}
BENCHMARK(BM_OsFilePathConcatenate);

void BM_StdPathConcatenate(benchmark::State& state) {
    fs::path base("/work/project");
    for (auto _ : state) {
        fs::path path = base / "src" / "module" / "file.txt";
        benchmark::DoNotOptimize(path.c_str());
    }
}
BENCHMARK(BM_StdPathConcatenate);

void BM_OsFilePathGetBaseName(benchmark::State& state) {
    Qn::OsFilePath path("C:\\work\\project\\src\\module\\file.txt");
    for (auto _ : state) {
        Qn::OsFilePath base = path.getBaseName();
        benchmark::DoNotOptimize(base.getText());
    }
}
BENCHMARK(BM_OsFilePathGetBaseName);

void BM_StdPathFilename(benchmark::State& state) {
    fs::path path("/work/project/src/module/file.txt");
    for (auto _ : state) {
        fs::path base = path.filename();
        benchmark::DoNotOptimize(base.c_str());
    }
}
BENCHMARK(BM_StdPathFilename);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    workDir = fs::temp_directory_path() /
              ("qnOsFileBench-" +
               std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
    fs::create_directories(workDir);
    makeBigFile();
    makeBigDirectory();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    fs::remove_all(workDir);
    return 0;
}
