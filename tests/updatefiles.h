#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

// Files for the update tests: Debian's python3, zip archives made with it (entry names kept
// as given, "../x" and "/x" included), and the contents of a folder to compare before and after.
namespace UpdateFiles {

QString Python();
bool Write(const QString &path, const QByteArray &content);
QByteArray Read(const QString &path);
bool MakeZip(const QString &zipPath, const QList<QPair<QString, QByteArray>> &entries);
// Every file and folder below `root`, relative to it, with the files' contents.
QMap<QString, QByteArray> Snapshot(const QString &root);
// A home with Downloads holding the panel's unpacking script, an installed program and its
// translations; false when something could not be made.
bool MakeHome(const QString &home);

} // namespace UpdateFiles
