#include "faults/testdisplayelement.h"

#include "widgets/elidedlabel.h"
#include "widgets/iconbutton.h"
#include "widgets/widgetstyle.h"

#include <QHBoxLayout>
#include <QPointer>

namespace ovra {
namespace GlobalElements {

const QString TestDisplayElement::pendingIcon = QStringLiteral(":/Icons/processMark.png");
const QString TestDisplayElement::passIcon = QStringLiteral(":/Icons/processCheck.png");
const QString TestDisplayElement::failIcon = QStringLiteral(":/Icons/processFail.png");

TestDisplayElement::TestDisplayElement(QWidget *parent)
    : QWidget(parent), m_passKeyword(QStringLiteral("pass")), m_label(new ElidedLabel(this)),
      m_button(new Iconbutton(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 8, 4);
    layout->setSpacing(12);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_button);
    m_button->setFixedSize(56, 56);
    m_button->SetIcon(pendingIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TestDisplayElement::SetText(const QString &text)
{
    m_label->SetText(text);
}

QString TestDisplayElement::GetText() const
{
    return m_label->GetText();
}

QString TestDisplayElement::GetIconPath() const
{
    return m_button->GetIcon();
}

QString TestDisplayElement::IconForResult(const QString &result, const QString &passKeyword)
{
    if (result == passKeyword)
        return passIcon;
    if (result == QLatin1String("delete"))
        return pendingIcon;
    return failIcon;
}

QSize TestDisplayElement::sizeHint() const
{
    return QSize(400, 64);
}

QSize TestDisplayElement::minimumSizeHint() const
{
    return QSize(160, 64);
}

void TestDisplayElement::SetIconResult(const QString &result)
{
    const QString icon = IconForResult(result, m_passKeyword);
    // Listeners may rebuild the self-test list in response and take this row with it.
    QPointer<TestDisplayElement> alive(this);
    emit SignalSelftestResult(result);
    if (alive)
        m_button->SetIcon(icon);
}

void TestDisplayElement::paintEvent(QPaintEvent *)
{
    WidgetStyle::PaintBackground(this);
}

} // namespace GlobalElements
} // namespace ovra
