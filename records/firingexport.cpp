#include "records/firingexport.h"

#include "records/firinghistory.h"
#include "records/firingstore.h"

#include <algorithm>
#include <limits>

#include <QDir>
#include <QFile>

namespace ovra {
namespace Records {

QString CsvField(const QString &text)
{
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\n')) &&
        !text.contains(QLatin1Char('\r')))
        return text;
    QString quoted = text;
    quoted.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

namespace {
bool writeFile(const QString &path, const QString &text, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text.toUtf8()) < 0) {
        *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

QString line(const QStringList &fields)
{
    QStringList out;
    for (const QString &f : fields)
        out << CsvField(f);
    return out.join(QLatin1Char(',')) + QStringLiteral("\r\n");
}
} // namespace

QString SamplesCsv(const QVector<Sample> &samples)
{
    QString text = line({QStringLiteral("seconds"), QStringLiteral("celsius")});
    for (const Sample &s : samples)
        text += QString::number(s.seconds) + QLatin1Char(',') + QString::number(s.celsius) + QStringLiteral("\r\n");
    return text;
}

bool ExportFirings(const QString &home, const QString &dir, QString *error, bool closeUnfinished,
                   const ReportWriter &report, const std::function<void(int done, int total)> &progress)
{
    if (dir.isEmpty() || !QDir().mkpath(dir)) {
        *error = QStringLiteral("cannot create %1").arg(dir);
        return false;
    }
    if (closeUnfinished)
        FiringStore(FiringStore::FileIn(home)).Flush();
    const FiringHistory history(FiringStore::FileIn(home));
    QList<FiringSummary> firings = history.List(std::numeric_limits<int>::max());
    std::reverse(firings.begin(), firings.end());
    QString csv =
        line({QStringLiteral("start"), QStringLiteral("end"), QStringLiteral("program"), QStringLiteral("material"),
              QStringLiteral("pre-dry"), QStringLiteral("result"), QStringLiteral("failures"), QStringLiteral("job")});
    int done = 0;
    for (const FiringSummary &firing : qAsConst(firings)) {
        if (progress)
            progress(done++, firings.size());
        FiringRecord record;
        if (!history.Load(firing.id, &record))
            continue;
        QStringList failed;
        for (const auto &failure : qAsConst(record.failures))
            failed << failure.first + QLatin1Char(' ') + failure.second;
        const auto when = [](const QString &date, const QString &time) {
            return (date + QLatin1Char(' ') + time).trimmed();
        };
        csv += line({when(firing.startDate, firing.startTime), when(firing.endDate, firing.endTime), firing.program,
                     record.material, QString::number(record.preDryMinutes), firing.result,
                     failed.join(QStringLiteral("; ")), firing.job});
        const QString samples = SamplesCsv(record.samples);
        const QString base = QStringLiteral("%1/firing-%2").arg(dir).arg(firing.id);
        if (!writeFile(base + QStringLiteral("-samples.csv"), samples, error))
            return false;
        if (report && !report(record, base + QStringLiteral(".pdf"), error))
            return false;
    }
    return writeFile(dir + QStringLiteral("/firings.csv"), csv, error);
}

} // namespace Records
} // namespace ovra
