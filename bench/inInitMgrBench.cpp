// Ordering many packages: the transitive closure of the dependency matrix for
// random acyclic dependencies, and one whole initialisation pass of 2,000
// registered packages.
//
//   build/release/bench/inInitMgrBench
#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <random>
#include <typeinfo>
#include <utility>
#include <vector>

#include <base/inDependencyMatrix.h>
#include <base/inInitMgr.h>
#include <base/inPackageInit.h>

namespace {

constexpr int PackageCount = 2000;
constexpr int MaxDependencies = 8;

// Each package needs up to MaxDependencies packages of lower index: acyclic.
std::vector<std::vector<int>> randomDependencies(int n, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<std::vector<int>> dependencies(static_cast<size_t>(n));
    for (int i = 1; i < n; ++i) {
        std::uniform_int_distribution<int> pick(0, i - 1);
        const int count = std::uniform_int_distribution<int>(0, MaxDependencies)(random);
        for (int d = 0; d < count; ++d) dependencies[i].push_back(pick(random));
    }
    return dependencies;
}

void BM_MatrixClosure(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    const auto dependencies = randomDependencies(n, 42);
    for (auto _ : state) {
        Qn::InDependencyMatrix matrix;
        matrix.reset(n);
        std::vector<uint32_t> counts(static_cast<size_t>(n), 0);
        for (int i = 0; i < n; ++i)
            for (int j : dependencies[i]) {
                matrix.set(i, j);
                ++counts[i];
            }
        benchmark::DoNotOptimize(matrix.close(counts));
    }
}
BENCHMARK(BM_MatrixClosure)->Arg(500)->Arg(PackageCount)->Unit(benchmark::kMillisecond);

// A distinct package type per index, as the manager keeps one package per type.
template <int N>
class BenchPackage final : public Qn::InPackageInit {
  public:
    BenchPackage(const std::vector<int>& dependencies, const std::type_info* const* types)
        : InPackageInit("bench") {
        for (int j : dependencies) addDependency(*types[j]);
        registerPackage();
    }

  protected:
    void performInitialize() override {}
    void performFinalize() override {}
    void setState(bool) override {}
};

template <int... I>
std::vector<std::unique_ptr<Qn::InPackageInit>> makePackages(std::integer_sequence<int, I...>) {
    static const std::array<const std::type_info*, sizeof...(I)> types{&typeid(BenchPackage<I>)...};
    const auto dependencies = randomDependencies(static_cast<int>(sizeof...(I)), 7);
    std::vector<std::unique_ptr<Qn::InPackageInit>> packages;
    (packages.push_back(std::make_unique<BenchPackage<I>>(dependencies[I], types.data())), ...);
    return packages;
}

// The manager runs its first pass once per process, so this is one timed pass.
void BM_InitialisePass2000(benchmark::State& state) {
    auto packages = makePackages(std::make_integer_sequence<int, PackageCount>{});
    for (auto _ : state) {
        int argc = 0;
        const char* const* argv = nullptr;
        Qn::InInitMgr::getInstance().initialize(argc, argv);
    }
    Qn::InInitMgr::getInstance().finalize();
}
BENCHMARK(BM_InitialisePass2000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
