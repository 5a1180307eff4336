#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupLeaveNewProg;
}

namespace ovra {
namespace Popups {

// Asks before the program editor is left with a program that has not been saved.
class PopupLeaveNewProg : public PopupBase
{
    Q_OBJECT

public:
    enum class Destination { MainMenu, Back };

    explicit PopupLeaveNewProg(Destination destination, QWidget *parent = nullptr);
    ~PopupLeaveNewProg() override;

    Destination GetDestination() const { return m_destination; }
    QString GetMessage() const;

    void Translate() override;

signals:
    // true: leave and drop the table; false: stay in the editor.
    void SignalLeave(bool confirmed);

private slots:
    void SlotOk();
    void SlotCancel();

private:
    std::unique_ptr<Ui::PopupLeaveNewProg> ui;
    Destination m_destination;
};

} // namespace Popups
} // namespace ovra
