#pragma once

#include "popups/datetimepopup.h"

namespace ovra {
namespace Popups {

// Sets the controller's date and time. Nothing is sent while a field is out of range; the
// wrong fields are marked until they are edited.
class PopupTimeAdjust : public DateTimePopup
{
    Q_OBJECT

public:
    explicit PopupTimeAdjust(QWidget *parent = nullptr);

    // date "DD.MM.YYYY", time "HH:MM"; malformed input leaves the fields as they are.
    void SetDateTime(const QString &date, const QString &time);

signals:
    void SignalDateAdjust(const QString &date); // "YYYYMMDD"
    void SignalTimeAdjust(const QString &time); // "HHMM"

protected:
    QString Title() const override;
    QString ConfirmVerb() const override;
    void Confirm() override;
};

} // namespace Popups
} // namespace ovra
