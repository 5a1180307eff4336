#include "widgets/displayelementicon.h"

#include "widgets/elidedlabel.h"
#include "widgets/iconcache.h"
#include "widgets/widgetstyle.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace ovra {
namespace GlobalElements {

DisplayElementIcon::DisplayElementIcon(QWidget *parent)
    : QWidget(parent), m_icon(new QLabel(this)), m_label(new ElidedLabel(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 12, 4);
    layout->setSpacing(8);
    layout->addWidget(m_icon);
    layout->addWidget(m_label, 1);
    m_icon->setAlignment(Qt::AlignCenter);
    m_icon->hide();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString DisplayElementIcon::GetText() const
{
    return m_label->GetText();
}

void DisplayElementIcon::SetText(const QString &text)
{
    m_label->SetText(text);
}

void DisplayElementIcon::SetIcon(const QString &resourcePath)
{
    m_iconPath = resourcePath;
    m_icon->setVisible(!resourcePath.isEmpty());
    // Without an icon the text starts where it does in a plain value box.
    layout()->setContentsMargins(resourcePath.isEmpty() ? 12 : 8, 4, 12, 4);
    UpdatePixmap();
}

int DisplayElementIcon::IconSideFor(int boxHeight)
{
    return qBound(8, boxHeight - 12, 40);
}

QSize DisplayElementIcon::sizeHint() const
{
    return QSize(200, 52);
}

QSize DisplayElementIcon::minimumSizeHint() const
{
    return QSize(m_iconPath.isEmpty() ? 80 : 120, 44);
}

void DisplayElementIcon::paintEvent(QPaintEvent *)
{
    WidgetStyle::PaintBackground(this);
}

void DisplayElementIcon::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    UpdatePixmap();
}

void DisplayElementIcon::UpdatePixmap()
{
    if (m_iconPath.isEmpty()) {
        m_icon->clear();
        return;
    }
    const int side = IconSideFor(height());
    m_icon->setFixedSize(side, side);
    m_icon->setPixmap(IconCache::Get(m_iconPath).pixmap(side, side));
}

} // namespace GlobalElements
} // namespace ovra
