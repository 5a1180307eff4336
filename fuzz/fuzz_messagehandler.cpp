// Any bytes the line can carry, handed to the frame handler as the transport would.
#include "communication/messagehandler.h"

#include <QString>

#include <cstddef>
#include <cstdint>

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static bool once = [] { qInstallMessageHandler(quiet); return true; }();
    (void)once;
    // "update==N" may switch to block reception: a home that does not exist keeps the
    // update file from being written anywhere.
    static ovra::Communication::MessageHandler handler(
        ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home")));
    static const bool store = [] {
        QObject::connect(&handler, &ovra::Communication::MessageHandler::SignalHeatfileReceived,
                         &handler, [](ovra::GlobalElements::Program *p) { delete p; });
        return true;
    }();
    (void)store;

    const QString text = QString::fromLatin1(reinterpret_cast<const char *>(data), int(size));
    const QByteArray answer = handler.HandleMessage(text);
    // An answer is always a whole frame or nothing.
    if (!answer.isEmpty() && (answer.front() != 0x02 || answer.back() != 0x03))
        __builtin_trap();
    return 0;
}
