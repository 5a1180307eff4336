#pragma once

#include <QDialog>

namespace ovra {
namespace Popups {

// What every popup shares: a frameless modal window that is transparent around its rounded
// card (the card itself is the form's "popupCard" frame), centred on the window it belongs
// to, and retranslated when the language changes. Popups close only through their own
// buttons, so that each close sends exactly the signal its button stands for.
class PopupBase : public QDialog
{
    Q_OBJECT

public:
    explicit PopupBase(QWidget *parent = nullptr);

    // Re-applies every visible text in the current language.
    virtual void Translate() = 0;

    // Re-evaluates style sheet rules that key on a dynamic property such as "invalid".
    static void Repolish(QWidget *widget);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void CenterOnParent();
};

} // namespace Popups
} // namespace ovra
