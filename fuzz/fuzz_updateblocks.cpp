// The frame handler in update mode: a fresh update of 1 to 16 blocks is announced, then every
// line of the input goes in as one block frame. A line that starts with 0x01 is the rest of
// the line wrapped as a well-formed block (its number from the first byte), so that blocks in
// order, out of order, repeated and damaged all meet the store and the resend logic; any
// other line is handed over raw. Block text, store and counters must stay consistent: the
// handler must never crash, hang or answer with anything but a frame or nothing.
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "communication/updateblock.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

using ovra::Communication::MessageHandler;

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

    const QByteArray rest(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    for (const QByteArray &line : rest.split('\n')) {
        QByteArray frame = line;
        if (line.size() >= 2 && line.front() == '\x01')
            frame = ovra::Communication::UpdateBlock::Encode(1 + quint8(line.at(1)) % 20, line.mid(2, 999));
        const QByteArray answer = handler.HandleMessage(QString::fromLatin1(frame));
        if (!answer.isEmpty() && (answer.front() != 0x02 || answer.back() != 0x03))
            __builtin_trap();
    }
    return 0;
}
