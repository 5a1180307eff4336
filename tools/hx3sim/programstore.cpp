#include "programstore.h"

#include <QFile>
#include <QFileInfo>

ProgramStore::ProgramStore(const QList<heatfile::Program> &programs)
{
    for (const heatfile::Program &program : programs)
        put(program);
}

int ProgramStore::indexOf(const QString &name) const
{
    for (int i = 0; i < m_programs.size(); ++i) {
        if (m_programs.at(i).name == name)
            return i;
    }
    return -1;
}

ProgramStore::Put ProgramStore::put(const heatfile::Program &program)
{
    const int at = indexOf(program.name);
    if (at < 0) {
        m_programs.append(program);
        return Put::Added;
    }
    m_programs[at] = program;
    return Put::Replaced;
}

int ProgramStore::remove(const QString &name)
{
    int removed = 0;
    for (int i = m_programs.size() - 1; i >= 0; --i) {
        if (m_programs.at(i).name == name) {
            m_programs.removeAt(i);
            ++removed;
        }
    }
    return removed;
}

bool ProgramStore::setFavorite(const QString &name, bool favorite)
{
    bool found = false;
    for (heatfile::Program &program : m_programs) {
        if (program.name == name) {
            program.favorite = favorite;
            found = true;
        }
    }
    return found;
}

bool ProgramStore::loadFile(const QString &path, QStringList *notes, QString *error)
{
    QFile file(path);
    if (!QFileInfo(path).isFile()) {
        *error = QStringLiteral("%1: no such file").arg(path);
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    int loaded = 0;
    int bad = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QString where = QStringLiteral("%1:%2").arg(path).arg(i + 1);
        heatfile::Program program;
        QString reason;
        if (!heatfile::parse(line, &program, &reason)) {
            notes->append(QStringLiteral("bad heatfile: %1: %2").arg(where, reason));
            ++bad;
            continue;
        }
        if (put(program) == Put::Replaced)
            notes->append(QStringLiteral("programs: %1: replaces the earlier %2").arg(where, program.name));
        ++loaded;
    }
    notes->append(QStringLiteral("programs: %1: %2 read, %3 bad line(s) skipped").arg(path).arg(loaded).arg(bad));
    return true;
}
