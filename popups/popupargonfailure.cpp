#include "popups/popupargonfailure.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupArgonFailure::PopupArgonFailure(QWidget *parent)
    : PopupConfirm(Role::Danger, parent, "pushButton_ArgonFailureOK", nullptr)
{
    resize(640, 360);
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupArgonFailure::on_pushButton_ArgonFailureOK_clicked);
    Translate();
}

void PopupArgonFailure::Translate()
{
    SetTexts(QCoreApplication::translate(
        "PopupArgonFailure", "Überprüfung der Argon Versorgung\nfehlgeschlagen.\n\nBitte die Anschlüsse und "
                             "Eingangsdruck\nüberprüfen und den Prozess neu starten."));
}

void PopupArgonFailure::on_pushButton_ArgonFailureOK_clicked()
{
    emit SignalPopupArgonFailureOK();
    hide();
}

} // namespace Popups
} // namespace ovra
