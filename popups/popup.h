#pragma once

#include "popups/popupbase.h"

class QPushButton;

namespace ovra {
namespace Popups {

// Asks which material the next process is for.
class Popup : public PopupBase
{
    Q_OBJECT

public:
    explicit Popup(QWidget *parent = nullptr);
    ~Popup() override;

    void Translate() override;

signals:
    // "Argon" or "Zirkon"; these words are protocol, not display text.
    void SignalPopupButton(const QString &material);

public slots:
    // Also called directly, without the popup on screen, to choose a material in code.
    void on_pushButton_ArgonPopup_clicked();
    void on_pushButton_ZirkonPopup_clicked();

private:
    QPushButton *m_argon;
    QPushButton *m_zirkon;
};

} // namespace Popups
} // namespace ovra
