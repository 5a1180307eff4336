#include "mosquittobroker.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTcpServer>

#include <signal.h>
#include <unistd.h>

namespace {
int freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    return server.serverPort();
}
} // namespace

MosquittoBroker::MosquittoBroker(const QString &dir) : m_dir(dir), m_port(freePort())
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
}

MosquittoBroker::~MosquittoBroker()
{
    Stop();
}

bool MosquittoBroker::Start(const QStringList &extra)
{
    QDir().mkpath(m_dir + QStringLiteral("/data"));
    QFile conf(m_dir + QStringLiteral("/mosquitto.conf"));
    if (!conf.open(QIODevice::WriteOnly))
        return false;
    QStringList lines{QStringLiteral("listener %1 127.0.0.1").arg(m_port), QStringLiteral("persistence true"),
                      QStringLiteral("persistence_location %1/data/").arg(m_dir)};
    // As root it would switch to the user "mosquitto", who cannot write the temporary folder.
    if (::geteuid() == 0)
        lines << QStringLiteral("user root");
    if (!extra.join(QLatin1Char('\n')).contains(QLatin1String("password_file")))
        lines << QStringLiteral("allow_anonymous true");
    conf.write((lines + extra).join(QLatin1Char('\n')).toUtf8() + '\n');
    conf.close();
    m_process.start(QStringLiteral("mosquitto"), {QStringLiteral("-c"), conf.fileName()});
    if (!m_process.waitForStarted(5000))
        return false;
    // It says so once its listener is open: "mosquitto version 2.0.11 running".
    QElapsedTimer timer;
    timer.start();
    QByteArray said;
    while (timer.elapsed() < 10000 && m_process.state() == QProcess::Running && !said.contains(" running")) {
        m_process.waitForReadyRead(200);
        said += m_process.readAll();
    }
    m_log += said;
    return said.contains(" running");
}

void MosquittoBroker::Stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    ::kill(static_cast<pid_t>(m_process.processId()), SIGTERM);
    if (!m_process.waitForFinished(5000))
        m_process.kill();
    m_process.waitForFinished(1000);
    m_log += m_process.readAll();
}

MqttSubscriber::MqttSubscriber(int port, const QString &topic, const QString &session, const QStringList &extra)
{
    QStringList args{QStringLiteral("-h"),  QStringLiteral("127.0.0.1"), QStringLiteral("-p"),
                     QString::number(port), QStringLiteral("-v"),        QStringLiteral("-q"),
                     QStringLiteral("1"),   QStringLiteral("-t"),        topic};
    if (!session.isEmpty())
        args << QStringLiteral("-c") << QStringLiteral("-i") << session;
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] {
        m_pending += m_process.readAllStandardOutput();
        int end;
        while ((end = m_pending.indexOf('\n')) >= 0) {
            m_lines << QString::fromUtf8(m_pending.left(end));
            m_pending.remove(0, end + 1);
        }
    });
    m_process.start(QStringLiteral("mosquitto_sub"), args + extra);
    m_process.waitForStarted(5000);
}

MqttSubscriber::~MqttSubscriber()
{
    m_process.terminate();
    if (!m_process.waitForFinished(3000))
        m_process.kill();
}

QStringList MqttSubscriber::Lines(const QRegularExpression &pattern)
{
    return m_lines.filter(pattern);
}

QStringList MqttSubscriber::Payloads(const QString &topic)
{
    QStringList out;
    const QString head = topic + QLatin1Char(' ');
    for (const QString &line : qAsConst(m_lines)) {
        if (line.startsWith(head))
            out << line.mid(head.size());
    }
    return out;
}
