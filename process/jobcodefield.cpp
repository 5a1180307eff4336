#include "process/jobcodefield.h"

#include "process/jobcode.h"
#include "process/jobcodekeyboard.h"
#include "widgets/captionfit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace ovra {
namespace Process {

JobCodeField::JobCodeField(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void JobCodeField::Attach(JobCode *code, QWidget *cover)
{
    m_code = code;
    m_keyboard = new JobCodeKeyboard(code, cover);
    connect(this, &QAbstractButton::clicked, m_keyboard, &JobCodeKeyboard::Open);
    connect(code, &JobCode::Changed, this, [this](const QString &text) {
        setText(text);
        update();
    });
    setText(code->Text());
    // Before any widget: a scanner's space or Enter must not press a button of the page.
    qApp->installEventFilter(this);
}

QSize JobCodeField::sizeHint() const
{
    return QSize(200, 76);
}

QSize JobCodeField::minimumSizeHint() const
{
    return QSize(120, 76);
}

bool JobCodeField::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if ((type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride) &&
        m_code != nullptr && m_code->TakesKeys() && isVisible())
        return TakeKey(event);
    return QAbstractButton::eventFilter(watched, event);
}

bool JobCodeField::TakeKey(QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return true;
    const auto *key = static_cast<QKeyEvent *>(event);
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab: // scanners end with either, as set up
        m_code->EndEntry();
        m_keyboard->Done();
        break;
    case Qt::Key_Backspace: m_code->Backspace(); break;
    default:
        // Shift, the other modifiers and function keys type nothing.
        if (!key->text().isEmpty() && key->text().at(0).isPrint())
            m_code->Type(key->text());
    }
    return true;
}

void JobCodeField::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF card = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(isDown() ? QColor(0xE8, 0x70, 0x2A) : QColor(0xD5, 0xDC, 0xE3), 2));
    painter.setBrush(isDown() ? QColor(0xFD, 0xE9, 0xDD) : QColor(Qt::white));
    painter.drawRoundedRect(card, 8, 8);

    const QRect inner = rect().adjusted(12, 6, -12, -6);
    QFont font = painter.font();
    font.setPixelSize(16);
    painter.setFont(font);
    painter.setPen(QColor(0x53, 0x58, 0x5B));
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop, tr("Auftrag"));
    // A code is shown whole where it fits, in the largest size that lets it: it is read off a
    // label and compared character by character.
    const QString code = text();
    const QString shown = code.isEmpty() ? tr("Scannen oder tippen") : code;
    font.setBold(!code.isEmpty());
    font.setItalic(code.isEmpty());
    font.setPixelSize(
        GlobalElements::CaptionFit::LargestPixels(font, shown, inner.width(), code.isEmpty() ? 18 : 22, 16));
    painter.setFont(font);
    painter.setPen(code.isEmpty() ? QColor(0x53, 0x58, 0x5B) : QColor(0x22, 0x31, 0x3F));
    painter.drawText(
        inner, Qt::AlignLeft | Qt::AlignBottom,
        painter.fontMetrics().elidedText(shown, code.isEmpty() ? Qt::ElideRight : Qt::ElideMiddle, inner.width()));
}

void JobCodeField::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        update();
    QAbstractButton::changeEvent(event);
}

void JobCodeField::hideEvent(QHideEvent *event)
{
    // The page has gone, and its keyboard with it.
    if (m_keyboard != nullptr)
        m_keyboard->hide();
    QAbstractButton::hideEvent(event);
}

} // namespace Process
} // namespace ovra
