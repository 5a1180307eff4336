#include "faults/failureseverity.h"

#include "app/furnacestate.h"

#include <QCoreApplication>

namespace ovra {
namespace GlobalElements {
namespace FailureSeverity {

namespace {
constexpr int severe = 3;
constexpr int medium = 4;
constexpr int information = 5;
} // namespace

bool UserMayDelete(const QString &code)
{
    return code.size() > severe;
}

QString WorstIcon(const QStringList &codes)
{
    int worst = 10;
    QString icon;
    for (const QString &code : codes) {
        const int length = code.size();
        if (length == information && worst > information) {
            icon = QStringLiteral(":/Failure/info.png");
            worst = information;
        } else if (length == medium && worst > medium) {
            icon = QStringLiteral(":/Failure/mittel.png");
            worst = medium;
        } else if (length == severe && worst > severe) {
            icon = QStringLiteral(":/Failure/schwer.png");
            worst = severe;
        }
    }
    return icon;
}

QString Word(const QString &code)
{
    switch (code.size()) {
    case severe: return QCoreApplication::translate("ovra::GlobalElements::FailureSeverity", "Schwerer Fehler");
    case medium: return QCoreApplication::translate("ovra::GlobalElements::FailureSeverity", "Warnung");
    case information: return QCoreApplication::translate("ovra::GlobalElements::FailureSeverity", "Hinweis");
    default: return QString();
    }
}

QString Line(const QString &code)
{
    const QString word = Word(code);
    return word.isEmpty() ? code : code + QStringLiteral("  ") + word;
}

QString Lines(const QString &codesOneALine)
{
    QStringList lines = codesOneALine.split(QLatin1Char('\n'));
    const bool closed = codesOneALine.endsWith(QLatin1Char('\n'));
    if (closed)
        lines.removeLast();
    for (QString &line : lines)
        line = Line(line);
    return lines.join(QLatin1Char('\n')) + (closed ? QStringLiteral("\n") : QString());
}

QString History(const QList<FailureEntry> &failures)
{
    QString lines;
    for (const FailureEntry &f : failures)
        lines += f.date + QStringLiteral(", ") + f.time + QStringLiteral(": ") + Line(f.code) + QLatin1Char('\n');
    return lines;
}

} // namespace FailureSeverity
} // namespace GlobalElements
} // namespace ovra
