#pragma once

#include "app/pageinterface.h"
#include "settings/pinguard.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTimer;

namespace Ui {
class NumPad;
}

namespace ovra {
namespace GlobalElements {

// The PIN pad in front of the service pages. The controller supplies the PIN; the pad only
// compares what was typed against it, and refuses entries for a while after too many wrong
// ones (Settings::PinGuard), saying so with the time left.
class NumPad : public QWidget
{
    Q_OBJECT

public:
    static constexpr int maxDigits = Settings::PinGuard::maxDigits;
    // Dynamic property set on the field while it shows a rejected entry; the style sheet
    // draws it red.
    static const char *const codeStateProperty;

    explicit NumPad(QWidget *parent = nullptr);
    ~NumPad() override;

    // Empties the field, makes it echo dots and directs the keys into it; status shows why
    // entries are refused (may be null). target is the page reported when the right PIN is
    // entered.
    void Initialize(QLineEdit *field, QLabel *status, ovra::GlobalElements::Pageinterface::en_pages target);

    bool HasCode() const { return m_hasCode; }
    bool IsShowingWrong() const;

    QSize sizeHint() const override;

public slots:
    void SetCode(unsigned int code);

signals:
    void SignalCorrectCode(ovra::GlobalElements::Pageinterface::en_pages target);
    void SignalWrongCode();

private:
    void OnDigit(const QString &digit);
    void OnClear();
    void OnOk();
    void ShowWrong(bool wrong);
    // The lock's text with the seconds left, or nothing once it has run out.
    void ShowLock();

    Ui::NumPad *ui;
    Settings::PinGuard m_guard;
    QTimer *m_lockTick;
    QPointer<QLineEdit> m_field;
    QPointer<QLabel> m_status;
    Pageinterface::en_pages m_target = Pageinterface::StartUp;
    unsigned int m_code = 0;
    bool m_hasCode = false;
};

} // namespace GlobalElements
} // namespace ovra
