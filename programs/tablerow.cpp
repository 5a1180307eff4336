#include "programs/tablerow.h"

#include "programs/programtable.h"
#include "ui_tablerow.h"

#include <QRegularExpressionValidator>
#include <QStyle>

namespace ovra {
namespace GlobalElements {

namespace {

void LimitField(QLineEdit *field, unsigned int limit)
{
    const QString text = field->text();
    const QString limited = ProgramTable::LimitEntry(text, limit);
    if (limited != text)
        field->setText(limited);
}

} // namespace

TableRow::TableRow(QWidget *parent) : QWidget(parent), ui(new Ui::TableRow), m_maxRate(ProgramTable::defaultMaxRate)
{
    ui->setupUi(this);

    const QRegularExpression digits(QStringLiteral("[0-9]{0,%1}").arg(ProgramTable::maxDigits));
    for (QLineEdit *field : {ui->lineEdit_rate, ui->lineEdit_temp, ui->lineEdit_time}) {
        field->setValidator(new QRegularExpressionValidator(digits, field));
        field->setMaxLength(ProgramTable::maxDigits);
    }
    connect(ui->lineEdit_rate, &QLineEdit::textChanged, this,
            [this] { LimitField(ui->lineEdit_rate, ProgramTable::RateLimit(m_maxRate, m_fahrenheit)); });
    connect(ui->lineEdit_temp, &QLineEdit::textChanged, this,
            [this] { LimitField(ui->lineEdit_temp, ProgramTable::TemperatureLimit(m_fahrenheit)); });
    SetNumber(1);
    ResetRow();
}

TableRow::~TableRow() = default;

void TableRow::SetNumber(int number)
{
    m_number = number;
    ui->label_number->setText(QString::number(number));
}

void TableRow::SetRate(unsigned int rate)
{
    ui->lineEdit_rate->setText(QString::number(rate));
}

unsigned int TableRow::GetRate() const
{
    return ProgramTable::ReadNumber(ui->lineEdit_rate->text());
}

void TableRow::SetTemp(unsigned int temp)
{
    ui->lineEdit_temp->setText(QString::number(temp));
}

unsigned int TableRow::GetTemp() const
{
    return ProgramTable::ReadNumber(ui->lineEdit_temp->text());
}

void TableRow::SetTime(unsigned int time)
{
    ui->lineEdit_time->setText(QString::number(time));
}

unsigned int TableRow::GetTime() const
{
    return ProgramTable::ReadNumber(ui->lineEdit_time->text());
}

void TableRow::SetMaxRate(unsigned int maxRate)
{
    m_maxRate = maxRate;
    ApplyLimits();
}

void TableRow::SetFahrenheit(bool fahrenheit)
{
    m_fahrenheit = fahrenheit;
    ApplyLimits();
}

void TableRow::SetBackgroundVisible(bool visible)
{
    m_backgroundVisible = visible;
    ui->frame_row->setProperty("card", visible);
    ui->frame_row->style()->unpolish(ui->frame_row);
    ui->frame_row->style()->polish(ui->frame_row);
    ui->frame_row->update();
}

void TableRow::ResetRow()
{
    SetRate(ProgramTable::ToFahrenheit(0, m_fahrenheit));
    SetTemp(ProgramTable::ToFahrenheit(0, m_fahrenheit));
    SetTime(0);
}

void TableRow::Destroy()
{
    hide();
    deleteLater();
}

QLineEdit *TableRow::GetRateField() const
{
    return ui->lineEdit_rate;
}

QLineEdit *TableRow::GetTempField() const
{
    return ui->lineEdit_temp;
}

QLineEdit *TableRow::GetTimeField() const
{
    return ui->lineEdit_time;
}

bool TableRow::OwnsField(const QWidget *widget) const
{
    return widget && (widget == ui->lineEdit_rate || widget == ui->lineEdit_temp || widget == ui->lineEdit_time);
}

void TableRow::ApplyLimits()
{
    LimitField(ui->lineEdit_rate, ProgramTable::RateLimit(m_maxRate, m_fahrenheit));
    LimitField(ui->lineEdit_temp, ProgramTable::TemperatureLimit(m_fahrenheit));
}

} // namespace GlobalElements
} // namespace ovra
