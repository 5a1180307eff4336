#pragma once

#include <QString>
#include <QStringList>

namespace ovra {
namespace GlobalElements {

// A failure code's length is its severity: 3 severe, 4 medium, 5 information.
namespace FailureSeverity {

// Severe codes stay in the list when the user clears it; only the service clears them.
bool UserMayDelete(const QString &code);

// Icon of the most severe code in the list, or empty when none has a severity.
QString WorstIcon(const QStringList &codes);

} // namespace FailureSeverity
} // namespace GlobalElements
} // namespace ovra
