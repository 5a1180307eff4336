#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupDeleteProgram;
}

namespace ovra {
namespace Popups {

// Asks before a program is deleted.
class PopupDeleteProgram : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupDeleteProgram(QWidget *parent = nullptr);
    ~PopupDeleteProgram() override;

    void Translate() override;

signals:
    // Sent only when the deletion is confirmed.
    void SignalDeleteProgram();

private slots:
    void SlotOk();

private:
    std::unique_ptr<Ui::PopupDeleteProgram> ui;
};

} // namespace Popups
} // namespace ovra
