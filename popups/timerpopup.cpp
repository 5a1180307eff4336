#include "popups/timerpopup.h"

#include "popups/datetimefields.h"
#include "popups/digitentry.h"
#include "popups/timerinput.h"
#include "ui_timerpopup.h"
#include "widgets/confirmbuttons.h"

#include <QRegularExpressionValidator>

namespace ovra {
namespace Popups {

namespace {
void setPattern(QLineEdit *field, const char *pattern)
{
    field->setValidator(new QRegularExpressionValidator(QRegularExpression(QString::fromLatin1(pattern)), field));
}

TimerEntry ReadTimerEntry(const QVector<QLineEdit *> &fields)
{
    const DateTimeEntry typed = ReadDateTimeEntry(fields);
    return ParseTimerEntry(typed.day, typed.month, typed.year, typed.hour, typed.minute);
}
} // namespace

TimerPopup::TimerPopup(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::TimerPopup)
    , m_entry(new DigitEntry(this))
    , m_clock([] { return QDateTime::currentDateTime(); })
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_ok, ui->pushButton_cancel);
    // The comma key is part of the key set but has no meaning in a date or a time.
    ui->pushButton_com->hide();

    setPattern(ui->lineEdit_day, "\\d{0,2}");
    setPattern(ui->lineEdit_month, "\\d{0,2}");
    setPattern(ui->lineEdit_hour, "\\d{0,2}");
    setPattern(ui->lineEdit_minute, "([0-5][0-9]){1}");
    setPattern(ui->lineEdit_year, "\\d{0,4}");

    m_fields = {ui->lineEdit_day, ui->lineEdit_month, ui->lineEdit_year, ui->lineEdit_hour, ui->lineEdit_minute};
    m_entry->SetFields(m_fields);

    m_entry->ConnectPad({ui->pushButton_0, ui->pushButton_1, ui->pushButton_2, ui->pushButton_3, ui->pushButton_4,
                         ui->pushButton_5, ui->pushButton_6, ui->pushButton_7, ui->pushButton_8, ui->pushButton_9},
                        ui->pushButton_clr, ui->pushButton_enter);
    connect(ui->pushButton_ok, &QPushButton::clicked, this, &TimerPopup::SlotOk);
    connect(ui->pushButton_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

TimerPopup::~TimerPopup() = default;

void TimerPopup::Translate()
{
    ui->retranslateUi(this);
}

bool TimerPopup::SetDateTime(const QString &date, const QString &time)
{
    DateTimeEntry entry;
    if (!SplitDateTime(date, time, &entry))
        return false;
    ShowDateTimeEntry(m_fields, entry);
    for (QLineEdit *field : qAsConst(m_fields)) {
        field->setProperty("invalid", false);
        Repolish(field);
    }
    m_entry->SetCurrent(0);
    return true;
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
    const TimerEntry corrected = CorrectTimerEntry(ReadTimerEntry(m_fields), now.date(), now.time());
    ShowDateTimeEntry(m_fields, {TwoDigits(corrected.day), TwoDigits(corrected.month), QString::number(corrected.year),
                                 TwoDigits(corrected.hour), TwoDigits(corrected.minute)});
}

void TimerPopup::SlotOk()
{
    CheckInput();
    m_requestedTimer = TimerRequestText(ReadTimerEntry(m_fields));
    emit SignalAutoStartTimerSet();
    accept();
}

} // namespace Popups
} // namespace ovra
