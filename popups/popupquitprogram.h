#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupQuitProgram;
}

namespace ovra {
namespace Popups {

// Asks before a program that is being edited is thrown away.
class PopupQuitProgram : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupQuitProgram(QWidget *parent = nullptr);
    ~PopupQuitProgram() override;

    void Translate() override;

signals:
    // Sent only when the user confirms.
    void SignalQuitProgram();

private slots:
    void SlotOk();

private:
    std::unique_ptr<Ui::PopupQuitProgram> ui;
};

} // namespace Popups
} // namespace ovra
