#include "process/firingglanceview.h"

#include "app/furnacestate.h"
#include "process/firingglance.h"
#include "widgets/captionfit.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>

namespace ovra {
namespace Process {

namespace {
struct Look
{
    int largest; // px
    int smallest;
    bool bold;
};
// The temperature is what is read from across the room; the rest steps down to fit its
// column in every language before it would be cut.
constexpr Look temperatureLook{76, 72, true};
constexpr Look headLook{32, 20, true};
constexpr Look lineLook{22, 16, false};

QLabel *MakeLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

void FitLabel(QLabel *label, const Look &look)
{
    QFont font = label->font();
    font.setBold(look.bold);
    const int px = GlobalElements::CaptionFit::LargestPixels(font, label->text(), label->contentsRect().width(),
                                                             look.largest, look.smallest);
    label->setStyleSheet(QStringLiteral("font-size: %1px; font-weight: %2;").arg(px).arg(look.bold ? 700 : 400));
}
} // namespace

FiringGlanceView::FiringGlanceView(QWidget *parent)
    : QWidget(parent), m_temperature(MakeLabel("label_glanceTemperature", this)),
      m_stage(MakeLabel("label_glanceStage", this)), m_segment(MakeLabel("label_glanceSegment", this)),
      m_remaining(MakeLabel("label_glanceRemaining", this)), m_end(MakeLabel("label_glanceEnd", this)),
      m_progress(new QProgressBar(this))
{
    m_progress->setObjectName(QStringLiteral("progressBar_glance"));
    m_progress->setRange(0, 100);
    m_progress->setFormat(QStringLiteral("%p %"));
    m_progress->setFixedHeight(26);
    m_temperature->setMinimumHeight(92);
    m_temperature->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (QLabel *label : {m_stage, m_remaining})
        label->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    for (QLabel *label : {m_segment, m_end})
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(0);
    grid->addWidget(m_temperature, 0, 0, 2, 1);
    grid->addWidget(m_stage, 0, 1);
    grid->addWidget(m_segment, 1, 1);
    grid->addWidget(m_remaining, 0, 2);
    grid->addWidget(m_end, 1, 2);
    grid->addWidget(m_progress, 2, 0, 1, 3);
    // The temperature takes what it needs; stage and time share the rest.
    m_temperature->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    // Wide enough for "2732°F", so that stage and time stay put as the figures change; a
    // garbled reading must not push them off the page.
    m_temperature->setMinimumWidth(300);
    m_temperature->setMaximumWidth(340);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowMinimumHeight(2, 34);
    grid->setAlignment(m_progress, Qt::AlignBottom);
    Refresh();
}

void FiringGlanceView::Follow(const GlobalElements::FurnaceState *furnace, const ProgramRows &rows)
{
    using GlobalElements::FurnaceState;
    m_furnace = furnace;
    m_rows = rows;
    for (auto signal : {&FurnaceState::TemperatureChanged, &FurnaceState::FiringProgress, &FurnaceState::FiringOver,
                        &FurnaceState::FiringStarted})
        connect(furnace, signal, this, &FiringGlanceView::Refresh);
    connect(furnace, &FurnaceState::FiringEndChanged, this, &FiringGlanceView::Refresh);
    connect(furnace, &FurnaceState::FiringEnded, this, &FiringGlanceView::Refresh);
    connect(furnace, &FurnaceState::UnitChanged, this, &FiringGlanceView::Refresh);
    Refresh();
}

void FiringGlanceView::Refresh()
{
    Glance glance;
    if (m_furnace != nullptr) {
        const ProcessTime::Matrix *rows = m_rows ? m_rows(m_furnace->CurrentFiring().program) : nullptr;
        glance = FiringGlance::Of(*m_furnace, rows);
    }
    m_temperature->setText(glance.temperature);
    m_stage->setText(glance.stage);
    m_segment->setText(glance.segment);
    m_remaining->setText(glance.remaining);
    m_end->setText(glance.end);
    m_progress->setVisible(glance.percent >= 0);
    m_progress->setValue(qMax(0, glance.percent));
    Fit();
}

void FiringGlanceView::Fit()
{
    FitLabel(m_temperature, temperatureLook);
    FitLabel(m_stage, headLook);
    FitLabel(m_remaining, headLook);
    FitLabel(m_segment, lineLook);
    FitLabel(m_end, lineLook);
}

void FiringGlanceView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Refresh();
    QWidget::changeEvent(event);
}

void FiringGlanceView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Fit();
}

} // namespace Process
} // namespace ovra
