#include "programs/tablehead.h"

#include "ui_tablehead.h"

#include <QEvent>

namespace ovra {
namespace GlobalElements {

TableHead::TableHead(QWidget *parent) : QWidget(parent), ui(new Ui::TableHead)
{
    ui->setupUi(this);
    m_baseRightMargin = layout()->contentsMargins().right();
    Translate();
}

TableHead::~TableHead() = default;

void TableHead::SetFahrenheit(bool fahrenheit)
{
    m_fahrenheit = fahrenheit;
    Translate();
}

void TableHead::SetRightInset(int pixels)
{
    QMargins margins = layout()->contentsMargins();
    margins.setRight(m_baseRightMargin + pixels);
    layout()->setContentsMargins(margins);
}

QString TableHead::GetRateText() const
{
    return ui->label_rate->text();
}

QString TableHead::GetTempText() const
{
    return ui->label_temp->text();
}

QString TableHead::GetTimeText() const
{
    return ui->label_time->text();
}

void TableHead::Translate()
{
    ui->label_number->setText(tr("Nr."));
    ui->label_rate->setText(tr("Rate") + QLatin1Char('\n') +
                            (m_fahrenheit ? QStringLiteral("°F/min") : QStringLiteral("°C/min")));
    ui->label_temp->setText(m_fahrenheit ? tr("Temperatur (°F)") : tr("Temperatur (°C)"));
    ui->label_time->setText(tr("Haltezeit (min)"));
}

void TableHead::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Translate();
    QWidget::changeEvent(event);
}

} // namespace GlobalElements
} // namespace ovra
