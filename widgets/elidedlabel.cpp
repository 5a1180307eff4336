#include "widgets/elidedlabel.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace ovra {
namespace GlobalElements {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::SetText(const QString &text)
{
    setText(text);
    UpdateToolTip();
}

bool ElidedLabel::IsElided() const
{
    return ShownText() != text();
}

QSize ElidedLabel::sizeHint() const
{
    const QMargins m = contentsMargins();
    return QSize(fontMetrics().horizontalAdvance(text()) + m.left() + m.right() + 2 * margin(),
                 fontMetrics().height() + m.top() + m.bottom() + 2 * margin());
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QMargins m = contentsMargins();
    return QSize(fontMetrics().horizontalAdvance(QStringLiteral("…")) + m.left() + m.right(),
                 fontMetrics().height() + m.top() + m.bottom());
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    style()->drawItemText(&painter, room, int(alignment()) | Qt::TextSingleLine, palette(), isEnabled(), ShownText(),
                          foregroundRole());
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    UpdateToolTip();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        UpdateToolTip();
}

QString ElidedLabel::ShownText() const
{
    const int width = contentsRect().width() - 2 * margin();
    // Line breaks from the controller would otherwise be drawn as boxes on a single line.
    QString line = text();
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return fontMetrics().elidedText(line, Qt::ElideRight, width);
}

void ElidedLabel::UpdateToolTip()
{
    setToolTip(IsElided() ? text() : QString());
}

} // namespace GlobalElements
} // namespace ovra
