#include "faults/popupfailure.h"

#include "faults/errorhandler.h"
#include "faults/failureseverity.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace Popups {

PopupFailure::PopupFailure(ovra::GlobalElements::ErrorHandler *errors, QWidget *parent)
    : PopupBase(parent), m_list(new QPlainTextEdit), m_ok(AddButton(QStringLiteral("pushButton_OK"), Verb::Action)),
      m_errors(errors)
{
    resize(560, 380);
    SetAccent(Accent::Danger);
    SetTitleIcon(QStringLiteral(":/Failure/schwer.png"));
    m_list->setObjectName(QStringLiteral("plainTextEdit_Failure"));
    m_list->setReadOnly(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    Body()->addWidget(m_list, 1);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    Translate();
    if (m_errors) {
        connect(m_errors, &GlobalElements::ErrorHandler::SignalErrorListChanged, this,
                &PopupFailure::SlotErrorListChanged);
    }
}

PopupFailure::~PopupFailure() = default;

void PopupFailure::Translate()
{
    SetTitle(tr("Fehler"));
    m_ok->setText(tr("OK"));
    SlotErrorListChanged(); // the severity words are in the language shown
}

void PopupFailure::SetFailurePopupText(const QString &text)
{
    m_list->setPlainText(text);
}

QString PopupFailure::GetFailurePopupText() const
{
    return m_list->toPlainText();
}

void PopupFailure::SlotErrorListChanged()
{
    if (m_errors)
        SetFailurePopupText(GlobalElements::FailureSeverity::Lines(m_errors->GetProcessErrorList()));
}

} // namespace Popups
} // namespace ovra
