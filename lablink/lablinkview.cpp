#include "lablink/lablinkview.h"

#include "lablink/lablink.h"
#include "popups/popupqrcode.h"
#include "settings/qrcode.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace LabLink {

LabLinkView::LabLinkView(LabLink *link, const QString &home, QWidget *parent)
    : PopupBase(parent), m_link(link), m_lines(new QLabel),
      m_close(AddButton(QStringLiteral("pushButton_LabLinkClose"), Verb::Neutral)),
      m_resend(AddButton(QStringLiteral("pushButton_LabLinkResend"), Verb::Action)), m_pair(new QPushButton),
      m_pairing(LabViewConfig::Load(home)), m_code(new Popups::PopupQRCode(this))
{
    resize(560, 360);
    SetTitleIcon(QStringLiteral(":/Icons/records.png"));
    if (link == nullptr)
        m_none = new LabLinkStatus(this);
    m_status = link != nullptr ? &link->Status() : m_none;
    m_lines->setObjectName(QStringLiteral("label_LabLinkStatus"));
    m_lines->setProperty("popupRole", QStringLiteral("message"));
    m_lines->setWordWrap(true);
    Body()->addWidget(m_lines, 1);
    m_resend->setEnabled(link != nullptr);
    connect(m_close, &QPushButton::clicked, this, &QDialog::accept);
    if (link != nullptr)
        connect(m_resend, &QPushButton::clicked, link, &LabLink::ResendHistory);
    connect(m_status, &LabLinkStatus::Changed, this, &LabLinkView::Draw);
    // Beneath the status, not in the button row: three captions there do not fit every language.
    m_pair->setObjectName(QStringLiteral("pushButton_LabLinkPair"));
    m_pair->setFocusPolicy(Qt::NoFocus);
    m_pair->setMinimumHeight(64);
    m_pair->setProperty("verb", QStringLiteral("action"));
    Body()->addWidget(m_pair, 0, Qt::AlignLeft);
    m_pair->setVisible(m_pairing.Config().Available());
    if (m_pairing.Config().Available())
        resize(560, 440);
    connect(m_pair, &QPushButton::clicked, this, [this] {
        m_pair->setEnabled(false);
        m_pairingFailed = false;
        Draw();
        m_pairing.Start();
    });
    connect(&m_pairing, &LabPairing::Paired, this, &LabLinkView::ShowPairing);
    connect(&m_pairing, &LabPairing::Failed, this, &LabLinkView::PairingFailed);
    Translate();
}

LabLinkView::~LabLinkView() = default;

void LabLinkView::Translate()
{
    SetTitle(tr("Labor-Verbindung"));
    m_close->setText(tr("Schließen"));
    m_resend->setText(tr("Verlauf senden"));
    m_pair->setText(tr("Laboransicht koppeln"));
    Draw();
}

void LabLinkView::Draw()
{
    QStringList lines;
    lines << tr("Server: %1").arg(m_status->IsConfigured() ? m_status->Broker() : QStringLiteral("-"));
    lines << tr("Zustand: %1").arg(m_status->StateText());
    if (!m_status->ProblemText().isEmpty())
        lines << tr("Letzter Fehler: %1").arg(m_status->ProblemText());
    lines << tr("Wartende Protokolle: %1").arg(m_status->Waiting());
    if (m_pairingFailed) {
        lines << (m_pairingFailure == LabPairing::Failure::TimedOut
                      ? tr("Die Laboransicht antwortet nicht.")
                      : tr("Die Laboransicht konnte nicht gekoppelt werden."));
    }
    m_lines->setText(lines.join(QLatin1Char('\n')));
}

void LabLinkView::ShowPairing(const QString &address)
{
    m_pair->setEnabled(true);
    m_code->SetCode(Settings::QrCode::Encode(address.toUtf8()));
    m_code->SetCaption(address);
    m_code->open();
}

void LabLinkView::PairingFailed(LabPairing::Failure failure)
{
    m_pair->setEnabled(true);
    m_pairingFailed = true;
    m_pairingFailure = failure;
    Draw();
}

} // namespace LabLink
} // namespace ovra
