#include "popups/timerpopup.h"

#include "popups/timerinput.h"
#include "ui_datetimepopup.h"

#include <QCoreApplication>
#include <QRegularExpressionValidator>

namespace ovra {
namespace Popups {

namespace {
TimerEntry ReadTimerEntry(const DateTimeEntry &typed)
{
    return ParseTimerEntry(typed.day, typed.month, typed.year, typed.hour, typed.minute);
}
} // namespace

TimerPopup::TimerPopup(QWidget *parent) : DateTimePopup(parent), m_clock([] { return QDateTime::currentDateTime(); })
{
    // A start minute cannot begin with 6 or more, so such a digit is refused as typed.
    ui->lineEdit_minute->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("([0-5][0-9]){1}")), ui->lineEdit_minute));
    Translate();
}

QString TimerPopup::Title() const
{
    return QCoreApplication::translate("TimerPopup", "Startzeit festlegen");
}

QString TimerPopup::ConfirmVerb() const
{
    return QCoreApplication::translate("TimerPopup", "Übernehmen");
}

bool TimerPopup::SetDateTime(const QString &date, const QString &time)
{
    return FillFields(date, time);
}

void TimerPopup::ResetRequest()
{
    m_requestedTimer.clear();
}

void TimerPopup::SetClock(std::function<QDateTime()> clock)
{
    m_clock = std::move(clock);
}

void TimerPopup::CheckInput()
{
    const QDateTime now = m_clock();
    const TimerEntry corrected = CorrectTimerEntry(ReadTimerEntry(GetEntry()), now.date(), now.time());
    ShowEntry({TwoDigits(corrected.day), TwoDigits(corrected.month), QString::number(corrected.year),
               TwoDigits(corrected.hour), TwoDigits(corrected.minute)});
}

void TimerPopup::Confirm()
{
    CheckInput();
    m_requestedTimer = TimerRequestText(ReadTimerEntry(GetEntry()));
    emit SignalAutoStartTimerSet();
    accept();
}

} // namespace Popups
} // namespace ovra
