#pragma once

#include <QObject>
#include <QVector>

class QAbstractButton;
class QLineEdit;

namespace ovra {
namespace Popups {

// Steers an on-screen digit pad into a row of short line edits: which field the digits go
// to, the length rule, backspace and "next field". The current field is tracked here
// rather than read from keyboard focus, which a window that is not active does not have.
class DigitEntry : public QObject
{
    Q_OBJECT

public:
    explicit DigitEntry(QObject *parent = nullptr);

    // The fields in "next field" order; each field's maxLength is its length limit.
    void SetFields(const QVector<QLineEdit *> &fields);

    int Current() const { return m_current; }
    QLineEdit *CurrentField() const;
    void SetCurrent(int index);

    // A field already at its limit starts over, so typing never gets stuck on a full field.
    static void CheckLineLength(QLineEdit *field);

    // Applies the length rule, then appends the digit at the end of the current field
    // (through the field's validator, which may refuse it).
    void TypeDigit(int digit);
    void RemoveLast();
    void Next();

    // Hooks a pad's keys up: digitKeys[i] types the digit i, clear takes the last digit
    // back, next moves on to the next field.
    void ConnectPad(const QVector<QAbstractButton *> &digitKeys, QAbstractButton *clear, QAbstractButton *next);

signals:
    void SignalCurrentChanged(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The field that digits go to carries current=true for the style sheet, focused or not.
    void MarkCurrent();

    QVector<QLineEdit *> m_fields;
    int m_current = 0;
};

} // namespace Popups
} // namespace ovra
