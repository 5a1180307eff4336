#include "simulatorprocess.h"

#include <QElapsedTimer>

Simulator::Simulator(const QStringList &arguments)
{
    // Read as it comes, also while a test waits in the event loop: a full pipe stalls the simulator.
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] { Collect(); });
    m_process.start(QStringLiteral(OVRA_HX3SIM_BINARY),
                    QStringLiteral("--interval 200 --step-ms 60").split(QLatin1Char(' ')) + arguments);
}

Simulator::~Simulator()
{
    m_process.write("quit\n");
    if (!m_process.waitForFinished(3000))
        m_process.kill();
}

QString Simulator::SlavePath()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 5000) {
        Collect();
        for (const QString &line : qAsConst(m_lines)) {
            if (line.startsWith(QLatin1String("slave: ")))
                return line.mid(7);
        }
        m_process.waitForReadyRead(100);
    }
    return QString();
}

bool Simulator::Printed(const QString &line)
{
    Collect();
    return m_lines.contains(line);
}

QStringList Simulator::Lines(const QRegularExpression &pattern)
{
    Collect();
    return m_lines.filter(pattern);
}

bool Simulator::AnsweredFrameWith(const QString &part)
{
    Collect();
    bool sent = false;
    for (const QString &line : qAsConst(m_lines)) {
        if (line.startsWith(QLatin1String("tx: ")) && line.contains(part))
            sent = true;
        else if (sent && line.startsWith(QLatin1String("rx: ")))
            return true;
    }
    return false;
}

void Simulator::Command(const QByteArray &line)
{
    m_process.write(line + '\n');
}

void Simulator::Collect()
{
    while (m_process.canReadLine())
        m_lines << QString::fromUtf8(m_process.readLine()).trimmed();
}
