// What the lab link adds to one progress report: the report through the handler, the furnace's
// state and the firing recorder alone, then the same with the link connected to a real broker
// (Debian's mosquitto on a loopback port), its states coalesced as on the panel (one per 500 ms)
// and, as the worst case, one state for every report. Each iteration runs the event loop once,
// so the link's publishing between reports is paid for too.
#include "app/furnacestate.h"
#include "app/paths.h"
#include "communication/messagehandler.h"
#include "lablink/lablink.h"
#include "lablink/labpayloads.h"
#include "records/firinghistory.h"
#include "records/firingrecorder.h"
#include "tests/mosquittobroker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {
const QString report = QStringLiteral("hpinfo==Langzeit;512;3;heat");

struct Furnace
{
    explicit Furnace(const QString &home) : handler(ovra::GlobalElements::Paths(home)), recorder(home)
    {
        state.Follow(&handler);
        recorder.Observe(
            state, [](const QString &) { return ovra::Records::FiringStart(); },
            [](const ovra::GlobalElements::DeviceInfo &) { return QString(); });
        handler.ParseMessage(QStringLiteral("date==20261125"));
        handler.ParseMessage(QStringLiteral("time==0900"));
        handler.ParseMessage(QStringLiteral("temp==1085"));
    }
    ovra::Communication::MessageHandler handler;
    ovra::GlobalElements::FurnaceState state;
    ovra::Records::FiringRecorder recorder;
};

void reports(benchmark::State &state, Furnace &furnace)
{
    for (auto _ : state) {
        furnace.handler.ParseMessage(report);
        QCoreApplication::processEvents();
    }
}

void BM_ReportAlone(benchmark::State &state)
{
    QTemporaryDir home;
    Furnace furnace(home.path());
    reports(state, furnace);
}
BENCHMARK(BM_ReportAlone);

// range(0): the state interval in ms.
void BM_ReportWithLink(benchmark::State &state)
{
    QTemporaryDir home, brokerDir;
    MosquittoBroker broker(brokerDir.path());
    if (!broker.Start()) {
        state.SkipWithError("mosquitto did not start");
        return;
    }
    Furnace furnace(home.path());
    ovra::LabLink::LabLinkConfig config;
    config.host = QStringLiteral("127.0.0.1");
    config.port = broker.Port();
    config.furnaceId = QStringLiteral("bench");
    ovra::LabLink::LabLink::Timing timing;
    timing.stateIntervalMs = static_cast<int>(state.range(0));
    ovra::LabLink::LabLink link(config, furnace.state, furnace.recorder.Store(), timing);
    QElapsedTimer waited;
    waited.start();
    while (!link.Status().IsConnected() && waited.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    if (!link.Status().IsConnected()) {
        state.SkipWithError("the link did not connect");
        return;
    }
    const int before = link.StatesPublished();
    reports(state, furnace);
    state.counters["states"] = link.StatesPublished() - before;
}
BENCHMARK(BM_ReportWithLink)->Arg(500)->Arg(0);

// A ten-hour firing's record (36,000 samples) made into JSON: done off the panel's thread.
void BM_TenHourRecordPayload(benchmark::State &state)
{
    ovra::Records::FiringRecord record;
    record.uid = QStringLiteral("3f0c2a8e-5b7d-4c1e-9a42-7d1e0b6c9f10");
    for (int i = 0; i < 36000; ++i)
        record.samples.append({i, 20.0f + static_cast<float>(i % 1500)});
    for (auto _ : state)
        benchmark::DoNotOptimize(ovra::LabLink::RecordPayload(record, QStringLiteral("bench")));
}
BENCHMARK(BM_TenHourRecordPayload)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
