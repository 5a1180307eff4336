#include "process/jobcodebadge.h"

#include "app/furnacestate.h"

#include <QEvent>

namespace ovra {
namespace Process {

JobCodeBadge::JobCodeBadge(const GlobalElements::FurnaceState &furnace, QWidget *parent)
    : QLabel(parent), m_furnace(furnace)
{
    setObjectName(QStringLiteral("label_jobProcess"));
    setStyleSheet(QStringLiteral("QLabel { color: #FFFFFF; font-size: 20px; font-weight: 600;"
                                 " border: 2px solid #E8702A; border-radius: 8px; padding: 2px 10px; }"));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setMaximumWidth(maxWidth);
    using GlobalElements::FurnaceState;
    connect(&furnace, &FurnaceState::PageChanged, this, &JobCodeBadge::Draw);
    connect(&furnace, &FurnaceState::FiringStarted, this, &JobCodeBadge::Draw);
    Draw();
}

void JobCodeBadge::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Draw();
    QLabel::changeEvent(event);
}

void JobCodeBadge::Draw()
{
    const QString job = m_furnace.CurrentFiring().job;
    const bool shown = m_furnace.CurrentPage() == GlobalElements::Pageinterface::ProcessProg && !job.isEmpty();
    // Beside a long program name the code keeps its ends, where codes differ.
    const QString text = shown ? tr("Auftrag %1").arg(job) : QString();
    setText(fontMetrics().elidedText(text, Qt::ElideMiddle, maxWidth - 28));
    setToolTip(text);
    setVisible(shown);
}

} // namespace Process
} // namespace ovra
