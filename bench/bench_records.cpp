// What recording adds to one progress report: the report's parse alone as the baseline, then
// the parse plus the recorder's sample (prepared insert, batched commits in WAL mode).
#include "communication/reports.h"
#include "records/firingrecorder.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {
const QString report = QStringLiteral("Langzeit;512;3;heat");

void BM_ReportParseOnly(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(ovra::Communication::ParseHeatReport(report));
}
BENCHMARK(BM_ReportParseOnly);

void BM_ReportParseAndRecord(benchmark::State &state)
{
    QTemporaryDir home;
    ovra::Records::FiringRecorder recorder(home.path());
    const auto describe = [] { return ovra::Records::FiringStart(); };
    double celsius = 20.0;
    for (auto _ : state) {
        const ovra::Communication::HeatReport info = ovra::Communication::ParseHeatReport(report);
        recorder.Temperature(celsius += 0.1);
        recorder.Progress(info.program, QStringLiteral("22.11.2026"), QStringLiteral("08:00"), describe);
    }
    recorder.Finished(ovra::Records::Result::Success, QString(), QString());
}
BENCHMARK(BM_ReportParseAndRecord);
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
