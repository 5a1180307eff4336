#pragma once

#include <QString>
#include <QVector>

#include <functional>

namespace ovra {
namespace Records {

struct FiringRecord;
struct Sample;

// RFC 4180: a field with a comma, quote or line break is quoted, quotes doubled.
QString CsvField(const QString &text);

// One firing's samples: a "seconds,celsius" header, then a line per sample (CRLF).
QString SamplesCsv(const QVector<Sample> &samples);

// Writes one firing's printable report to a file; false with a reason.
using ReportWriter = std::function<bool(const FiringRecord &record, const QString &path, QString *error)>;

// Writes DIR/firings.csv (one line per firing) and DIR/firing-<id>-samples.csv (elapsed
// seconds, °C) from the records under home, UTF-8. False with a one-line reason when DIR
// cannot be written. Without a running panel (closeUnfinished) a cut-off firing is closed as
// interrupted first, as the panel's next start would; the running panel's own firing stays open.
// With a report writer, DIR/firing-<id>.pdf beside each samples file. progress(done, total)
// is called before each firing: a full store takes a minute or more.
bool ExportFirings(const QString &home, const QString &dir, QString *error, bool closeUnfinished = true,
                   const ReportWriter &report = ReportWriter(),
                   const std::function<void(int done, int total)> &progress = {});

} // namespace Records
} // namespace ovra
