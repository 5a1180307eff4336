#include "faults/popupdeletefailurelist.h"

#include "faults/errorhandler.h"
#include "faults/failureseverity.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

namespace {
// The card has room for this many; the failure list page shows them all.
constexpr int namedFailures = 4;
} // namespace

PopupDeleteFailureList::PopupDeleteFailureList(QWidget *parent, GlobalElements::ErrorHandler *errors)
    : PopupConfirm(Role::Destructive, parent, "pushButton_OKDel", "pushButton_XDel"), m_errors(errors)
{
    connect(this, &PopupConfirm::SignalAnswered, this, [this](bool confirmed) {
        if (confirmed)
            emit SignalPopupDeleteFailureListButton();
    });
    Translate();
}

void PopupDeleteFailureList::Translate()
{
    QString text = QCoreApplication::translate("PopupDeleteFailureList", "Fehlerliste wird endgültig gelöscht!");
    const QStringList codes =
        m_errors ? m_errors->GetErrorList().split(QLatin1Char('\n'), Qt::SkipEmptyParts) : QStringList();
    QStringList lines;
    for (const QString &code : codes.mid(0, namedFailures))
        lines << GlobalElements::FailureSeverity::Line(code);
    if (codes.size() > namedFailures)
        lines << QCoreApplication::translate("PopupDeleteFailureList", "und %1 weitere")
                     .arg(codes.size() - namedFailures);
    if (!lines.isEmpty())
        text += QStringLiteral("\n\n") + lines.join(QLatin1Char('\n'));
    SetTexts(QCoreApplication::translate("PopupDeleteFailureList", "Fehler löschen"), text,
             QCoreApplication::translate("PopupDeleteFailureList", "Löschen"));
}

void PopupDeleteFailureList::showEvent(QShowEvent *event)
{
    Translate(); // the list as it stands when asked
    PopupConfirm::showEvent(event);
}

} // namespace Popups
} // namespace ovra
