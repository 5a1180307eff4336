// Update reception: the panel's cost per block against that block's time on the line at
// 115200 baud and against a plain write of the block's bytes measured in the same run, and
// the resident memory over a 10 MB update.
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "communication/updateblock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <unistd.h>

using ovra::Communication::MessageHandler;
namespace Frame = ovra::Communication::Frame;
namespace UpdateBlock = ovra::Communication::UpdateBlock;

namespace {

void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}

constexpr double lineBytesPerSecond = 115200.0 / 10.0; // start, eight data, stop bits

QByteArray blockData(int number, int size)
{
    QByteArray data(size, Qt::Uninitialized);
    quint32 seed = quint32(number) * 2654435761u + 1u;
    for (int i = 0; i < size; ++i) {
        seed = seed * 1664525u + 1013904223u;
        data[i] = char(seed >> 24);
    }
    return data;
}

QString frameOf(const QByteArray &blockText)
{
    return QLatin1Char('\x02') + QString::fromLatin1(blockText) + QLatin1Char('\x03');
}

double residentMegabytes()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    return statm.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

struct Update
{
    Update() : handler(ovra::GlobalElements::Paths(home.path()))
    {
        qInstallMessageHandler(quiet);
        QDir(home.path()).mkpath(QStringLiteral("Downloads"));
        handler.SetUnpackDelayMs(24 * 3600 * 1000);
    }
    QTemporaryDir home;
    MessageHandler handler;
};

// One block after another, in order: decode, digest, write, progress.
void BM_UpdateBlock(benchmark::State &state)
{
    const int dataBytes = int(state.range(0));
    const int blocks = int(state.max_iterations);
    QList<QString> frames;
    frames.reserve(blocks);
    for (int n = 0; n < blocks; ++n)
        frames.append(frameOf(UpdateBlock::Encode(n, blockData(n, dataBytes))));

    Update update;
    update.handler.HandleMessage(QString::fromLatin1(Frame::Build("update==" + QByteArray::number(blocks))));
    int next = 0;
    const auto start = std::chrono::steady_clock::now();
    for (auto _ : state)
        benchmark::DoNotOptimize(update.handler.HandleMessage(frames.at(next++)));
    const double perBlock = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / next;

    // Baseline in the same run: the block's bytes written to a file the same way, nothing else.
    QFile raw(update.home.filePath(QStringLiteral("raw")));
    raw.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const QByteArray data = blockData(0, dataBytes);
    const auto rawStart = std::chrono::steady_clock::now();
    for (int i = 0; i < next; ++i)
        raw.write(data);
    const double rawPerBlock =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - rawStart).count() / next;

    const double wire = double(frames.first().size()) / lineBytesPerSecond;
    state.counters["frame_bytes"] = frames.first().size();
    state.counters["wire_ms"] = wire * 1000.0;
    state.counters["cost_us"] = perBlock * 1e6;
    state.counters["pct_of_wire"] = perBlock / wire * 100.0;
    state.counters["x_raw_write"] = perBlock / rawPerBlock;
}

// 10 MB in 960-byte blocks, every tenth pair swapped so that blocks wait and are asked for.
void BM_TenMegabyteUpdate(benchmark::State &state)
{
    const int dataBytes = 960;
    const int blocks = 10 * 1024 * 1024 / dataBytes;
    for (auto _ : state) {
        Update update;
        update.handler.HandleMessage(QString::fromLatin1(Frame::Build("update==" + QByteArray::number(blocks))));
        const double before = residentMegabytes();
        double middle = 0;
        double highest = before;
        for (int n = 0; n < blocks; ++n) {
            int number = n;
            if (n % 10 == 0 && n + 1 < blocks)
                number = n + 1;
            else if (n % 10 == 1)
                number = n - 1;
            update.handler.HandleMessage(frameOf(UpdateBlock::Encode(number, blockData(number, dataBytes))));
            if (n % 256 == 0)
                highest = std::max(highest, residentMegabytes());
            if (n == blocks / 2)
                middle = residentMegabytes();
        }
        state.counters["rss_start_mb"] = before;
        state.counters["rss_mid_mb"] = middle;
        state.counters["rss_end_mb"] = residentMegabytes();
        state.counters["rss_max_mb"] = highest;
        state.counters["finished"] = update.handler.IsUpdateActive() ? 0 : 1;
        state.counters["file_mb"] =
            double(QFileInfo(update.home.filePath(QStringLiteral("Downloads/outfile.txt"))).size()) / (1024.0 * 1024.0);
    }
}

} // namespace

BENCHMARK(BM_UpdateBlock)->Arg(120)->Arg(512)->Arg(960)->Iterations(20000)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_TenMegabyteUpdate)->Iterations(1)->Unit(benchmark::kMillisecond);
