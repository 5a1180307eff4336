#pragma once

#include "heatfile.h"

#include <QList>
#include <QString>
#include <QStringList>

// The programs the controller holds, in the order it hands them to the panel. A name is held
// once: the controller files a program under its name, so a second one of the same name
// takes the place of the first.
class ProgramStore
{
public:
    enum class Put { Added, Replaced };

    ProgramStore() = default;
    explicit ProgramStore(const QList<heatfile::Program> &programs);

    const QList<heatfile::Program> &programs() const { return m_programs; }
    int size() const { return m_programs.size(); }
    int indexOf(const QString &name) const;

    // Replaces the program of the same name where it stands, or appends.
    Put put(const heatfile::Program &program);
    // Removes every program of that name; returns how many there were.
    int remove(const QString &name);
    // False when there is no program of that name.
    bool setFavorite(const QString &name, bool favorite);

    // Adds the programs of a file: one heatfile text a line, blank lines and lines starting
    // with "#" left out. A bad line is skipped and reported in *notes with its line number,
    // like everything else worth knowing about the file. False, with *error, when the file
    // cannot be read at all.
    bool loadFile(const QString &path, QStringList *notes, QString *error);

private:
    QList<heatfile::Program> m_programs;
};
