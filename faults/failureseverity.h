#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace ovra {
namespace GlobalElements {
struct FailureEntry;

// A failure code's length is its severity: 3 severe, 4 medium, 5 information.
namespace FailureSeverity {

// Severe codes stay in the list when the user clears it; only the service clears them.
bool UserMayDelete(const QString &code);

// Icon of the most severe code in the list, or empty when none has a severity.
QString WorstIcon(const QStringList &codes);

// The severity in words, translated: "Schwerer Fehler", "Warnung", "Hinweis"; empty for a code
// of any other length.
QString Word(const QString &code);
// The code as the controller sent it, its severity beside it when it has one.
QString Line(const QString &code);
// Each line of a list kept one code a line, described as Line() does.
QString Lines(const QString &codesOneALine);
// The failure page's history: "dd.MM.yyyy, hh:mm: CODE  Severity", one a line, as listed.
QString History(const QList<FailureEntry> &failures);

} // namespace FailureSeverity
} // namespace GlobalElements
} // namespace ovra
