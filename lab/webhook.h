#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QQueue>
#include <QUrl>

class QNetworkReply;

namespace ovra {
namespace Lab {

// POSTs each event as JSON to one URL, one at a time. The queue is bounded (the oldest are
// dropped when the receiver is slow or away); a failing receiver is logged when it starts and
// stops failing, never once per event; nothing here blocks the caller.
class Webhook : public QObject
{
    Q_OBJECT

public:
    static constexpr int maxQueued = 256;
    static constexpr int timeoutMs = 5000;

    explicit Webhook(const QUrl &url, QObject *parent = nullptr);

    void Post(const QByteArray &json);

private:
    void Next();
    void Done(QNetworkReply *reply);

    QUrl m_url;
    QNetworkAccessManager m_network;
    QQueue<QByteArray> m_queue;
    QNetworkReply *m_busy = nullptr;
    bool m_failing = false;
    int m_dropped = 0;
};

} // namespace Lab
} // namespace ovra
