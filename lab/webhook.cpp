#include "lab/webhook.h"

#include <QDebug>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace ovra {
namespace Lab {

Webhook::Webhook(const QUrl &url, QObject *parent) : QObject(parent), m_url(url) {}

void Webhook::Post(const QByteArray &json)
{
    if (m_queue.size() >= maxQueued) {
        m_queue.dequeue();
        if (m_dropped++ == 0)
            qWarning().noquote() << "lab: webhook: too many events waiting; dropping the oldest";
    }
    m_queue.enqueue(json);
    Next();
}

void Webhook::Next()
{
    if (m_busy || m_queue.isEmpty())
        return;
    QNetworkRequest request(m_url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/json"));
    request.setTransferTimeout(timeoutMs);
    m_busy = m_network.post(request, m_queue.dequeue());
    connect(m_busy, &QNetworkReply::finished, this, [this, reply = m_busy] { Done(reply); });
}

void Webhook::Done(QNetworkReply *reply)
{
    reply->deleteLater();
    m_busy = nullptr;
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool failed = reply->error() != QNetworkReply::NoError || status < 200 || status >= 300;
    if (failed && !m_failing)
        qWarning().noquote() << QStringLiteral(
                                    "lab: webhook %1 failed: %2 (status %3); further failures are not logged")
                                    .arg(m_url.toDisplayString(QUrl::RemoveUserInfo), reply->errorString())
                                    .arg(status);
    else if (!failed && m_failing)
        qInfo().noquote() << QStringLiteral("lab: webhook %1 answers again (%2 events dropped meanwhile)")
                                 .arg(m_url.toDisplayString(QUrl::RemoveUserInfo))
                                 .arg(m_dropped);
    if (!failed)
        m_dropped = 0;
    m_failing = failed;
    Next();
}

} // namespace Lab
} // namespace ovra
