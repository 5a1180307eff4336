#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupArgonFailure;
}

namespace ovra {
namespace Popups {

// Reports that the argon supply check failed and what to do about it.
class PopupArgonFailure : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupArgonFailure(QWidget *parent = nullptr);
    ~PopupArgonFailure() override;

    void Translate() override;

signals:
    void SignalPopupArgonFailureOK();

public slots:
    void on_pushButton_ArgonFailureOK_clicked();

private:
    std::unique_ptr<Ui::PopupArgonFailure> ui;
};

} // namespace Popups
} // namespace ovra
