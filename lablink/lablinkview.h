#pragma once

#include "popups/popupbase.h"

class QLabel;
class QPushButton;

namespace ovra {
namespace LabLink {
class LabLink;
class LabLinkStatus;

// The service technician's look at the lab link: broker, connected or not, the last problem,
// the records waiting, and the whole history sent once more. Draws the link's status only.
class LabLinkView : public Popups::PopupBase
{
    Q_OBJECT

public:
    // Without a link (no lablink.ini, or a bad one) it says so and offers no sending.
    explicit LabLinkView(LabLink *link, QWidget *parent = nullptr);
    ~LabLinkView() override;

    void Translate() override;

private:
    void Draw();

    LabLink *m_link;
    const LabLinkStatus *m_status;
    LabLinkStatus *m_none = nullptr; // shown when there is no link
    QLabel *m_lines;
    QPushButton *m_close;
    QPushButton *m_resend;
};

} // namespace LabLink
} // namespace ovra
