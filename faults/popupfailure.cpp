#include "faults/popupfailure.h"

#include "faults/errorhandler.h"
#include "faults/failureseverity.h"
#include "ui_popupfailure.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupFailure::PopupFailure(ovra::GlobalElements::ErrorHandler *errors, QWidget *parent)
    : PopupBase(parent), ui(new Ui::PopupFailure), m_errors(errors)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, nullptr);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &QDialog::accept);
    if (m_errors) {
        connect(m_errors, &GlobalElements::ErrorHandler::SignalErrorListChanged, this,
                &PopupFailure::SlotErrorListChanged);
        SlotErrorListChanged();
    }
}

PopupFailure::~PopupFailure() = default;

void PopupFailure::Translate()
{
    ui->retranslateUi(this);
}

void PopupFailure::SetFailurePopupText(const QString &text)
{
    ui->plainTextEdit_Failure->setPlainText(text);
}

QString PopupFailure::GetFailurePopupText() const
{
    return ui->plainTextEdit_Failure->toPlainText();
}

void PopupFailure::SlotErrorListChanged()
{
    if (m_errors)
        SetFailurePopupText(GlobalElements::FailureSeverity::Lines(m_errors->GetProcessErrorList()));
}

} // namespace Popups
} // namespace ovra
