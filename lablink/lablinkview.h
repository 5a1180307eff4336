#pragma once

#include "lablink/labpairing.h"
#include "popups/popupbase.h"

class QLabel;
class QPushButton;

namespace ovra {
namespace Popups {
class PopupQRCode;
}
namespace LabLink {
class LabLink;
class LabLinkStatus;

// The service technician's look at the lab link: broker, connected or not, the last problem,
// the records waiting, and the whole history sent once more; and, when the lab view runs on
// the board, a phone paired with it by a QR code. Draws the link's and the pairing's state only.
class LabLinkView : public Popups::PopupBase
{
    Q_OBJECT

public:
    // Without a link (no lablink.ini, or a bad one) it says so and offers no sending.
    // The lab view's place comes from `<home>/lablink.ini`, [view].
    LabLinkView(LabLink *link, const QString &home, QWidget *parent = nullptr);
    ~LabLinkView() override;

    void Translate() override;
    LabPairing &Pairing() { return m_pairing; }

private:
    void Draw();
    void ShowPairing(const QString &address);
    void PairingFailed(LabPairing::Failure failure);

    LabLink *m_link;
    const LabLinkStatus *m_status;
    LabLinkStatus *m_none = nullptr; // shown when there is no link
    QLabel *m_lines;
    QPushButton *m_close;
    QPushButton *m_resend;
    QPushButton *m_pair;
    LabPairing m_pairing;
    bool m_pairingFailed = false;
    LabPairing::Failure m_pairingFailure = LabPairing::Failure::NotStarted;
    Popups::PopupQRCode *m_code;
};

} // namespace LabLink
} // namespace ovra
