#pragma once

#include "app/pageinterface.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>

namespace ovra {
namespace GlobalElements {
class FurnaceState;
struct DeviceInfo;
} // namespace GlobalElements
namespace Records {
struct FiringRecord;
}

// What the panel tells the lab: topics and compact JSON payloads, as docs/lablink.md states them.
// Plain functions of values; nothing here knows the network.
namespace LabLink {

QString Topic(const QString &furnaceId, const char *what); // "ovra/<id>/<what>"

// "dd.MM.yyyy" and "hh:mm" (or "hh:mm:ss") of the controller's clock as "YYYY-MM-DDThh:mm:ss";
// empty when either is not a time.
QString ControllerTime(const QString &date, const QString &time);
// The same from the records' "dd.MM.yyyy hh:mm".
QString ControllerTime(const QString &dateAndTime);

QString PageWord(GlobalElements::Pageinterface::en_pages page); // "process", "menu", ...
QJsonObject DeviceObject(const GlobalElements::DeviceInfo &device);
// The controller's language keyword as the short code of its translation: "de", "en_US", "jp"...
QString LanguageCode(const QString &keyword);

QByteArray StatePayload(const GlobalElements::FurnaceState &furnace);
// {"event": event, "time": the furnace's clock now, plus `fields`}
QByteArray EventPayload(const QString &event, const GlobalElements::FurnaceState &furnace,
                        const QJsonObject &fields = QJsonObject());
QByteArray RecordPayload(const Records::FiringRecord &record, const QString &furnaceId);

// The retained Home Assistant discovery messages: topic and payload.
QList<QPair<QString, QByteArray>> DiscoveryMessages(const QString &furnaceId, const GlobalElements::DeviceInfo &device);

} // namespace LabLink
} // namespace ovra
