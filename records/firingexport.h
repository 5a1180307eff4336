#pragma once

#include <QString>

namespace ovra {
namespace Records {

// RFC 4180: a field with a comma, quote or line break is quoted, quotes doubled.
QString CsvField(const QString &text);

// Writes DIR/firings.csv (one line per firing) and DIR/firing-<id>-samples.csv (elapsed
// seconds, °C) from the records under home, UTF-8. False with a one-line reason when DIR
// cannot be written.
bool ExportFirings(const QString &home, const QString &dir, QString *error);

} // namespace Records
} // namespace ovra
