#pragma once

#include "records/firinghistory.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace ovra {
namespace Lab {

// A published record in the panel's own record form, so the lab's PDF and CSV are the panel's
// report and export, not a second copy of them.
namespace RecordReport {

// Times "YYYY-MM-DDThh:mm:ss" become the panel's "dd.MM.yyyy" and "hh:mm"; a time that is not
// one stays as it came, as the date.
Records::FiringRecord FromJson(const QJsonObject &record);
// The one-page report (°C), made under a lock: one report at a time however many requests.
QByteArray Pdf(const QJsonObject &record, QString *error);
// The samples as the panel's export writes them.
QByteArray Csv(const QJsonObject &record);

} // namespace RecordReport
} // namespace Lab
} // namespace ovra
