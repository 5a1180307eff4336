#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupConfirm;
}

namespace ovra {
namespace Popups {

// A question with OK and cancel, or a notice with OK alone, on a card whose band shows how
// much is at stake. The popups the window wires are thin subclasses: they give the text,
// the button names the controller's contract knows, and turn the answer into their signal.
class PopupConfirm : public PopupBase
{
    Q_OBJECT

public:
    enum class Role { Danger, Caution }; // red band: something is lost; amber: think twice

    ~PopupConfirm() override;

signals:
    // Sent before the popup closes: true for OK, false for cancel.
    void SignalAnswered(bool confirmed);

protected:
    // cancelName nullptr: a notice with OK alone.
    PopupConfirm(Role role, QWidget *parent, const char *okName = "pushButton_OK",
                 const char *cancelName = "pushButton_Cancel");

    // An empty title leaves the card without one.
    void SetTexts(const QString &message, const QString &title = QString());

private:
    void Answer(bool confirmed);

    std::unique_ptr<Ui::PopupConfirm> ui;
};

} // namespace Popups
} // namespace ovra
