#pragma once

#include <QString>
#include <QtGlobal>

namespace ovra {
namespace GlobalElements {

// Relative on purpose: the panel is started from its build folder on the device and the
// service staff look for the logs beside it.
extern const QString logFolderName;
// The file being written now; empty until initLogFileName() first runs.
extern QString logFileName;
// Rotation threshold in bytes: a file strictly larger than this is closed for good.
constexpr qint64 logFileMaxBytes = 1024000;
// Files kept in the folder before a new one is begun.
constexpr int logFilesKept = 5;

void initLogging();
void initLogFileName();
void deleteOldLogs();
void myMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message);

} // namespace GlobalElements
} // namespace ovra
