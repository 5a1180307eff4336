#include "records/firingexport.h"

#include "records/firingstore.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTextStream>
#include <QVariant>

namespace ovra {
namespace Records {

QString CsvField(const QString &text)
{
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\n'))
        && !text.contains(QLatin1Char('\r')))
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

bool ExportFirings(const QString &home, const QString &dir, QString *error, bool closeUnfinished)
{
    if (dir.isEmpty() || !QDir().mkpath(dir)) {
        *error = QStringLiteral("cannot create %1").arg(dir);
        return false;
    }
    if (closeUnfinished)
        FiringStore(FiringStore::FileIn(home)).Flush();
    const QString connection = QStringLiteral("ovra-records-export");
    bool ok = true;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(FiringStore::FileIn(home));
        db.open();
        QString csv = line({QStringLiteral("start"), QStringLiteral("end"), QStringLiteral("program"),
                            QStringLiteral("material"), QStringLiteral("pre-dry"), QStringLiteral("result"),
                            QStringLiteral("failures")});
        QSqlQuery firings(QStringLiteral("SELECT id, start_date || ' ' || start_time, end_date || ' ' || end_time,"
                                         " program, material, predry, result FROM firings ORDER BY id"),
                          db);
        while (ok && firings.next()) {
            const qint64 id = firings.value(0).toLongLong();
            QSqlQuery failures(db);
            failures.prepare(QStringLiteral("SELECT time, text FROM failures WHERE firing = ? ORDER BY rowid"));
            failures.addBindValue(id);
            failures.exec();
            QStringList failed;
            while (failures.next())
                failed << failures.value(0).toString() + QLatin1Char(' ') + failures.value(1).toString();
            csv += line({firings.value(1).toString().trimmed(), firings.value(2).toString().trimmed(),
                         firings.value(3).toString(), firings.value(4).toString(), firings.value(5).toString(),
                         firings.value(6).toString(), failed.join(QStringLiteral("; "))});
            QString samples = line({QStringLiteral("seconds"), QStringLiteral("celsius")});
            QSqlQuery rows(db);
            rows.prepare(QStringLiteral("SELECT seconds, celsius FROM samples WHERE firing = ? ORDER BY n"));
            rows.addBindValue(id);
            rows.exec();
            while (rows.next())
                samples += rows.value(0).toString() + QLatin1Char(',') + rows.value(1).toString()
                           + QStringLiteral("\r\n");
            ok = writeFile(QStringLiteral("%1/firing-%2-samples.csv").arg(dir).arg(id), samples, error);
        }
        ok = ok && writeFile(dir + QStringLiteral("/firings.csv"), csv, error);
    }
    QSqlDatabase::removeDatabase(connection);
    return ok;
}

} // namespace Records
} // namespace ovra
