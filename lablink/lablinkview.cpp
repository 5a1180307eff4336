#include "lablink/lablinkview.h"

#include "lablink/lablink.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace LabLink {

LabLinkView::LabLinkView(LabLink *link, QWidget *parent)
    : PopupBase(parent), m_link(link), m_lines(new QLabel),
      m_close(AddButton(QStringLiteral("pushButton_LabLinkClose"), Verb::Neutral)),
      m_resend(AddButton(QStringLiteral("pushButton_LabLinkResend"), Verb::Action))
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
    Translate();
}

LabLinkView::~LabLinkView() = default;

void LabLinkView::Translate()
{
    SetTitle(tr("Labor-Verbindung"));
    m_close->setText(tr("Schließen"));
    m_resend->setText(tr("Verlauf senden"));
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
    m_lines->setText(lines.join(QLatin1Char('\n')));
}

} // namespace LabLink
} // namespace ovra
