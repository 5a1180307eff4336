#pragma once

#include "popups/popupbase.h"

#include <QDateTime>
#include <QVector>

#include <functional>
#include <memory>

class QLineEdit;

namespace Ui {
class TimerPopup;
}

namespace ovra {
namespace Popups {

class DigitEntry;

// Entry of a delayed start: date and time of day on a digit pad. OK turns the entry into
// the request the controller takes ("timer==YYYYMMDD,HHMM"), moved onto a start that is not
// in the past.
class TimerPopup : public PopupBase
{
    Q_OBJECT

public:
    explicit TimerPopup(QWidget *parent = nullptr);
    ~TimerPopup() override;

    void Translate() override;

    // date "DD.MM.YYYY", time "HH:MM": with exactly three and two parts the fields are filled,
    // unmarked and the day field becomes current; otherwise nothing changes and false.
    bool SetDateTime(const QString &date, const QString &time);

    QString GetRequestedTimer() const { return m_requestedTimer; }
    void ResetRequest();

    // Where "now" comes from; tests pin it.
    void SetClock(std::function<QDateTime()> clock);

signals:
    // GetRequestedTimer() holds the request.
    void SignalAutoStartTimerSet();

public slots:
    // Corrects the fields in place against the present date and time.
    void CheckInput();

private slots:
    void SlotOk();

private:
    std::unique_ptr<Ui::TimerPopup> ui;
    DigitEntry *m_entry;
    QVector<QLineEdit *> m_fields;
    QString m_requestedTimer;
    std::function<QDateTime()> m_clock;
};

} // namespace Popups
} // namespace ovra
