#include "records/firinghistoryview.h"

#include "records/firingchart.h"
#include "records/firingpainter.h"
#include "ui_firinghistoryview.h"

#include <QEvent>
#include <QPainter>
#include <QScroller>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

namespace ovra {
namespace Records {

namespace {
enum Role { IdRole = Qt::UserRole + 1, WhenRole, ProgramRole, DurationRole, ResultRole, JobRole };

// One firing a row: result symbol, program over date and time, duration at the right.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return QSize(option.rect.width(), FiringHistoryView::rowHeight);
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        const QRect card = option.rect.adjusted(16, 4, -12, -4);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QColor(0xD5, 0xDC, 0xE3));
        // The row a finger is on (selected on the press) answers at once, in the pressed tint.
        painter->setBrush((option.state & QStyle::State_Selected) ? QColor(0xFD, 0xE9, 0xDD) : QColor(Qt::white));
        painter->drawRoundedRect(QRectF(card).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
        const int side = card.height() - 16;
        FiringPainter::Symbol(painter, QRectF(card.left() + 12, card.top() + 8, side, side),
                              index.data(ResultRole).toString());
        const int textLeft = card.left() + 24 + side;
        const int durationWidth = 130;
        QFont font = painter->font();
        font.setPixelSize(22);
        font.setBold(true);
        painter->setFont(font);
        painter->setPen(QColor(0x22, 0x31, 0x3F));
        const QRect top(textLeft, card.top() + 4, card.right() - durationWidth - textLeft, card.height() / 2);
        painter->drawText(
            top, Qt::AlignLeft | Qt::AlignBottom,
            painter->fontMetrics().elidedText(index.data(ProgramRole).toString(), Qt::ElideRight, top.width()));
        painter->drawText(QRect(card.right() - durationWidth, card.top(), durationWidth - 16, card.height()),
                          Qt::AlignRight | Qt::AlignVCenter, index.data(DurationRole).toString());
        font.setPixelSize(18);
        font.setBold(false);
        painter->setFont(font);
        painter->setPen(QColor(0x53, 0x58, 0x5B));
        const QRect bottom(textLeft, card.top() + card.height() / 2 + 2, top.width(), card.height() / 2 - 6);
        const QString when = index.data(WhenRole).toString();
        painter->drawText(bottom, Qt::AlignLeft | Qt::AlignTop, when);
        // The job code after the date, in the program's colour: what the lab looks a firing up by.
        const QString job = index.data(JobRole).toString();
        if (!job.isEmpty()) {
            const QRect rest = bottom.adjusted(painter->fontMetrics().horizontalAdvance(when) + 24, 0, 0, 0);
            painter->setPen(QColor(0x22, 0x31, 0x3F));
            painter->drawText(rest, Qt::AlignLeft | Qt::AlignTop,
                              painter->fontMetrics().elidedText(FiringHistoryView::tr("Auftrag %1").arg(job),
                                                                Qt::ElideRight, rest.width()));
        }
        painter->restore();
    }
};
} // namespace

FiringHistoryView::FiringHistoryView(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui_FiringHistoryView>()), m_model(new QStandardItemModel(this))
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground, true);
    m_ui->listView_firings->setModel(m_model);
    m_ui->listView_firings->setItemDelegate(new RowDelegate(m_ui->listView_firings));
    // A finger drags the list; a tap without movement still opens a row.
    QScroller::grabGesture(m_ui->listView_firings->viewport(), QScroller::LeftMouseButtonGesture);
    m_ui->widget_closeFiringHistory->SetIcon(QStringLiteral(":/Icons/back.png"));
    m_ui->widget_homeFiringHistory->SetIcon(QStringLiteral(":/Icons/home.png"));
    connect(m_ui->widget_homeFiringHistory, &GlobalElements::Iconbutton::Signal_ButtonClicked, this,
            &FiringHistoryView::SignalHome);
    connect(m_ui->widget_closeFiringHistory, &GlobalElements::Iconbutton::Signal_ButtonClicked, this,
            &FiringHistoryView::SignalClose);
    connect(m_ui->listView_firings, &QListView::clicked, this, [this](const QModelIndex &index) { Open(index.row()); });
    // The texts are written when the list is filled: until then there is nothing to translate.
}

FiringHistoryView::~FiringHistoryView() = default;

void FiringHistoryView::SetFirings(const QList<FiringSummary> &firings)
{
    m_model->clear();
    for (const FiringSummary &firing : firings) {
        auto *item = new QStandardItem;
        item->setData(firing.id, IdRole);
        item->setData(QStringLiteral("%1  %2").arg(firing.startDate, firing.startTime).trimmed(), WhenRole);
        item->setData(firing.program, ProgramRole);
        item->setData(FiringChart::DurationText(firing.seconds), DurationRole);
        item->setData(firing.result, ResultRole);
        item->setData(firing.job, JobRole);
        item->setData(FiringPainter::ResultText(firing.result), Qt::AccessibleTextRole);
        m_model->appendRow(item);
    }
    m_ui->listView_firings->scrollToTop();
    Retranslate();
}

int FiringHistoryView::Count() const
{
    return m_model->rowCount();
}

void FiringHistoryView::Open(int row)
{
    if (row >= 0 && row < m_model->rowCount())
        emit SignalOpen(m_model->item(row)->data(IdRole).toLongLong());
}

void FiringHistoryView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void FiringHistoryView::Retranslate()
{
    m_ui->label_FiringHistoryTitle->setText(tr("Brennprotokolle").toUpper());
    m_ui->label_FiringHistoryInfo->setText(tr("Brände: %1").arg(m_model->rowCount()));
    m_ui->label_FiringHistoryNote->setText(m_model->rowCount() == 0 ? tr("Noch kein Brand aufgezeichnet") : QString());
}

} // namespace Records
} // namespace ovra
