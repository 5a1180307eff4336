#include "faults/popupdeletefailurelist.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupDeleteFailureList::PopupDeleteFailureList(QWidget *parent)
    : PopupConfirm(Role::Destructive, parent, "pushButton_OKDel", "pushButton_XDel")
{
    connect(this, &PopupConfirm::SignalAnswered, this, [this](bool confirmed) {
        if (confirmed)
            emit SignalPopupDeleteFailureListButton();
    });
    Translate();
}

void PopupDeleteFailureList::Translate()
{
    SetTexts(QCoreApplication::translate("PopupDeleteFailureList", "Fehler löschen"),
             QCoreApplication::translate("PopupDeleteFailureList", "Fehlerliste wird endgültig gelöscht!"),
             QCoreApplication::translate("PopupDeleteFailureList", "Löschen"));
}

} // namespace Popups
} // namespace ovra
