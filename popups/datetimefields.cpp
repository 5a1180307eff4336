#include "popups/datetimefields.h"

#include <QLineEdit>

namespace ovra {
namespace Popups {

void ShowDateTimeEntry(const QVector<QLineEdit *> &fields, const DateTimeEntry &entry)
{
    fields.at(0)->setText(entry.day);
    fields.at(1)->setText(entry.month);
    fields.at(2)->setText(entry.year);
    fields.at(3)->setText(entry.hour);
    fields.at(4)->setText(entry.minute);
}

DateTimeEntry ReadDateTimeEntry(const QVector<QLineEdit *> &fields)
{
    DateTimeEntry entry;
    entry.day = fields.at(0)->text();
    entry.month = fields.at(1)->text();
    entry.year = fields.at(2)->text();
    entry.hour = fields.at(3)->text();
    entry.minute = fields.at(4)->text();
    return entry;
}

} // namespace Popups
} // namespace ovra
