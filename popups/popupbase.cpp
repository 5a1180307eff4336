#include "popups/popupbase.h"

#include "widgets/widgetstyle.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>

namespace ovra {
namespace Popups {

namespace {
// How dark the page behind a popup gets.
const QColor dimColour(0, 0, 0, 110);
} // namespace

PopupBase::PopupBase(QWidget *parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setModal(true);
    if (parent) {
        setWindowFlags(Qt::Widget);
        hide(); // a child would otherwise show with its parent
    }
}

void PopupBase::Repolish(QWidget *widget)
{
    GlobalElements::WidgetStyle::Repolish(widget);
}

void PopupBase::setVisible(bool visible)
{
    if (visible && !isWindow())
        CoverWindow();
    QDialog::setVisible(visible);
    if (visible && !isWindow()) {
        raise();
        // Keys must not reach a field of the page behind: the popup's first field takes
        // them, or the popup itself.
        if (!isAncestorOf(QApplication::focusWidget())) {
            QWidget *first = this;
            for (QWidget *w = nextInFocusChain(); w != this && isAncestorOf(w); w = w->nextInFocusChain()) {
                if ((w->focusPolicy() & Qt::TabFocus) && w->isVisibleTo(this) && w->isEnabled()) {
                    first = w;
                    break;
                }
            }
            first->setFocus(Qt::PopupFocusReason);
        }
    }
}

void PopupBase::CoverWindow()
{
    QWidget *host = parentWidget()->window();
    if (!m_cardSize.isValid()) {
        // The form's own size is the card's; the popup itself now spans the window.
        m_cardSize = size();
        QWidget *card = findChild<QWidget *>(QStringLiteral("popupCard"));
        if (card && layout()) {
            card->setMinimumSize(m_cardSize);
            layout()->setAlignment(card, Qt::AlignCenter);
        }
    }
    if (parentWidget() != host) {
        // A page's popup must not be clipped to the page.
        setParent(host, Qt::Widget);
    }
    host->installEventFilter(this);
    setGeometry(host->rect());
}

bool PopupBase::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        setGeometry(parentWidget()->rect());
    return QDialog::eventFilter(watched, event);
}

void PopupBase::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Translate();
    QDialog::changeEvent(event);
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

// A touch beside the card lands on the dimmed page: it goes no further.
void PopupBase::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void PopupBase::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

void PopupBase::paintEvent(QPaintEvent *event)
{
    if (!isWindow())
        QPainter(this).fillRect(rect(), dimColour);
    QDialog::paintEvent(event);
}

} // namespace Popups
} // namespace ovra
