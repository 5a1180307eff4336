#include "popups/digitentry.h"

#include "widgets/widgetstyle.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLineEdit>
#include <QVariant>

namespace ovra {
namespace Popups {

DigitEntry::DigitEntry(QObject *parent) : QObject(parent) {}

void DigitEntry::SetFields(const QVector<QLineEdit *> &fields)
{
    for (QLineEdit *field : qAsConst(m_fields))
        field->removeEventFilter(this);
    m_fields = fields;
    for (QLineEdit *field : qAsConst(m_fields))
        field->installEventFilter(this);
    m_current = 0;
    MarkCurrent();
}

QLineEdit *DigitEntry::CurrentField() const
{
    return m_fields.value(m_current, nullptr);
}

void DigitEntry::SetCurrent(int index)
{
    if (index < 0 || index >= m_fields.size())
        return;
    m_current = index;
    m_fields.at(index)->setFocus(Qt::OtherFocusReason);
    m_fields.at(index)->end(false);
    MarkCurrent();
    emit SignalCurrentChanged(index);
}

void DigitEntry::CheckLineLength(QLineEdit *field)
{
    if (field->text().size() >= field->maxLength())
        field->clear();
}

void DigitEntry::TypeDigit(int digit)
{
    QLineEdit *field = CurrentField();
    if (!field || digit < 0 || digit > 9)
        return;
    CheckLineLength(field);
    field->end(false);
    field->insert(QString::number(digit));
}

void DigitEntry::RemoveLast()
{
    QLineEdit *field = CurrentField();
    if (!field)
        return;
    QString text = field->text();
    text.chop(1);
    field->setText(text);
}

void DigitEntry::Next()
{
    if (!m_fields.isEmpty())
        SetCurrent((m_current + 1) % m_fields.size());
}

void DigitEntry::ConnectPad(const QVector<QAbstractButton *> &digitKeys, QAbstractButton *clear, QAbstractButton *next)
{
    for (int digit = 0; digit < digitKeys.size(); ++digit)
        connect(digitKeys.at(digit), &QAbstractButton::clicked, this, [this, digit] { TypeDigit(digit); });
    connect(clear, &QAbstractButton::clicked, this, &DigitEntry::RemoveLast);
    connect(next, &QAbstractButton::clicked, this, &DigitEntry::Next);
}

bool DigitEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress) {
        const int index = m_fields.indexOf(qobject_cast<QLineEdit *>(watched));
        if (index >= 0 && index != m_current) {
            m_current = index;
            MarkCurrent();
            emit SignalCurrentChanged(index);
        }
    }
    return QObject::eventFilter(watched, event);
}

void DigitEntry::MarkCurrent()
{
    for (int i = 0; i < m_fields.size(); ++i) {
        QLineEdit *field = m_fields.at(i);
        const bool current = i == m_current;
        if (field->property("current").toBool() == current)
            continue;
        field->setProperty("current", current);
        GlobalElements::WidgetStyle::Repolish(field);
    }
}

} // namespace Popups
} // namespace ovra
