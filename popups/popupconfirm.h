#pragma once

#include "popups/popupbase.h"

class QPushButton;

namespace ovra {
namespace Popups {

// A question with an action and a way out, or a notice with OK alone. The popups the window
// wires are thin subclasses: they give the texts, the button names the controller's contract
// knows, and turn the answer into their signal.
class PopupConfirm : public PopupBase
{
    Q_OBJECT

public:
    // Both under a red band. Destructive: the action cannot be undone and is red. Failure: a
    // notice of something that went wrong.
    enum class Role { Destructive, Failure };

signals:
    // Sent before the popup closes: true for the action, false for the way out.
    void SignalAnswered(bool confirmed);

protected:
    // cancelName nullptr: a notice with its action alone.
    PopupConfirm(Role role, QWidget *parent, const char *okName = "pushButton_OK",
                 const char *cancelName = "pushButton_Cancel");

    // An empty cancel verb reads "Abbrechen".
    void SetTexts(const QString &title, const QString &message, const QString &okVerb,
                  const QString &cancelVerb = QString());

private:
    void Answer(bool confirmed);

    QPushButton *m_ok;
    QPushButton *m_cancel = nullptr;
};

} // namespace Popups
} // namespace ovra
