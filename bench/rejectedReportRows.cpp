// A report that the filter rejects.
#include "core/log/tvxReport.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <glog/logging.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <memory>

namespace tvxbench {
namespace {

/// Reports per timed iteration, so that the loop's own cost does not stand in for what is measured.
constexpr int kReports = 64;

void rejectedReport(benchmark::State& state)
{
    tarvox::crowd::coreLog().setSeverityFilter(tarvox::core::kCritical);
    for (auto _ : state) {
#pragma GCC unroll 64
        for (int i = 0; i < kReports; ++i) {
            TVX_REPORT(tarvox::core::kWarning, "tvxbench::rejectedReport", "literal");
            benchmark::ClobberMemory();
        }
    }
}

void spdlogDisabled(benchmark::State& state)
{
    spdlog::logger logger("bench", std::make_shared<spdlog::sinks::null_sink_st>());
    logger.set_level(spdlog::level::critical);
    for (auto _ : state) {
#pragma GCC unroll 64
        for (int i = 0; i < kReports; ++i) {
            logger.warn("literal");
            benchmark::ClobberMemory();
        }
    }
}

void glogVlogOff(benchmark::State& state)
{
    FLAGS_v = 0;
    for (auto _ : state) {
#pragma GCC unroll 64
        for (int i = 0; i < kReports; ++i) {
            VLOG(1) << "literal";
            benchmark::ClobberMemory();
        }
    }
}

} // namespace

std::vector<Row> rejectedReportRows()
{
    benchmark::RegisterBenchmark("report_rejected", rejectedReport)->MinTime(0.05);
    benchmark::RegisterBenchmark("spdlog_disabled", spdlogDisabled)->MinTime(0.05);
    benchmark::RegisterBenchmark("glog_vlog_off", glogVlogOff)->MinTime(0.05);
    return {
        {"a report that the filter rejects (64 of them)", "spdlog's disabled warn(\"literal\")",
         "report_rejected", "spdlog_disabled", 0.25},
        {"a report that the filter rejects (64 of them)", "glog VLOG off", "report_rejected", "glog_vlog_off",
         1.2},
    };
}

} // namespace tvxbench
