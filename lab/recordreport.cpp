#include "lab/recordreport.h"

#include "records/firingexport.h"
#include "records/firingreport.h"
#include "settings/devicereport.h"

#include <QBuffer>
#include <QDateTime>
#include <QJsonArray>
#include <QMutex>
#include <QMutexLocker>

namespace ovra {
namespace Lab {
namespace RecordReport {

namespace {
void SplitTime(const QString &text, QString *date, QString *time)
{
    const QDateTime when = QDateTime::fromString(text, QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    if (!when.isValid()) {
        *date = text.left(64);
        time->clear();
        return;
    }
    *date = when.toString(QStringLiteral("dd.MM.yyyy"));
    *time = when.toString(QStringLiteral("HH:mm"));
}
} // namespace

Records::FiringRecord FromJson(const QJsonObject &json)
{
    Records::FiringRecord record;
    Records::FiringSummary &s = record.summary;
    s.program = json.value(QLatin1String("program")).toString();
    s.job = json.value(QLatin1String("job")).toString();
    s.result = json.value(QLatin1String("result")).toString();
    SplitTime(json.value(QLatin1String("start")).toString(), &s.startDate, &s.startTime);
    SplitTime(json.value(QLatin1String("end")).toString(), &s.endDate, &s.endTime);
    record.heatfileText = json.value(QLatin1String("heatfile")).toString();
    record.material = json.value(QLatin1String("material")).toString();
    record.preDryMinutes = json.value(QLatin1String("predry")).toInt();
    const QJsonObject device = json.value(QLatin1String("device")).toObject();
    Settings::DeviceReport::Data data;
    data.model = device.value(QLatin1String("type")).toString();
    data.serialNumber = device.value(QLatin1String("serial")).toString();
    data.hardwareVersion = device.value(QLatin1String("hardware")).toString();
    data.softwareVersion = device.value(QLatin1String("software")).toString();
    data.operatingHours = device.value(QLatin1String("hours")).toString();
    if (!device.isEmpty())
        record.device = Records::FiringReport::DeviceLines(data);
    for (const QJsonValue &v : json.value(QLatin1String("samples")).toArray()) {
        const QJsonArray pair = v.toArray();
        record.samples.append({static_cast<int>(pair.at(0).toDouble()), static_cast<float>(pair.at(1).toDouble())});
    }
    if (!record.samples.isEmpty())
        s.seconds = record.samples.constLast().seconds;
    for (const QJsonValue &v : json.value(QLatin1String("failures")).toArray()) {
        QString date, time;
        SplitTime(v.toObject().value(QLatin1String("time")).toString(), &date, &time);
        record.failures.append(
            {(date + QLatin1Char(' ') + time).trimmed(), v.toObject().value(QLatin1String("code")).toString()});
    }
    return record;
}

QByteArray Pdf(const QJsonObject &json, QString *error)
{
    static QMutex one;
    const Records::FiringRecord record = FromJson(json);
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QMutexLocker lock(&one);
    if (!Records::FiringReport::Write(record, {}, false, &buffer, error))
        return {};
    return pdf;
}

QByteArray Csv(const QJsonObject &json)
{
    return Records::SamplesCsv(FromJson(json).samples).toUtf8();
}

} // namespace RecordReport
} // namespace Lab
} // namespace ovra
