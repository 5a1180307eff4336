// Frame handling cost: how many frames per second one core can check, dispatch and answer.
#include "communication/frame.h"
#include "communication/messagehandler.h"

#include <benchmark/benchmark.h>

using ovra::Communication::MessageHandler;
namespace Frame = ovra::Communication::Frame;

namespace {

// A typical report during a firing: temperature, remaining time, stage; 40 bytes on the line.
const QByteArray commandBody = "temp==1473$$esttime==95$$stage==2";

QByteArray heatfileBody()
{
    QByteArray body = "heatfile==[metainfo];name=Zirkon Speed Sinter;manufacturer=DentaCeram;"
                      "material=Zirkon;favorite=true;";
    for (int i = 1; i <= 10; ++i)
        body += "[" + QByteArray::number(i) + "];rate=" + QByteArray::number(10 + i) +
                ";temp=" + QByteArray::number(1073 + 50 * i) + ";hold=" + QByteArray::number(60 * i) + ";";
    return body;
}

void handleFrame(benchmark::State &state, const QByteArray &body)
{
    MessageHandler handler(ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home")));
    QObject::connect(&handler, &MessageHandler::SignalHeatfileReceived, &handler,
                     [](ovra::GlobalElements::Program *p) { delete p; });
    const QString frame = QString::fromLatin1(Frame::Build(body));
    for (auto _ : state) {
        QByteArray answer = handler.HandleMessage(frame);
        benchmark::DoNotOptimize(answer);
    }
    state.counters["frame_bytes"] = frame.size();
    state.counters["frames_per_s"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_CommandFrame(benchmark::State &state)
{
    handleFrame(state, commandBody);
}
void BM_HeatfileFrame(benchmark::State &state)
{
    handleFrame(state, heatfileBody());
}

void BM_ChecksumOnly(benchmark::State &state)
{
    const QString frame = QString::fromLatin1(Frame::Build(heatfileBody()));
    for (auto _ : state)
        benchmark::DoNotOptimize(Frame::IsChecksumValid(frame));
}

} // namespace

BENCHMARK(BM_CommandFrame);
BENCHMARK(BM_HeatfileFrame);
BENCHMARK(BM_ChecksumOnly);
