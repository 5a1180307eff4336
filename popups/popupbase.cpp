#include "popups/popupbase.h"

#include "widgets/iconcache.h"
#include "widgets/widgetstyle.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace Popups {

namespace {
// How dark the page behind a popup gets.
const QColor dimColour(0, 0, 0, 110);
// A finger-sized verb: wide enough for "Zurücksetzen" in every language the panel speaks.
constexpr int buttonMinWidth = 168;
constexpr int iconSide = 48;
} // namespace

PopupBase::PopupBase(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_card(new QFrame(this)), m_band(new QFrame(m_card)),
      m_titleIcon(new QLabel(m_card)), m_title(new QLabel(m_card)), m_message(new QLabel(m_card)),
      m_body(new QVBoxLayout), m_buttonRow(new QHBoxLayout)
{
    setModal(true);
    if (parent) {
        setWindowFlags(Qt::Widget);
        hide(); // a child would otherwise show with its parent
    }
    resize(560, 300);

    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    m_card->setObjectName(QStringLiteral("popupCard"));
    outer->addWidget(m_card);

    auto *card = new QVBoxLayout(m_card);
    card->setContentsMargins(0, 0, 0, 0);
    card->setSpacing(0);
    m_band->setProperty("popupRole", QStringLiteral("accent"));
    m_band->setFixedHeight(14);
    m_band->hide();
    card->addWidget(m_band);

    auto *content = new QVBoxLayout;
    content->setContentsMargins(28, 20, 28, 20);
    content->setSpacing(16);
    card->addLayout(content, 1);

    auto *titleRow = new QHBoxLayout;
    titleRow->setSpacing(16);
    m_titleIcon->setFixedSize(iconSide, iconSide);
    m_titleIcon->setScaledContents(true);
    m_titleIcon->hide();
    m_title->setObjectName(QStringLiteral("label_Title"));
    m_title->setProperty("popupRole", QStringLiteral("title"));
    m_title->setWordWrap(true);
    m_title->hide();
    titleRow->addWidget(m_titleIcon);
    titleRow->addWidget(m_title, 1);
    content->addLayout(titleRow);

    m_message->setObjectName(QStringLiteral("label_Message"));
    m_message->setProperty("popupRole", QStringLiteral("message"));
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_message->hide();
    content->addWidget(m_message);

    m_body->setSpacing(12);
    content->addLayout(m_body, 1);

    m_buttonRow->setSpacing(16);
    content->addLayout(m_buttonRow);
}

void PopupBase::SetAccent(Accent accent)
{
    m_band->setVisible(accent != Accent::None);
    m_band->setProperty("accent", accent == Accent::Danger ? "red" : "amber");
    Repolish(m_band);
}

void PopupBase::SetTitle(const QString &title)
{
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
}

void PopupBase::SetTitleIcon(const QString &resource)
{
    m_titleIcon->setPixmap(GlobalElements::IconCache::Get(resource, iconSide).pixmap(iconSide, iconSide));
    m_titleIcon->setVisible(!resource.isEmpty());
}

void PopupBase::SetMessage(const QString &text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

QPushButton *PopupBase::AddButton(const QString &objectName, Verb verb)
{
    auto *button = new QPushButton(m_card);
    button->setObjectName(objectName);
    button->setFocusPolicy(Qt::NoFocus);
    button->setMinimumSize(buttonMinWidth, 64);
    button->setIconSize(QSize(40, 40));
    static const char *const verbs[] = {"neutral", "action", "destructive"};
    button->setProperty("verb", QString::fromLatin1(verbs[static_cast<int>(verb)]));
    m_buttons << button;
    // One button stands right, where the action of every other popup is; two stand apart.
    while (m_buttonRow->count() > 0)
        delete m_buttonRow->takeAt(0);
    if (m_buttons.size() == 1)
        m_buttonRow->addStretch(1);
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (i > 0)
            m_buttonRow->addStretch(1);
        m_buttonRow->addWidget(m_buttons.at(i));
    }
    return button;
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
        m_card->setMinimumSize(m_cardSize);
        layout()->setAlignment(m_card, Qt::AlignCenter);
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
