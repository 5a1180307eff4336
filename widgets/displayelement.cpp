#include "widgets/displayelement.h"

#include "widgets/elidedlabel.h"
#include "widgets/widgetstyle.h"

#include <QHBoxLayout>

namespace ovra {
namespace GlobalElements {

DisplayElement::DisplayElement(QWidget *parent) : QWidget(parent), m_label(new ElidedLabel(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 12, 4);
    layout->addWidget(m_label);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString DisplayElement::GetText() const
{
    return m_label->GetText();
}

void DisplayElement::SetText(const QString &text)
{
    m_label->SetText(text);
}

QSize DisplayElement::sizeHint() const
{
    return QSize(240, 48);
}

QSize DisplayElement::minimumSizeHint() const
{
    return QSize(80, 44);
}

void DisplayElement::paintEvent(QPaintEvent *)
{
    WidgetStyle::PaintBackground(this);
}

} // namespace GlobalElements
} // namespace ovra
