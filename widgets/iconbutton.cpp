#include "widgets/iconbutton.h"

#include "widgets/buttonkit.h"
#include "widgets/iconcache.h"

#include <QIcon>
#include <QToolButton>

namespace ovra {
namespace GlobalElements {

Iconbutton::Iconbutton(QWidget *parent) : QWidget(parent), m_button(new QToolButton(this))
{
    ButtonKit::Embed(this, m_button);
    m_button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    connect(m_button, &QToolButton::clicked, this, &Iconbutton::Signal_ButtonClicked);
    connect(m_button, &QToolButton::toggled, this, &Iconbutton::SignalToggled);
}

void Iconbutton::SetIcon(const QString &resourcePath)
{
    m_iconPath = resourcePath;
    m_button->setIcon(IconCache::Get(resourcePath));
}

void Iconbutton::SetText(const QString &text)
{
    m_button->setText(text);
    m_button->setToolButtonStyle(text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
    UpdateIconSize();
}

QString Iconbutton::GetText() const
{
    return m_button->text();
}

void Iconbutton::SetCheckable(bool checkable)
{
    m_button->setCheckable(checkable);
}

void Iconbutton::SetChecked(bool checked)
{
    m_button->setChecked(checked);
}

bool Iconbutton::IsChecked() const
{
    return m_button->isChecked();
}

int Iconbutton::IconSideFor(const QSize &buttonSize, int captionHeight)
{
    const int side = qMin(buttonSize.width(), buttonSize.height());
    int icon = side * 6 / 10;
    if (captionHeight > 0) {
        // Keep the icon and the caption line inside the frame with a little air around them.
        const int room = buttonSize.height() - captionHeight - 12;
        icon = qMin(icon, room);
    }
    return qMax(icon, 8);
}

QSize Iconbutton::sizeHint() const
{
    return QSize(72, 72);
}

QSize Iconbutton::minimumSizeHint() const
{
    return QSize(48, 48);
}

bool Iconbutton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_button && ButtonKit::NeedsRefit(event))
        UpdateIconSize();
    return QWidget::eventFilter(watched, event);
}

void Iconbutton::UpdateIconSize()
{
    m_button->ensurePolished();
    const int caption = m_button->text().isEmpty() ? 0 : m_button->fontMetrics().height();
    const int side = IconSideFor(m_button->size(), caption);
    if (m_button->iconSize() != QSize(side, side))
        m_button->setIconSize(QSize(side, side));
}

} // namespace GlobalElements
} // namespace ovra
