#include "widgets/button.h"

#include "widgets/buttonkit.h"
#include "widgets/captionfit.h"
#include "widgets/iconcache.h"
#include "widgets/widgetstyle.h"

#include <QEvent>
#include <QIcon>
#include <QPushButton>
#include <QShowEvent>
#include <QVariant>

namespace ovra {
namespace GlobalElements {

const char *const Button::captionSizeProperty = "captionSize";

Button::Button(QWidget *parent) : QWidget(parent), m_button(new QPushButton(this))
{
    ButtonKit::Embed(this, m_button);
    m_button->setIconSize(QSize(iconSide, iconSide));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    connect(m_button, &QPushButton::clicked, this, [this] { emit SignalButtonClicked(m_nextPage); });
    connect(m_button, &QPushButton::toggled, this, &Button::SignalToggled);
}

void Button::SetText(const QString &text)
{
    m_caption = text;
    RefitCaption();
}

QString Button::GetText() const
{
    return m_caption;
}

void Button::SetIcon(const QString &resourcePath)
{
    m_iconPath = resourcePath;
    // The tile's fixed side, not its geometry: a form sets the icon before the tile is laid out.
    m_button->setIcon(IconCache::Get(resourcePath, iconSide));
    RefitCaption();
}

void Button::SetNextPageIndex(Pageinterface::en_pages page)
{
    m_nextPage = page;
}

void Button::SetCheckable(bool checkable)
{
    m_button->setCheckable(checkable);
}

void Button::SetChecked(bool checked)
{
    m_button->setChecked(checked);
}

bool Button::IsChecked() const
{
    return m_button->isChecked();
}

QSize Button::sizeHint() const
{
    return QSize(240, 80);
}

QSize Button::minimumSizeHint() const
{
    return QSize(120, 64);
}

bool Button::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_button && ButtonKit::NeedsRefit(event))
        RefitCaption();
    return QWidget::eventFilter(watched, event);
}

void Button::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        RefitCaption();
    QWidget::changeEvent(event);
}

void Button::showEvent(QShowEvent *event)
{
    if (m_refitWhenShown)
        RefitCaption();
    QWidget::showEvent(event);
}

void Button::RefitCaption()
{
    // Re-polishing for a new caption size sends a font change back through the filter.
    if (m_refitting)
        return;
    // A button hidden on purpose (a language the furnace does not offer) is not measured:
    // its caption may be in a script whose fallback font alone costs megabytes to load.
    m_refitWhenShown = isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (m_refitWhenShown)
        return;
    m_refitting = true;

    const QRect room = ButtonKit::CaptionRoom(m_button);
    int width = room.width();
    if (!m_button->icon().isNull())
        width -= iconSide + iconGap;

    // German captions are long: a slightly smaller caption reads better than a shortened
    // one, so the sizes are tried from large to small before anything is elided.
    QFont font = m_button->font();
    QString fitted;
    bool elided = true;
    int chosen = captionPixelSizes.front();
    for (const int pixels : captionPixelSizes) {
        font.setPixelSize(pixels);
        const QFontMetrics metrics(font);
        const int maxLines = qBound(1, room.height() / qMax(1, metrics.lineSpacing()), 2);
        fitted = CaptionFit::Fit(m_caption, metrics, width, maxLines, &elided);
        chosen = pixels;
        if (!elided)
            break;
    }

    if (m_button->property(captionSizeProperty).toInt() != chosen) {
        m_button->setProperty(captionSizeProperty, chosen);
        WidgetStyle::Repolish(m_button);
    }
    if (m_button->text() != fitted)
        m_button->setText(fitted);
    m_button->setToolTip(elided ? CaptionFit::DisplayText(m_caption) : QString());
    m_refitting = false;
}

} // namespace GlobalElements
} // namespace ovra
