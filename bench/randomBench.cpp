// Per-sample cost of the sample generators, side by side with the standard
// library's engines and distributions in the same program.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <vector>

#include <base/rnGaussianRng.h>
#include <base/rnLecuyerUniformRng.h>
#include <base/rnNumRecUniformRng.h>
#include <base/rnStdUniformRng.h>
#include <base/rnVanDerCorputRng.h>

namespace {

constexpr unsigned int Block = 1024;

// One value per iteration through the generator's own (non-virtual) draw.
template <class Gen>
void evalDraw(benchmark::State& state) {
    Gen gen;
    for (auto _ : state) benchmark::DoNotOptimize(gen.eval());
    state.SetItemsProcessed(state.iterations());
}

// One value per iteration through the interface's virtual operator().
template <class Gen>
void virtualDraw(benchmark::State& state) {
    Gen gen;
    Qn::RnRng<double>* rng = &gen;
    benchmark::DoNotOptimize(rng);
    for (auto _ : state) benchmark::DoNotOptimize((*rng)());
    state.SetItemsProcessed(state.iterations());
}

// Blocks of values through the interface's getSequence.
template <class Gen>
void sequenceDraw(benchmark::State& state) {
    Gen gen;
    Qn::RnRng<double>* rng = &gen;
    benchmark::DoNotOptimize(rng);
    std::vector<double> out(Block);
    for (auto _ : state) {
        rng->getSequence(Block, out.data());
        benchmark::DoNotOptimize(out.data());
    }
    state.SetItemsProcessed(state.iterations() * Block);
}

template <class Engine>
void stdUniform(benchmark::State& state) {
    Engine engine;
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    for (auto _ : state) benchmark::DoNotOptimize(uniform(engine));
    state.SetItemsProcessed(state.iterations());
}

void minstdRaw(benchmark::State& state) {
    std::minstd_rand engine;
    for (auto _ : state) benchmark::DoNotOptimize(engine());
    state.SetItemsProcessed(state.iterations());
}

// The limit of a base-2 radical inverse: reverse the bits of the index.
void bitReversalRadicalInverse(benchmark::State& state) {
    std::uint32_t index = 0;
    for (auto _ : state) {
        std::uint32_t v = ++index;
        v = ((v >> 1) & 0x55555555u) | ((v & 0x55555555u) << 1);
        v = ((v >> 2) & 0x33333333u) | ((v & 0x33333333u) << 2);
        v = ((v >> 4) & 0x0F0F0F0Fu) | ((v & 0x0F0F0F0Fu) << 4);
        v = ((v >> 8) & 0x00FF00FFu) | ((v & 0x00FF00FFu) << 8);
        v = (v >> 16) | (v << 16);
        benchmark::DoNotOptimize(double(v) * 0x1p-32);
    }
    state.SetItemsProcessed(state.iterations());
}

void gaussian(benchmark::State& state) {
    Qn::RnNumRecUniformRng<double> uniform;
    Qn::RnGaussianRng<double> gauss(&uniform, 0.0, 1.0);
    for (auto _ : state) benchmark::DoNotOptimize(gauss.eval());
    state.SetItemsProcessed(state.iterations());
}

void stdNormal(benchmark::State& state) {
    std::minstd_rand engine;
    std::normal_distribution<double> normal(0.0, 1.0);
    for (auto _ : state) benchmark::DoNotOptimize(normal(engine));
    state.SetItemsProcessed(state.iterations());
}

void stdNormalMt(benchmark::State& state) {
    std::mt19937 engine;
    std::normal_distribution<double> normal(0.0, 1.0);
    for (auto _ : state) benchmark::DoNotOptimize(normal(engine));
    state.SetItemsProcessed(state.iterations());
}

using NumRec = Qn::RnNumRecUniformRng<double>;
using Lecuyer = Qn::RnLecuyerUniformRng<double>;
using Std = Qn::RnStdUniformRng<double>;
using VanDerCorput = Qn::RnVanDerCorputRng<double>;

}  // namespace

BENCHMARK(stdUniform<std::mt19937>)->Name("Uniform/std_mt19937+uniform_real");
BENCHMARK(stdUniform<std::minstd_rand>)->Name("Uniform/std_minstd_rand+uniform_real");
BENCHMARK(minstdRaw)->Name("Uniform/std_minstd_rand_raw");
BENCHMARK(evalDraw<NumRec>)->Name("Uniform/NumRec_eval");
BENCHMARK(evalDraw<Lecuyer>)->Name("Uniform/Lecuyer_eval");
BENCHMARK(evalDraw<Std>)->Name("Uniform/Std_eval");
BENCHMARK(virtualDraw<NumRec>)->Name("Interface/NumRec_operator()");
BENCHMARK(sequenceDraw<NumRec>)->Name("Interface/NumRec_getSequence");
BENCHMARK(virtualDraw<Lecuyer>)->Name("Interface/Lecuyer_operator()");
BENCHMARK(sequenceDraw<Lecuyer>)->Name("Interface/Lecuyer_getSequence");
BENCHMARK(virtualDraw<VanDerCorput>)->Name("Interface/VanDerCorput_operator()");
BENCHMARK(sequenceDraw<VanDerCorput>)->Name("Interface/VanDerCorput_getSequence");
BENCHMARK(evalDraw<VanDerCorput>)->Name("Radical/VanDerCorput_base2_eval");
BENCHMARK(bitReversalRadicalInverse)->Name("Radical/bit_reversal");
BENCHMARK(gaussian)->Name("Normal/RnGaussianRng_NumRec");
BENCHMARK(stdNormal)->Name("Normal/std_normal_minstd");
BENCHMARK(stdNormalMt)->Name("Normal/std_normal_mt19937");
BENCHMARK_MAIN();
