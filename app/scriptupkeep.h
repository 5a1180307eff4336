#pragma once

#include "app/paths.h"

#include <QString>
#include <QStringList>

namespace ovra {
namespace GlobalElements {

// Keeps the start-up scripts in the home folder equal to their reference copies (the
// program's resources): a copy that differs by MD5, or is missing, is written anew with its
// folder, so a damaged card heals itself at the next start. Every kept script can be run.
class ScriptUpkeep
{
public:
    // referenceFolder holds one reference copy per script, by file name.
    explicit ScriptUpkeep(const Paths &paths, const QString &referenceFolder = QStringLiteral(":/scripts"));

    // fixedPaths are device paths ("/home/pi/..."), mapped onto the home folder. A script
    // without a reference copy is left alone. Returns the files written; a failure is logged.
    QStringList Run(const QStringList &fixedPaths) const;

private:
    bool Keep(const QString &path, const QByteArray &wanted, bool *written) const;

    Paths m_paths;
    QString m_referenceFolder;
};

} // namespace GlobalElements
} // namespace ovra
