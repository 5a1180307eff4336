#include "records/firingdetailview.h"

#include "records/firingpainter.h"
#include "ui_firingdetailview.h"

#include <QEvent>
#include <QPainter>
#include <QScroller>

namespace ovra {
namespace Records {

FiringDetailView::FiringDetailView(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui_FiringDetailView>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground, true);
    m_ui->widget_recordChart->installEventFilter(this);
    QScroller::grabGesture(m_ui->listWidget_recordFacts->viewport(), QScroller::LeftMouseButtonGesture);
    m_ui->widget_closeFiringDetail->SetIcon(QStringLiteral(":/Icons/back.png"));
    m_ui->widget_homeFiringDetail->SetIcon(QStringLiteral(":/Icons/home.png"));
    connect(m_ui->widget_homeFiringDetail, &GlobalElements::Iconbutton::Signal_ButtonClicked, this,
            &FiringDetailView::SignalHome);
    connect(m_ui->widget_closeFiringDetail, &GlobalElements::Iconbutton::Signal_ButtonClicked, this,
            &FiringDetailView::SignalClose);
}

FiringDetailView::~FiringDetailView() = default;

void FiringDetailView::SetRecord(const FiringRecord &record, bool fahrenheit)
{
    m_record = record;
    m_fahrenheit = fahrenheit;
    // About two points per pixel of the chart's width: all an 800 px screen can show.
    m_series = FiringChart::Build(record, fahrenheit, 1200);
    Retranslate();
    m_ui->listWidget_recordFacts->scrollToTop();
    m_ui->widget_recordChart->update();
}

QStringList FiringDetailView::Facts() const
{
    QStringList lines;
    for (int i = 0; i < m_ui->listWidget_recordFacts->count(); ++i)
        lines << m_ui->listWidget_recordFacts->item(i)->text();
    return lines;
}

bool FiringDetailView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->widget_recordChart && event->type() == QEvent::Paint) {
        QPainter painter(m_ui->widget_recordChart);
        FiringPainter::Chart(&painter, QRectF(m_ui->widget_recordChart->rect()).adjusted(0, 4, 0, -2), m_series,
                             m_fahrenheit, 16);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FiringDetailView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void FiringDetailView::Retranslate()
{
    const FiringSummary &s = m_record.summary;
    m_ui->label_FiringDetailTitle->setText(s.program);
    m_ui->label_FiringDetailInfo->setText(FiringPainter::ResultText(s.result));
    m_ui->label_FiringDetailNote->setText(
        QStringLiteral("<span style='color:#E8702A; font-weight:bold'>&#9473;&#9473;</span> %1"
                       "&nbsp;&nbsp;&nbsp;<span style='color:#22313F'>&#9588;&#9588;</span> %2")
            .arg(tr("gemessen").toHtmlEscaped(), tr("geplant").toHtmlEscaped()));
    QListWidget *facts = m_ui->listWidget_recordFacts;
    facts->clear();
    const auto heading = [facts](const QString &text) {
        auto *item = new QListWidgetItem(text, facts);
        QFont font = item->font();
        font.setBold(true);
        item->setFont(font);
    };
    if (!s.job.isEmpty()) {
        heading(tr("Auftrag"));
        facts->addItem(s.job);
    }
    heading(tr("Start"));
    facts->addItem(QStringLiteral("%1 %2").arg(s.startDate, s.startTime).trimmed());
    heading(tr("Dauer"));
    facts->addItem(FiringChart::DurationText(s.seconds));
    if (m_record.preDryMinutes > 0) {
        heading(tr("Vortrocknen"));
        facts->addItem(tr("%1 min").arg(m_record.preDryMinutes));
    }
    heading(tr("Fehler"));
    if (m_record.failures.isEmpty())
        facts->addItem(tr("Keine"));
    for (const auto &failure : qAsConst(m_record.failures))
        facts->addItem(failure.first + QLatin1Char('\n') + failure.second);
}

} // namespace Records
} // namespace ovra
