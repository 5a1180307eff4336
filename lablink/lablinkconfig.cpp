#include "lablink/lablinkconfig.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace ovra {
namespace LabLink {

QString LabLinkConfig::FileIn(const QString &home)
{
    return home + QStringLiteral("/lablink.ini");
}

namespace {
// A missing key gives `fallback`; anything but a whole number in [low, high] is an error.
bool readNumber(const QSettings &ini, const QString &key, int fallback, int low, int high, int *out, QString *error)
{
    const QString text = ini.value(key).toString().trimmed();
    if (!ini.contains(key) || text.isEmpty()) {
        *out = fallback;
        return true;
    }
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok || value < low || value > high) {
        *error = QStringLiteral("%1 is not a number from %2 to %3: \"%4\"").arg(key).arg(low).arg(high).arg(text);
        return false;
    }
    *out = value;
    return true;
}
} // namespace

bool LabLinkConfig::Load(const QString &home, LabLinkConfig *config, QString *error)
{
    error->clear();
    const QString file = FileIn(home);
    if (!QFile::exists(file))
        return false;
    QSettings ini(file, QSettings::IniFormat);
    if (ini.status() != QSettings::NoError) {
        *error = QStringLiteral("%1 cannot be read").arg(file);
        return false;
    }
    LabLinkConfig c;
    c.host = ini.value(QStringLiteral("broker/host")).toString().trimmed();
    c.username = ini.value(QStringLiteral("broker/username")).toString();
    c.password = ini.value(QStringLiteral("broker/password")).toString();
    c.cafile = ini.value(QStringLiteral("broker/cafile")).toString().trimmed();
    const QString id = ini.value(QStringLiteral("furnace/id")).toString().trimmed();
    c.furnaceId = FurnaceIdFrom(id);
    if (c.host.isEmpty()) {
        *error = QStringLiteral("%1: [broker] host is missing").arg(file);
        return false;
    }
    if (!c.cafile.isEmpty() && !QFileInfo(c.cafile).isReadable()) {
        *error = QStringLiteral("%1: [broker] cafile %2 cannot be read").arg(file, c.cafile);
        return false;
    }
    if (!id.isEmpty() && c.furnaceId != id) {
        *error =
            QStringLiteral("%1: [furnace] id may hold only letters, digits, \"-\" and \"_\": \"%2\"").arg(file, id);
        return false;
    }
    if (!c.password.isEmpty() && c.username.isEmpty()) {
        *error = QStringLiteral("%1: [broker] password without a username").arg(file);
        return false;
    }
    QString why;
    if (!readNumber(ini, QStringLiteral("broker/port"), c.cafile.isEmpty() ? 1883 : 8883, 1, 65535, &c.port, &why) ||
        !readNumber(ini, QStringLiteral("broker/keepalive"), 30, 5, 65535, &c.keepalive, &why)) {
        *error = file + QStringLiteral(": ") + why;
        return false;
    }
    *config = c;
    return true;
}

QString FurnaceIdFrom(const QString &text)
{
    QString id;
    for (const QChar c : text) {
        if ((c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
            (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-') || c == QLatin1Char('_'))
            id += c;
    }
    return id;
}

} // namespace LabLink
} // namespace ovra
