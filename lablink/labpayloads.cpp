#include "lablink/labpayloads.h"

#include "app/furnacestate.h"
#include "records/firinghistory.h"
#include "settings/languages.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTime>

#include <cmath>

namespace ovra {
namespace LabLink {

using GlobalElements::FurnaceState;

QString Topic(const QString &furnaceId, const char *what)
{
    return QStringLiteral("ovra/%1/%2").arg(furnaceId, QLatin1String(what));
}

QString ControllerTime(const QString &date, const QString &time)
{
    const QDate d = QDate::fromString(date.trimmed(), QStringLiteral("dd.MM.yyyy"));
    QTime t = QTime::fromString(time.trimmed(), QStringLiteral("hh:mm:ss"));
    if (!t.isValid())
        t = QTime::fromString(time.trimmed(), QStringLiteral("hh:mm"));
    if (!d.isValid() || !t.isValid())
        return QString();
    return d.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char('T') + t.toString(QStringLiteral("hh:mm:ss"));
}

QString ControllerTime(const QString &dateAndTime)
{
    const QString text = dateAndTime.trimmed();
    const int space = text.indexOf(QLatin1Char(' '));
    return space < 0 ? QString() : ControllerTime(text.left(space), text.mid(space + 1));
}

namespace {
QJsonValue timeValue(const QString &time)
{
    return time.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(time);
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

qint64 whole(double celsius)
{
    return std::isfinite(celsius) ? std::llround(celsius) : 0;
}
} // namespace

QString PageWord(GlobalElements::Pageinterface::en_pages page)
{
    using P = GlobalElements::Pageinterface;
    switch (page) {
    case P::StartUp: return QStringLiteral("startup");
    case P::DeviceData:
    case P::DeviceData2: return QStringLiteral("device");
    case P::Selftest: return QStringLiteral("selftest");
    case P::MainMenu:
    case P::OvenReady: return QStringLiteral("menu");
    case P::MyHitlist:
    case P::Progs:
    case P::Lists:
    case P::MyProgs:
    case P::FixProgs:
    case P::ServiceProgs:
    case P::DisplayOptions:
    case P::DisplayManufacturer:
    case P::DisplayMaterial: return QStringLiteral("programs");
    case P::Settings:
    case P::LangSelect:
    case P::UnitSelect:
    case P::DateTime: return QStringLiteral("settings");
    case P::Service:
    case P::ServicePIN:
    case P::FailureList: return QStringLiteral("service");
    case P::NewProg:
    case P::ChangeProg: return QStringLiteral("editor");
    case P::PlayProg: return QStringLiteral("program");
    case P::ProcessProg: return QStringLiteral("process");
    case P::USB: return QStringLiteral("usb");
    }
    return QStringLiteral("other");
}

QString LanguageCode(const QString &keyword)
{
    if (keyword.isEmpty())
        return QStringLiteral("de");
    for (const Settings::Language &language : Settings::Languages()) {
        if (language.acceptedKeyword == keyword || language.sentKeyword == keyword)
            return language.file.section(QLatin1Char('.'), 0, 0).mid(QStringLiteral("translation_").size());
    }
    return keyword;
}

QJsonObject DeviceObject(const GlobalElements::DeviceInfo &device)
{
    return QJsonObject{{QStringLiteral("type"), device.type.simplified()},
                       {QStringLiteral("serial"), device.serial.simplified()},
                       {QStringLiteral("hardware"), device.hardware.simplified()},
                       {QStringLiteral("software"), device.software.simplified()},
                       {QStringLiteral("hours"), device.hours.simplified()}};
}

QByteArray StatePayload(const FurnaceState &furnace)
{
    using Phase = GlobalElements::Firing::Phase;
    using Door = Communication::DoorState;
    const Door door = furnace.Door();
    QJsonArray failures;
    for (const GlobalElements::FailureEntry &failure : furnace.Failures())
        failures.append(failure.code);
    QJsonValue firing(QJsonValue::Null);
    if (furnace.IsFiring()) {
        const GlobalElements::Firing &f = furnace.CurrentFiring();
        firing = QJsonObject{
            {QStringLiteral("program"), f.program},
            {QStringLiteral("stage"), static_cast<qint64>(f.stage)},
            {QStringLiteral("phase"), f.phase == Phase::Hold     ? QStringLiteral("hold")
                                      : f.phase == Phase::PreDry ? QStringLiteral("pre")
                                                                 : QStringLiteral("heat")},
            {QStringLiteral("minutes_left"), f.minutesKnown ? QJsonValue(f.minutesLeft) : QJsonValue(QJsonValue::Null)},
            {QStringLiteral("end"), f.end},
            {QStringLiteral("started"), timeValue(ControllerTime(f.startDate, f.startTime))},
            {QStringLiteral("job"), f.job}};
    }
    const QJsonObject state{
        {QStringLiteral("time"), timeValue(ControllerTime(furnace.Date(), furnace.Time()))},
        {QStringLiteral("temperature"),
         furnace.CelsiusText().isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(whole(furnace.Celsius()))},
        {QStringLiteral("unit"), furnace.IsFahrenheit() ? QStringLiteral("f") : QStringLiteral("c")},
        {QStringLiteral("page"), PageWord(furnace.CurrentPage())},
        {QStringLiteral("door"), door == Door::Closed    ? QStringLiteral("closed")
                                 : door == Door::Unknown ? QStringLiteral("unknown")
                                                         : QStringLiteral("open")},
        {QStringLiteral("material"), furnace.Material()},
        {QStringLiteral("language"), LanguageCode(furnace.Language())},
        {QStringLiteral("device"), DeviceObject(furnace.Device())},
        {QStringLiteral("failures"), failures},
        {QStringLiteral("firing"), firing}};
    return compact(state);
}

QByteArray EventPayload(const QString &event, const FurnaceState &furnace, const QJsonObject &fields)
{
    QJsonObject object = fields;
    object.insert(QStringLiteral("event"), event);
    object.insert(QStringLiteral("time"), timeValue(ControllerTime(furnace.Date(), furnace.Time())));
    return compact(object);
}

QByteArray RecordPayload(const Records::FiringRecord &record, const QString &furnaceId)
{
    const Records::FiringSummary &s = record.summary;
    const QStringList lines = record.device.split(QLatin1Char('\n'));
    GlobalElements::DeviceInfo device;
    if (lines.size() >= 5)
        device = {lines.at(0), lines.at(1), lines.at(2), lines.at(3), lines.at(4)};
    QJsonArray failures;
    for (const auto &failure : record.failures)
        failures.append(QJsonObject{{QStringLiteral("time"), timeValue(ControllerTime(failure.first))},
                                    {QStringLiteral("code"), failure.second}});
    QJsonArray samples;
    for (const Records::Sample &sample : record.samples)
        samples.append(QJsonArray{sample.seconds, whole(sample.celsius)});
    const QJsonObject object{{QStringLiteral("id"), record.uid},
                             {QStringLiteral("furnace"), furnaceId},
                             {QStringLiteral("program"), s.program},
                             {QStringLiteral("material"), record.material},
                             {QStringLiteral("job"), s.job},
                             {QStringLiteral("heatfile"), record.heatfileText},
                             {QStringLiteral("device"), DeviceObject(device)},
                             {QStringLiteral("predry"), record.preDryMinutes},
                             {QStringLiteral("start"), timeValue(ControllerTime(s.startDate, s.startTime))},
                             {QStringLiteral("end"), timeValue(ControllerTime(s.endDate, s.endTime))},
                             {QStringLiteral("result"), s.result.isEmpty() ? QStringLiteral("interrupted") : s.result},
                             {QStringLiteral("failures"), failures},
                             {QStringLiteral("samples"), samples}};
    return compact(object);
}

QList<QPair<QString, QByteArray>> DiscoveryMessages(const QString &furnaceId, const GlobalElements::DeviceInfo &device)
{
    struct Sensor
    {
        const char *what;
        const char *name;
        const char *templ;
        const char *unit;
    };
    static const Sensor sensors[] = {
        {"temperature", "Temperature", "{{ value_json.temperature }}", "°C"},
        {"program", "Program", "{{ value_json.firing.program if value_json.firing else '' }}", nullptr},
        {"minutes_left", "Minutes left", "{{ value_json.firing.minutes_left if value_json.firing else '' }}", "min"},
        {"failures", "Failures", "{{ value_json.failures | join(',') }}", nullptr},
    };
    const QString online = Topic(furnaceId, "online");
    const QJsonObject dev{{QStringLiteral("identifiers"), QJsonArray{QStringLiteral("ovra_") + furnaceId}},
                          {QStringLiteral("name"), QStringLiteral("Ovra ") + furnaceId},
                          {QStringLiteral("model"), device.type.simplified()},
                          {QStringLiteral("sw_version"), device.software.simplified()}};
    QList<QPair<QString, QByteArray>> out;
    for (const Sensor &sensor : sensors) {
        const QString uniqueId = QStringLiteral("ovra_%1_%2").arg(furnaceId, QLatin1String(sensor.what));
        QJsonObject config{{QStringLiteral("name"), QLatin1String(sensor.name)},
                           {QStringLiteral("unique_id"), uniqueId},
                           {QStringLiteral("state_topic"), Topic(furnaceId, "state")},
                           {QStringLiteral("value_template"), QLatin1String(sensor.templ)},
                           {QStringLiteral("availability_topic"), online},
                           {QStringLiteral("payload_available"), QStringLiteral("true")},
                           {QStringLiteral("payload_not_available"), QStringLiteral("false")},
                           {QStringLiteral("device"), dev}};
        if (sensor.unit != nullptr)
            config.insert(QStringLiteral("unit_of_measurement"), QString::fromUtf8(sensor.unit));
        if (qstrcmp(sensor.what, "temperature") == 0)
            config.insert(QStringLiteral("device_class"), QStringLiteral("temperature"));
        out.append({QStringLiteral("homeassistant/sensor/%1/config").arg(uniqueId), compact(config)});
    }
    return out;
}

} // namespace LabLink
} // namespace ovra
