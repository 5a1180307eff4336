#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace ovra {
namespace GlobalElements {
class Iconbutton;
class Keyboard;
} // namespace GlobalElements

namespace Process {

class JobCode;

// The panel's keyboard for a firing's job code, over the whole window: the code as it stands,
// the keyboard's keys with "/" and "." beside them, cancel and done. The field only mirrors the
// code; every key, on screen or from a scanner, goes to the code.
class JobCodeKeyboard : public QWidget
{
    Q_OBJECT

public:
    // `cover`: the widget the keyboard lies over, and its parent.
    JobCodeKeyboard(JobCode *code, QWidget *cover);

    void Open();
    void Done();   // the code stands as typed
    void Cancel(); // the code as it was when the keyboard opened

protected:
    void changeEvent(QEvent *event) override;

private:
    void Retranslate();
    void Show(const QString &text);

    JobCode *m_code;
    QWidget *m_cover;
    QString m_before;
    QLabel *m_title;
    QLabel *m_hint;
    QLineEdit *m_field;
    GlobalElements::Keyboard *m_keyboard;
    GlobalElements::Iconbutton *m_cancel;
    GlobalElements::Iconbutton *m_done;
};

} // namespace Process
} // namespace ovra
