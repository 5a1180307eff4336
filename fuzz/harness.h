#pragma once
// What every fuzz target shares: no log output (the panel logs every rejected input, and a
// run would spend its time writing those lines) and a frame handler that keeps the programs
// it hands out, as the program store does, until the input is done.
#include "app/paths.h"
#include "communication/messagehandler.h"
#include "programs/program.h"

#include <QList>

namespace fuzz {

inline QByteArray Handle(const QString &text)
{
    static QList<ovra::GlobalElements::Program *> received;
    static ovra::Communication::MessageHandler *handler = [] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        // "update==N" may switch to block reception: a home that does not exist keeps the
        // update file from being written anywhere.
        auto *h = new ovra::Communication::MessageHandler(
            ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home")));
        QObject::connect(h, &ovra::Communication::MessageHandler::SignalHeatfileReceived, h,
                         [](ovra::GlobalElements::Program *p) { received << p; });
        return h;
    }();
    const QByteArray answer = handler->HandleMessage(text);
    qDeleteAll(received);
    received.clear();
    return answer;
}

} // namespace fuzz
