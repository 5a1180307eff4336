#include "lab/payloads.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>

namespace ovra {
namespace Lab {
namespace Payloads {

namespace {
constexpr int maxText = 1024;
constexpr int maxProgramText = 256 * 1024;

enum class Type { Text, LongText, Number, Integer, Object, Array };

bool Fits(const QJsonValue &value, Type type)
{
    switch (type) {
    case Type::Text: return value.isString() && value.toString().size() <= maxText;
    case Type::LongText: return value.isString() && value.toString().size() <= maxProgramText;
    case Type::Number: return value.isDouble();
    case Type::Integer:
        return value.isDouble() && std::fabs(value.toDouble()) < 1e15 &&
               std::floor(value.toDouble()) == value.toDouble();
    case Type::Object: return value.isObject();
    case Type::Array: return value.isArray();
    }
    return false;
}

// Copies `key` when present and of the right type; a wrong one is left out and reported.
void Copy(const QJsonObject &in, QJsonObject *out, const QString &key, Type type, const QString &what,
          QStringList *problems)
{
    const auto it = in.constFind(key);
    if (it == in.constEnd())
        return;
    if (Fits(it.value(), type))
        out->insert(key, it.value());
    else
        problems->append(what + QStringLiteral(": a field of the wrong type"));
}

void CopyWord(const QJsonObject &in, QJsonObject *out, const QString &key, const QStringList &words,
              const QString &what, QStringList *problems)
{
    const auto it = in.constFind(key);
    if (it == in.constEnd())
        return;
    if (it.value().isString() && words.contains(it.value().toString()))
        out->insert(key, it.value());
    else
        problems->append(what + QStringLiteral(": a word not in the vocabulary"));
}

std::optional<QJsonObject> ParseObject(const QByteArray &payload, const QString &what, QStringList *problems)
{
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(payload, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) {
        problems->append(what + QStringLiteral(": not a JSON object"));
        return std::nullopt;
    }
    return doc.object();
}

QJsonObject Device(const QJsonObject &in, const QString &what, QStringList *problems)
{
    QJsonObject out;
    for (const char *key : {"type", "serial", "hardware", "software", "hours"})
        Copy(in, &out, QLatin1String(key), Type::Text, what, problems);
    return out;
}

QJsonArray Texts(const QJsonArray &in, const QString &what, QStringList *problems)
{
    QJsonArray out;
    for (const QJsonValue &v : in) {
        if (Fits(v, Type::Text))
            out.append(v);
        else
            problems->append(what + QStringLiteral(": a field of the wrong type"));
    }
    return out;
}

const QStringList results = {QStringLiteral("success"), QStringLiteral("failed"), QStringLiteral("stopped"),
                             QStringLiteral("interrupted")};
} // namespace

bool ValidId(const QString &id)
{
    static const QRegularExpression pattern(QStringLiteral("\\A[A-Za-z0-9_-]{1,64}\\z"));
    return pattern.match(id).hasMatch();
}

QString Printable(const QByteArray &text)
{
    QString out;
    for (const char c : text.left(80)) {
        const auto u = static_cast<unsigned char>(c);
        if (u >= 0x20 && u < 0x7F && c != '%' && c != '<' && c != '>' && c != '"' && c != '\'' && c != '&')
            out += QLatin1Char(c);
        else
            out += QStringLiteral("%%1").arg(u, 2, 16, QLatin1Char('0'));
    }
    return text.size() > 80 ? out + QStringLiteral("...") : out;
}

std::optional<Topic> ParseTopic(const QString &topic, QStringList *problems)
{
    const QStringList parts = topic.split(QLatin1Char('/'));
    if (parts.size() != 3 || parts.at(0) != QLatin1String("ovra")) {
        problems->append(QStringLiteral("topic: not ovra/<id>/<kind>"));
        return std::nullopt;
    }
    if (!ValidId(parts.at(1))) {
        problems->append(QStringLiteral("topic: a furnace id not allowed"));
        return std::nullopt;
    }
    return Topic{parts.at(1), parts.at(2)};
}

std::optional<bool> Online(const QByteArray &payload, QStringList *problems)
{
    if (payload == "true")
        return true;
    if (payload == "false")
        return false;
    problems->append(QStringLiteral("online: neither true nor false"));
    return std::nullopt;
}

std::optional<QJsonObject> State(const QByteArray &payload, QStringList *problems)
{
    const QString what = QStringLiteral("state");
    const auto in = ParseObject(payload, what, problems);
    if (!in)
        return std::nullopt;
    QJsonObject out;
    for (const char *key : {"time", "page", "material", "language"})
        Copy(*in, &out, QLatin1String(key), Type::Text, what, problems);
    Copy(*in, &out, QStringLiteral("temperature"), Type::Number, what, problems);
    CopyWord(*in, &out, QStringLiteral("unit"), {QStringLiteral("c"), QStringLiteral("f")}, what, problems);
    CopyWord(*in, &out, QStringLiteral("door"),
             {QStringLiteral("open"), QStringLiteral("closed"), QStringLiteral("unknown")}, what, problems);
    const QJsonValue device = in->value(QLatin1String("device"));
    if (device.isObject())
        out.insert(QStringLiteral("device"), Device(device.toObject(), what, problems));
    else if (!device.isUndefined())
        problems->append(what + QStringLiteral(": a field of the wrong type"));
    const QJsonValue failures = in->value(QLatin1String("failures"));
    if (failures.isArray())
        out.insert(QStringLiteral("failures"), Texts(failures.toArray(), what, problems));
    else if (!failures.isUndefined())
        problems->append(what + QStringLiteral(": a field of the wrong type"));

    const QJsonValue firing = in->value(QLatin1String("firing"));
    if (firing.isNull()) {
        out.insert(QStringLiteral("firing"), QJsonValue::Null);
    } else if (firing.isObject()) {
        const QJsonObject f = firing.toObject();
        QJsonObject clean;
        for (const char *key : {"program", "end", "started", "job"})
            Copy(f, &clean, QLatin1String(key), Type::Text, what, problems);
        Copy(f, &clean, QStringLiteral("stage"), Type::Integer, what, problems);
        CopyWord(f, &clean, QStringLiteral("phase"),
                 {QStringLiteral("heat"), QStringLiteral("hold"), QStringLiteral("pre")}, what, problems);
        const QJsonValue left = f.value(QLatin1String("minutes_left"));
        if (left.isNull())
            clean.insert(QStringLiteral("minutes_left"), QJsonValue::Null);
        else
            Copy(f, &clean, QStringLiteral("minutes_left"), Type::Number, what, problems);
        out.insert(QStringLiteral("firing"), clean);
    } else if (!firing.isUndefined()) {
        problems->append(what + QStringLiteral(": a field of the wrong type"));
    }
    return out;
}

std::optional<QJsonObject> Event(const QByteArray &payload, const QString &furnace, QStringList *problems)
{
    const QString what = QStringLiteral("event");
    const auto in = ParseObject(payload, what, problems);
    if (!in)
        return std::nullopt;
    static const QStringList kinds = {QStringLiteral("firing_started"), QStringLiteral("firing_ended"),
                                      QStringLiteral("failure"), QStringLiteral("failure_withdrawn"),
                                      QStringLiteral("door_warning")};
    const QJsonValue kind = in->value(QLatin1String("event"));
    if (!kind.isString() || !kinds.contains(kind.toString())) {
        problems->append(what + QStringLiteral(": not one of the known events"));
        return std::nullopt;
    }
    QJsonObject out{{QStringLiteral("event"), kind}};
    for (const char *key : {"time", "program", "job", "code"})
        Copy(*in, &out, QLatin1String(key), Type::Text, what, problems);
    CopyWord(*in, &out, QStringLiteral("result"), results, what, problems);
    Copy(*in, &out, QStringLiteral("temperature"), Type::Number, what, problems);
    out.insert(QStringLiteral("furnace"), furnace);
    return out;
}

std::optional<QJsonObject> Record(const QByteArray &payload, const QString &furnace, QStringList *problems)
{
    const QString what = QStringLiteral("record");
    const auto in = ParseObject(payload, what, problems);
    if (!in)
        return std::nullopt;
    const QJsonValue id = in->value(QLatin1String("id"));
    if (!id.isString() || !ValidId(id.toString())) {
        problems->append(what + QStringLiteral(": an id not allowed"));
        return std::nullopt;
    }
    QJsonObject out{{QStringLiteral("id"), id}, {QStringLiteral("furnace"), furnace}};
    for (const char *key : {"program", "material", "job", "start", "end"})
        Copy(*in, &out, QLatin1String(key), Type::Text, what, problems);
    Copy(*in, &out, QStringLiteral("heatfile"), Type::LongText, what, problems);
    Copy(*in, &out, QStringLiteral("predry"), Type::Integer, what, problems);
    CopyWord(*in, &out, QStringLiteral("result"), results, what, problems);
    const QJsonValue device = in->value(QLatin1String("device"));
    if (device.isObject())
        out.insert(QStringLiteral("device"), Device(device.toObject(), what, problems));
    else if (!device.isUndefined())
        problems->append(what + QStringLiteral(": a field of the wrong type"));

    QJsonArray failures;
    for (const QJsonValue &v : in->value(QLatin1String("failures")).toArray()) {
        const QJsonObject f = v.toObject();
        if (Fits(f.value(QLatin1String("time")), Type::Text) && Fits(f.value(QLatin1String("code")), Type::Text))
            failures.append(QJsonObject{{QStringLiteral("time"), f.value(QLatin1String("time"))},
                                        {QStringLiteral("code"), f.value(QLatin1String("code"))}});
        else
            problems->append(what + QStringLiteral(": a failure that is not {time, code}"));
    }
    out.insert(QStringLiteral("failures"), failures);

    QJsonArray samples;
    for (const QJsonValue &v : in->value(QLatin1String("samples")).toArray()) {
        const QJsonArray pair = v.toArray();
        if (pair.size() == 2 && Fits(pair.at(0), Type::Number) && Fits(pair.at(1), Type::Number))
            samples.append(pair);
        else
            problems->append(what + QStringLiteral(": a sample that is not [seconds, °C]"));
    }
    if (samples.isEmpty())
        problems->append(what + QStringLiteral(": no samples"));
    out.insert(QStringLiteral("samples"), samples);
    return out;
}

QJsonObject ListItem(const QJsonObject &record)
{
    QJsonObject item;
    for (const char *key : {"id", "furnace", "program", "job", "result", "start", "end"})
        item.insert(QLatin1String(key), record.value(QLatin1String(key)).toString());
    return item;
}

} // namespace Payloads
} // namespace Lab
} // namespace ovra
