#include "popups/popupconfirm.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QVariant>

namespace ovra {
namespace Popups {

PopupConfirm::PopupConfirm(Role role, QWidget *parent, const char *okName, const char *cancelName) : PopupBase(parent)
{
    SetAccent(Accent::Danger);
    if (cancelName) {
        m_cancel = AddButton(QString::fromLatin1(cancelName), Verb::Neutral);
        connect(m_cancel, &QPushButton::clicked, this, [this] { Answer(false); });
    }
    m_ok = AddButton(QString::fromLatin1(okName), role == Role::Destructive ? Verb::Destructive : Verb::Action);
    connect(m_ok, &QPushButton::clicked, this, [this] { Answer(true); });
}

void PopupConfirm::SetTexts(const QString &title, const QString &message, const QString &okVerb,
                            const QString &cancelVerb)
{
    SetTitle(title);
    SetMessage(message);
    m_ok->setText(okVerb);
    if (m_cancel)
        m_cancel->setText(cancelVerb.isEmpty() ? QCoreApplication::translate("PopupConfirm", "Abbrechen") : cancelVerb);
}

void PopupConfirm::Answer(bool confirmed)
{
    emit SignalAnswered(confirmed);
    done(confirmed ? Accepted : Rejected);
}

} // namespace Popups
} // namespace ovra
