// The printf-like writer building a text, with every output off.
#include "core/log/tvxMayaLogger.h"
#include "rows.h"

#include <benchmark/benchmark.h>

#include <cstdio>

namespace tvxbench {
namespace {

using tarvox::crowd::MayaLogger;

/// The values change from call to call, so that nothing is folded away.
struct Values
{
    int i = -123456;
    const char* s = "crowdProxyVRayShape1";
    double f = 3.14159265;
    double lf = 0.000123456789;
    unsigned u = 4000000000U;
    const void* p = &i;

    void step()
    {
        ++i;
        f += 0.7310585;
        lf += 0.000123;
        --u;
    }
};

void writeText(benchmark::State& state)
{
    MayaLogger& logger = MayaLogger::getInstance();
    logger.setUseScriptEditor(false);
    logger.setUseFile(false);
    logger.setOutputStream(nullptr);
    Values v;
    for (auto _ : state) {
        logger.write(3, true, "%d %s %f %lf %u %p", v.i, v.s, v.f, v.lf, v.u, v.p);
        v.step();
    }
}

void snprintfText(benchmark::State& state)
{
    Values v;
    char text[256];
    for (auto _ : state) {
        const auto single = static_cast<double>(static_cast<float>(v.f));
        benchmark::DoNotOptimize(
            std::snprintf(text, sizeof text, "%d %s %g %g %u %p", v.i, v.s, single, v.lf, v.u, v.p));
        benchmark::ClobberMemory();
        v.step();
    }
}

} // namespace

std::vector<Row> formatRows()
{
    benchmark::RegisterBenchmark("write_text", writeText)->MinTime(0.05);
    benchmark::RegisterBenchmark("snprintf_text", snprintfText)->MinTime(0.05);
    return {{"write with %d %s %f %lf %u %p, text only", "snprintf giving the same text", "write_text",
             "snprintf_text", 0.30}};
}

} // namespace tvxbench
