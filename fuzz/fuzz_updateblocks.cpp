// The frame handler in update mode: a fresh update of 1 to 16 blocks is announced, then every
// line of the input goes in as one block frame. A line that starts with 0x01 stands for a
// well-formed block: its number is the next byte (0 to 19, so numbers past the total come
// too), its data a fixed function of the number, and bit 0 of the byte after damages it; any
// other line is handed over raw. So blocks in order, out of order, repeated, damaged and
// beyond the total all meet the reception. The handler must never crash, hang or answer with
// anything but a frame or nothing, and when it ends the update ("endupdate") the file must
// hold blocks 0 to total - 1 in order: a file in any other order would go to the unpacking
// script.
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "communication/updateblock.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

using ovra::Communication::MessageHandler;
namespace UpdateBlock = ovra::Communication::UpdateBlock;

namespace {
QByteArray Payload(int number)
{
    return QByteArray("block ") + QByteArray::number(number) + QByteArray(number % 7, char('a' + number));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir *home = [] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        auto *dir = new QTemporaryDir;
        QDir(dir->path()).mkpath(QStringLiteral("Downloads"));
        return dir;
    }();
    if (size == 0)
        return 0;
    MessageHandler handler{ovra::GlobalElements::Paths(home->path())};
    const int blocks = 1 + data[0] % 16;
    handler.HandleMessage(
        QString::fromLatin1(ovra::Communication::Frame::Build("update==" + QByteArray::number(blocks))));

    // A raw line that is an intact block with other data makes the expected file unknown.
    bool foreignData = false;
    const QByteArray rest(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    for (const QByteArray &line : rest.split('\n')) {
        QByteArray frame = line;
        if (line.size() >= 2 && line.front() == '\x01') {
            const int number = quint8(line.at(1)) % 20;
            frame = UpdateBlock::Encode(number, Payload(number));
            if (line.size() >= 3 && (line.at(2) & 1))
                frame[9] = frame.at(9) == 'A' ? 'B' : 'A';
        } else {
            QByteArray decoded;
            int number = 0;
            if (UpdateBlock::Decode(QString::fromLatin1(line), decoded, number) && decoded != Payload(number))
                foreignData = true;
        }
        const QByteArray answer = handler.HandleMessage(QString::fromLatin1(frame));
        if (!answer.isEmpty() && (answer.front() != 0x02 || answer.back() != 0x03))
            __builtin_trap();
        if (answer.contains("endupdate") && !foreignData) {
            QByteArray expected;
            for (int n = 0; n < blocks; ++n)
                expected += Payload(n);
            QFile file(home->path() + QStringLiteral("/Downloads/outfile.txt"));
            if (!file.open(QIODevice::ReadOnly) || file.readAll() != expected)
                __builtin_trap();
        }
    }
    return 0;
}
