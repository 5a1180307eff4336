#include "lablink/labpairing.h"

#include "lablink/lablinkconfig.h"

#include <QDateTime>
#include <QDebug>
#include <QFileInfo>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>
#include <QTimer>
#include <QUrl>

namespace ovra {
namespace LabLink {

LabViewConfig LabViewConfig::Load(const QString &home)
{
    LabViewConfig config;
    const QString file = LabLinkConfig::FileIn(home);
    if (!QFileInfo::exists(file))
        return config;
    const QSettings ini(file, QSettings::IniFormat);
    auto read = [&ini](const char *key, QString *value) {
        const QString text = ini.value(QLatin1String(key)).toString().trimmed();
        if (!text.isEmpty())
            *value = text;
    };
    read("view/program", &config.program);
    read("view/data", &config.data);
    read("view/address", &config.address);
    return config;
}

bool LabViewConfig::Available() const
{
    const QFileInfo file(program);
    return file.isFile() && file.isExecutable() && QFileInfo(data).isDir();
}

QString DefaultLabViewAddress()
{
    QString host = QStringLiteral("127.0.0.1");
    const QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
    for (const QHostAddress &address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback()) {
            host = address.toString();
            break;
        }
    }
    return QStringLiteral("http://%1:8080").arg(host);
}

QString PairingTokenName()
{
    return QStringLiteral("panel-%1-%2")
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss")))
        .arg(QRandomGenerator::global()->bounded(0x10000), 4, 16, QLatin1Char('0'));
}

QString TokenFromAnswer(const QByteArray &standardOutput)
{
    const QByteArray token = standardOutput.trimmed();
    if (token.isEmpty())
        return QString();
    for (const char c : token) {
        if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_'))
            return QString();
    }
    return QString::fromLatin1(token);
}

QString PairingAddress(const QString &viewAddress, const QString &token)
{
    QString base = viewAddress.trimmed();
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return base + QStringLiteral("/pair?token=") + QString::fromLatin1(QUrl::toPercentEncoding(token));
}

LabPairing::LabPairing(const LabViewConfig &config, QObject *parent)
    : QObject(parent), m_config(config), m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, [this] {
        // Killed, it is reaped when it says so: nothing here waits for it.
        QProcess *process = m_process;
        m_process = nullptr;
        process->disconnect(this);
        connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), process, &QObject::deleteLater);
        process->kill();
        Fail(Failure::TimedOut, QStringLiteral("no answer within %1 ms").arg(m_timeoutMs));
    });
}

LabPairing::~LabPairing() = default;

QStringList LabPairing::Arguments(const QString &tokenName) const
{
    return {QStringLiteral("--data"), m_config.data, QStringLiteral("--add-token"), tokenName};
}

void LabPairing::Start()
{
    if (IsBusy())
        return;
    const QStringList arguments = Arguments(PairingTokenName());
    qDebug() << "lab pairing:" << m_config.program << arguments.join(QLatin1Char(' '));
    m_process = new QProcess(this);
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this](int exitCode, QProcess::ExitStatus status) { Finish(exitCode, status == QProcess::CrashExit); });
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Fail(Failure::NotStarted, m_process->errorString());
    });
    m_timer->start(m_timeoutMs);
    m_process->start(m_config.program, arguments, QIODevice::ReadOnly);
}

void LabPairing::Finish(int exitCode, bool crashed)
{
    const QByteArray answer = m_process->readAllStandardOutput();
    const QString complaint = QString::fromLocal8Bit(m_process->readAllStandardError()).trimmed();
    if (crashed || exitCode != 0) {
        QString why = crashed ? QStringLiteral("crashed") : QStringLiteral("exit code %1").arg(exitCode);
        if (!complaint.isEmpty())
            why += QStringLiteral(": ") + complaint.section(QLatin1Char('\n'), 0, 0);
        Fail(Failure::Refused, why);
        return;
    }
    const QString token = TokenFromAnswer(answer);
    if (token.isEmpty()) {
        // Whatever it printed may hold a token: its size is enough to go on.
        Fail(Failure::NoToken, QStringLiteral("no single token in its answer of %1 bytes").arg(answer.size()));
        return;
    }
    m_timer->stop();
    m_process->deleteLater();
    m_process = nullptr;
    const QString view = m_config.address.isEmpty() ? DefaultLabViewAddress() : m_config.address;
    // The token pairs any browser: it stays out of the log.
    qDebug() << "lab pairing: a new token for" << view;
    const QString address = PairingAddress(view, token);
    emit Paired(address);
}

void LabPairing::Fail(Failure failure, const QString &why)
{
    m_timer->stop();
    if (m_process != nullptr) {
        m_process->disconnect(this);
        m_process->deleteLater();
        m_process = nullptr;
    }
    qDebug() << "lab pairing failed:" << m_config.program << why;
    emit Failed(failure);
}

} // namespace LabLink
} // namespace ovra
