#include "popups/popupargonfailure.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupArgonFailure::PopupArgonFailure(QWidget *parent)
    : PopupConfirm(Role::Failure, parent, "pushButton_ArgonFailureOK", nullptr)
{
    resize(640, 380);
    SetTitleIcon(QStringLiteral(":/Failure/schwer.png"));
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupArgonFailure::on_pushButton_ArgonFailureOK_clicked);
    Translate();
}

void PopupArgonFailure::Translate()
{
    SetTexts(QCoreApplication::translate("PopupArgonFailure", "Argon"),
             QCoreApplication::translate(
                 "PopupArgonFailure", "Überprüfung der Argon Versorgung\nfehlgeschlagen.\n\nBitte die Anschlüsse und "
                                      "Eingangsdruck\nüberprüfen und den Prozess neu starten."),
             QCoreApplication::translate("PopupArgonFailure", "OK"));
}

void PopupArgonFailure::on_pushButton_ArgonFailureOK_clicked()
{
    emit SignalPopupArgonFailureOK();
    hide();
}

} // namespace Popups
} // namespace ovra
