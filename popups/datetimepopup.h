#pragma once

#include "popups/datetimeentry.h"
#include "popups/popupbase.h"

#include <QVector>

#include <memory>

class QLineEdit;
class QPushButton;

namespace Ui {
class DateTimePopup;
}

namespace ovra {
namespace Popups {

class DigitEntry;

// The one date-and-time form: five digit fields (day, month, year, hour, minute) typed on a
// digit pad, with the pad's "next field" key and one confirm button beside cancel. The
// popups that use it give the title and the confirm verb, and decide on confirm.
class DateTimePopup : public PopupBase
{
    Q_OBJECT

public:
    ~DateTimePopup() override;

    void Translate() override;

    DateTimeEntry GetEntry() const;

protected:
    explicit DateTimePopup(QWidget *parent);

    virtual QString Title() const = 0;
    virtual QString ConfirmVerb() const = 0;
    // OK pressed: the popup stays open unless this accepts it.
    virtual void Confirm() = 0;

    // date "DD.MM.YYYY", time "HH:MM": with exactly three and two parts the fields are filled,
    // unmarked and the day field becomes current; otherwise nothing changes and false.
    bool FillFields(const QString &date, const QString &time);
    void ShowEntry(const DateTimeEntry &entry);
    // Marks the given fields, says so under them and makes the first of them current.
    void MarkInvalid(DateTimeFields invalid);

    std::unique_ptr<Ui::DateTimePopup> ui;

private:
    QWidget *m_form;
    QPushButton *m_cancel;
    QPushButton *m_ok;
    DigitEntry *m_entry;
    QVector<QLineEdit *> m_fields;
};

} // namespace Popups
} // namespace ovra
