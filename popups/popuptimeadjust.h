#pragma once

#include "popups/datetimeentry.h"
#include "popups/popupbase.h"

#include <QVector>

#include <memory>

class QLineEdit;

namespace Ui {
class PopupTimeAdjust;
}

namespace ovra {
namespace Popups {

class DigitEntry;

// Sets the controller's date and time. Nothing is sent while a field is out of range; the
// wrong fields are marked until they are edited.
class PopupTimeAdjust : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupTimeAdjust(QWidget *parent = nullptr);
    ~PopupTimeAdjust() override;

    void Translate() override;

    // date "DD.MM.YYYY", time "HH:MM"; malformed input leaves the fields as they are.
    void SetDateTime(const QString &date, const QString &time);

    DateTimeEntry GetEntry() const;

signals:
    void SignalDateAdjust(const QString &date); // "YYYYMMDD"
    void SignalTimeAdjust(const QString &time); // "HHMM"

private slots:
    void SlotOk();

private:
    void MarkInvalid(DateTimeFields invalid);

    std::unique_ptr<Ui::PopupTimeAdjust> ui;
    DigitEntry *m_entry;
    QVector<QLineEdit *> m_fields;
};

} // namespace Popups
} // namespace ovra
