#include "widgets/widgetstyle.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

namespace ovra {
namespace GlobalElements {

void WidgetStyle::Repolish(QWidget *widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

void WidgetStyle::PaintBackground(QWidget *widget)
{
    QStyleOption option;
    option.initFrom(widget);
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
}

} // namespace GlobalElements
} // namespace ovra
