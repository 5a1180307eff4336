#pragma once

#include "popups/datetimepopup.h"

#include <QDateTime>

#include <functional>

namespace ovra {
namespace Popups {

// Entry of a delayed start. OK turns the entry into the request the controller takes
// ("timer==YYYYMMDD,HHMM"), moved onto a start that is not in the past.
class TimerPopup : public DateTimePopup
{
    Q_OBJECT

public:
    explicit TimerPopup(QWidget *parent = nullptr);

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

protected:
    QString Title() const override;
    QString ConfirmVerb() const override;
    void Confirm() override;

private:
    QString m_requestedTimer;
    std::function<QDateTime()> m_clock;
};

} // namespace Popups
} // namespace ovra
