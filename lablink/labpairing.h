#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QProcess;
class QTimer;

namespace ovra {
namespace LabLink {

// Where the lab view service lives on the board, as `[view]` in `<home>/lablink.ini` says;
// without the file or the keys, where the board's package puts it.
struct LabViewConfig
{
    QString program = QStringLiteral("/usr/bin/ovra-lab");
    QString data = QStringLiteral("/var/lib/ovra-lab");
    QString address; // "http://<first non-loopback IPv4>:8080" unless set

    static LabViewConfig Load(const QString &home);
    // The lab view is there: an executable program and its data folder.
    bool Available() const;
};

// "http://<the board's first non-loopback IPv4 address>:8080"; "http://127.0.0.1:8080" when
// the board has no network.
QString DefaultLabViewAddress();
// A token name no other pairing has used: "panel-<yyyyMMdd-hhmmss>-<4 hex digits>".
QString PairingTokenName();
// The token from ovra-lab's answer: exactly one word of URL-safe letters; empty otherwise.
QString TokenFromAnswer(const QByteArray &standardOutput);
// The address a browser opens to pair with `token`.
QString PairingAddress(const QString &viewAddress, const QString &token);

// Asks the lab view for a new pairing token without blocking the GUI thread and answers with
// the address to pair at, or why there is none. One pairing at a time.
class LabPairing : public QObject
{
    Q_OBJECT

public:
    enum class Failure { NotStarted, TimedOut, Refused, NoToken };
    Q_ENUM(Failure)

    explicit LabPairing(const LabViewConfig &config, QObject *parent = nullptr);
    ~LabPairing() override;

    const LabViewConfig &Config() const { return m_config; }
    bool IsBusy() const { return m_process != nullptr; }
    void SetTimeout(int milliseconds) { m_timeoutMs = milliseconds; }

    QStringList Arguments(const QString &tokenName) const;

    // Exactly one of Paired or Failed follows, unless a pairing is already running.
    void Start();

signals:
    void Paired(const QString &address);
    void Failed(ovra::LabLink::LabPairing::Failure failure);

private:
    void Finish(int exitCode, bool crashed);
    void Fail(Failure failure, const QString &why);

    LabViewConfig m_config;
    int m_timeoutMs = 5000;
    QProcess *m_process = nullptr;
    QTimer *m_timer;
};

} // namespace LabLink
} // namespace ovra
