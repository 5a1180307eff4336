#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

class QLineEdit;
class QPushButton;

namespace Ui {
class Keyboard;
}

namespace ovra {
namespace GlobalElements {

// The on-screen German keyboard for program names. It types into one line edit at that
// field's cursor; the panel has no physical keyboard.
class Keyboard : public QWidget
{
    Q_OBJECT

public:
    explicit Keyboard(QWidget *parent = nullptr);
    ~Keyboard() override;

    // nullptr detaches: keys then do nothing. The field is not owned.
    void SetTarget(QLineEdit *target);
    QLineEdit *GetTarget() const;

    bool IsShifted() const { return m_shifted; }

    // What a character key types: shift capitalises letters (umlauts included) but leaves
    // "ß", whose capital would be the two letters "SS", and everything else alone.
    static QString KeyOutput(const QString &keyText, bool shifted);

    QSize sizeHint() const override;

public slots:
    void insertLetter(const QString &text);

signals:
    void SignalEnter();
    void SignalTextChanged(const QString &text);

private:
    void OnCharacterKey(const QString &keyText);
    void OnBackspace();
    void SetShifted(bool shifted);

    Ui::Keyboard *ui;
    QPointer<QLineEdit> m_target;
    QList<QPushButton *> m_characterKeys;
    bool m_shifted = false;
};

} // namespace GlobalElements
} // namespace ovra
