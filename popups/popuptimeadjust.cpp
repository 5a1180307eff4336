#include "popups/popuptimeadjust.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupTimeAdjust::PopupTimeAdjust(QWidget *parent) : DateTimePopup(parent)
{
    Translate();
}

QString PopupTimeAdjust::Title() const
{
    return QCoreApplication::translate("PopupTimeAdjust", "Datum und Uhrzeit");
}

QString PopupTimeAdjust::ConfirmVerb() const
{
    return QCoreApplication::translate("PopupTimeAdjust", "Speichern");
}

void PopupTimeAdjust::SetDateTime(const QString &date, const QString &time)
{
    FillFields(date, time);
}

void PopupTimeAdjust::Confirm()
{
    const DateTimeEntry entry = GetEntry();
    const DateTimeFields invalid = InvalidDateTimeFields(entry);
    MarkInvalid(invalid);
    if (invalid)
        return;
    emit SignalDateAdjust(DateAdjustText(entry));
    emit SignalTimeAdjust(TimeAdjustText(entry));
    accept();
}

} // namespace Popups
} // namespace ovra
