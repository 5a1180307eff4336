#include "process/firingsummaryview.h"

#include "app/captions.h"
#include "process/firingsummary.h"

#include <QCoreApplication>

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace Process {

namespace {
// More failures than this end in a count; the failure list page has them all.
constexpr int shownFailures = 3;
} // namespace

FiringSummaryView::FiringSummaryView(QWidget *parent)
    : QFrame(parent), m_symbol(new QLabel(this)), m_result(new QLabel(this)), m_rows(new QGridLayout),
      m_failureCaption(new QLabel(this)), m_failures(new QLabel(this))
{
    setObjectName(QStringLiteral("frame_processSummary"));
    setStyleSheet(QStringLiteral("QFrame#frame_processSummary { background: #FFFFFF; border: 1px solid #D5DCE3;"
                                 " border-radius: 12px; }"
                                 "QLabel { font-size: 17px; }"
                                 "QLabel[role=\"caption\"] { color: #53585B; }"
                                 "QLabel#label_processResultText { font-size: 20px; font-weight: bold; }"
                                 "QLabel#label_summaryFailures { font-weight: bold; }"));
    m_symbol->setObjectName(QStringLiteral("label_processResult"));
    m_symbol->setFixedSize(48, 48);
    m_result->setObjectName(QStringLiteral("label_processResultText"));
    m_result->setWordWrap(true);
    m_failureCaption->setProperty("role", QStringLiteral("caption"));
    m_failures->setObjectName(QStringLiteral("label_summaryFailures"));
    m_failures->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *head = new QHBoxLayout;
    head->setSpacing(10);
    head->addWidget(m_symbol);
    head->addWidget(m_result, 1);
    m_rows->setHorizontalSpacing(10);
    m_rows->setVerticalSpacing(2);
    m_rows->setColumnStretch(1, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(12, 8, 12, 8);
    column->setSpacing(6);
    column->addLayout(head);
    column->addLayout(m_rows);
    column->addSpacing(4);
    column->addWidget(m_failureCaption);
    column->addWidget(m_failures, 1);
    Refresh();
}

void FiringSummaryView::Follow(const FiringSummary *summary, const std::function<bool()> &fahrenheit)
{
    m_summary = summary;
    m_fahrenheit = fahrenheit;
    connect(summary, &FiringSummary::Changed, this, &FiringSummaryView::Refresh);
    Refresh();
}

void FiringSummaryView::Refresh()
{
    const bool shown = m_summary != nullptr && m_summary->IsShown();
    const SummaryText text = shown ? m_summary->Text(m_fahrenheit && m_fahrenheit()) : SummaryText();
    setVisible(shown);
    m_result->setText(text.result);
    const bool success = shown && m_summary->Succeeded();
    m_symbol->setStyleSheet(!shown    ? QString()
                            : success ? QStringLiteral("border-image: url(:/Prozess/success.png);")
                                      : QStringLiteral("border-image: url(:/Prozess/abort.png);"));
    while (QLayoutItem *item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (int i = 0; i < text.rows.size(); ++i) {
        auto *caption = new QLabel(text.rows.at(i).first, this);
        caption->setProperty("role", QStringLiteral("caption"));
        caption->setWordWrap(true);
        auto *value = new QLabel(text.rows.at(i).second, this);
        value->setStyleSheet(QStringLiteral("font-weight: bold;"));
        m_rows->addWidget(caption, i, 0);
        m_rows->addWidget(value, i, 1, Qt::AlignRight);
    }
    QStringList failures = text.failures.mid(0, shownFailures);
    if (text.failures.size() > shownFailures)
        failures << tr("und %1 weitere").arg(text.failures.size() - shownFailures);
    m_failureCaption->setText(QCoreApplication::translate(Mainwindow::Captions::context, Mainwindow::Captions::Fehler));
    m_failures->setText(text.failures.isEmpty() ? tr("Keine Fehler") : failures.join(QLatin1Char('\n')));
}

void FiringSummaryView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Refresh();
    QFrame::changeEvent(event);
}

} // namespace Process
} // namespace ovra
