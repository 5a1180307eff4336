#include "popups/popupconfirm.h"

#include "ui_popupconfirm.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupConfirm::PopupConfirm(Role role, QWidget *parent, const char *okName, const char *cancelName)
    : PopupBase(parent), ui(new Ui::PopupConfirm)
{
    ui->setupUi(this);
    ui->frame_Accent->setProperty("accent", role == Role::Danger ? "red" : "amber");
    ui->pushButton_OK->setObjectName(QString::fromLatin1(okName));
    if (cancelName)
        ui->pushButton_Cancel->setObjectName(QString::fromLatin1(cancelName));
    else
        ui->pushButton_Cancel->hide();
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, cancelName ? ui->pushButton_Cancel : nullptr);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, [this] { Answer(true); });
    connect(ui->pushButton_Cancel, &QPushButton::clicked, this, [this] { Answer(false); });
}

PopupConfirm::~PopupConfirm() = default;

void PopupConfirm::SetTexts(const QString &message, const QString &title)
{
    ui->label_Message->setText(message);
    ui->label_Title->setText(title);
    ui->label_Title->setVisible(!title.isEmpty());
}

void PopupConfirm::Answer(bool confirmed)
{
    emit SignalAnswered(confirmed);
    done(confirmed ? Accepted : Rejected);
}

} // namespace Popups
} // namespace ovra
