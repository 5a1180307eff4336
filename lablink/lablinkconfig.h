#pragma once

#include <QString>

namespace ovra {
namespace LabLink {

// The link to the lab's broker as `<home>/lablink.ini` describes it.
struct LabLinkConfig
{
    QString host;
    int port = 1883; // 8883 when a CA file is given
    QString username;
    QString password;
    QString cafile; // TLS when set
    int keepalive = 30;
    QString furnaceId; // empty: the controller's serial number, once it is known

    static QString FileIn(const QString &home); // "<home>/lablink.ini"

    // No file: no link, and no error. A file that cannot be used: false with `error` saying
    // what is wrong in one line.
    static bool Load(const QString &home, LabLinkConfig *config, QString *error);
};

// The furnace's id in topics: letters, digits, "-" and "_" of `text`, nothing else.
QString FurnaceIdFrom(const QString &text);

} // namespace LabLink
} // namespace ovra
