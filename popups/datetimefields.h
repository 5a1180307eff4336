#pragma once

#include "popups/datetimeentry.h"

#include <QVector>

class QLineEdit;

namespace ovra {
namespace Popups {

// The date-and-time popups keep their five line edits in the order of DateTimeEntry:
// day, month, year, hour, minute.
void ShowDateTimeEntry(const QVector<QLineEdit *> &fields, const DateTimeEntry &entry);
DateTimeEntry ReadDateTimeEntry(const QVector<QLineEdit *> &fields);

} // namespace Popups
} // namespace ovra
