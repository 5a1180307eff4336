#include "widgets/buttonkit.h"

#include "widgets/iconcache.h"

#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVBoxLayout>

namespace ovra {
namespace GlobalElements {

void ButtonKit::Embed(QWidget *frame, QAbstractButton *button)
{
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    button->setFocusPolicy(Qt::NoFocus);
    button->installEventFilter(frame);
}

bool ButtonKit::NeedsRefit(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::Polish: return true;
    default: return false;
    }
}

QRect ButtonKit::CaptionRoom(QPushButton *button)
{
    // The style sheet's padding and font only count once the button is polished.
    button->ensurePolished();
    QStyleOptionButton option;
    option.initFrom(button);
    option.rect = button->rect();
    return button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
}

void ButtonKit::SetKeyFace(QAbstractButton *key, const QString &iconPath, const QString &fallback, int iconSide)
{
    if (QFile::exists(iconPath)) {
        key->setIcon(IconCache::Get(iconPath, iconSide));
        key->setIconSize(QSize(iconSide, iconSide));
        key->setText(QString());
    } else {
        key->setText(fallback);
    }
}

QList<QPushButton *> ButtonKit::ConnectTextKeys(QWidget *pad, const std::function<void(const QString &)> &type)
{
    QList<QPushButton *> keys;
    for (QPushButton *key : pad->findChildren<QPushButton *>()) {
        const QString text = key->property("keyText").toString();
        if (text.isEmpty())
            continue;
        keys << key;
        QObject::connect(key, &QPushButton::clicked, pad, [type, text] { type(text); });
    }
    return keys;
}

} // namespace GlobalElements
} // namespace ovra
