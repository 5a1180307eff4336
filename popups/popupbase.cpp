#include "popups/popupbase.h"

#include "widgets/widgetstyle.h"

#include <QEvent>
#include <QKeyEvent>

namespace ovra {
namespace Popups {

PopupBase::PopupBase(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setModal(true);
    // The corners outside the card's radius must show the page underneath.
    setAttribute(Qt::WA_TranslucentBackground);
}

void PopupBase::Repolish(QWidget *widget)
{
    GlobalElements::WidgetStyle::Repolish(widget);
}

void PopupBase::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Translate();
    QDialog::changeEvent(event);
}

void PopupBase::showEvent(QShowEvent *event)
{
    // QDialog centres only on the first show; the window may have moved since.
    CenterOnParent();
    QDialog::showEvent(event);
}

void PopupBase::keyPressEvent(QKeyEvent *event)
{
    // Escape would reject() without the signal the cancel button sends.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void PopupBase::CenterOnParent()
{
    const QWidget *host = parentWidget() ? parentWidget()->window() : nullptr;
    if (!host)
        return;
    const QPoint origin = host->mapToGlobal(QPoint(0, 0));
    move(origin + QPoint((host->width() - width()) / 2, (host->height() - height()) / 2));
}

} // namespace Popups
} // namespace ovra
