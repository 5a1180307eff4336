#pragma once

#include <QString>

namespace ovra {
namespace Records {

// RFC 4180: a field with a comma, quote or line break is quoted, quotes doubled.
QString CsvField(const QString &text);

// Writes DIR/firings.csv (one line per firing) and DIR/firing-<id>-samples.csv (elapsed
// seconds, °C) from the records under home, UTF-8. False with a one-line reason when DIR
// cannot be written. Without a running panel (closeUnfinished) a cut-off firing is closed as
// interrupted first, as the panel's next start would; the running panel's own firing stays open.
bool ExportFirings(const QString &home, const QString &dir, QString *error, bool closeUnfinished = true);

} // namespace Records
} // namespace ovra
