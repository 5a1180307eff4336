#pragma once

#include "records/firingexport.h"
#include "settings/devicereport.h"

#include <QCoreApplication>

class QIODevice;

namespace ovra {
namespace Records {

struct FiringRecord;

// One firing on one A4 page for the lab's files: the furnace, the firing and its result, the
// program as fired, the chart and the failures. Needs a QGuiApplication (fonts).
class FiringReport
{
    Q_DECLARE_TR_FUNCTIONS(ovra::Records::FiringReport)

public:
    // The furnace as the firing's record keeps it; `device` stands in for a record without.
    static bool Write(const FiringRecord &record, const Settings::DeviceReport::Data &device, bool fahrenheit,
                      const QString &path, QString *error);
    // The same into an open device, e.g. a buffer that a web server sends.
    static bool Write(const FiringRecord &record, const Settings::DeviceReport::Data &device, bool fahrenheit,
                      QIODevice *out, QString *error);
    // For the export: every firing's report, with `device` where a record has no furnace data.
    static ReportWriter Writer(const Settings::DeviceReport::Data &device, bool fahrenheit);

    // The furnace data as a firing's record keeps it: model, serial number, hardware and
    // software version and operating hours, one a line.
    static QString DeviceLines(const Settings::DeviceReport::Data &device);
};

} // namespace Records
} // namespace ovra
