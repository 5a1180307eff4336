#include "widgets/confirmbuttons.h"

#include "widgets/iconcache.h"

#include <QIcon>
#include <QPushButton>
#include <QVariant>

namespace ovra {
namespace GlobalElements {

const char *const ConfirmButtons::roleProperty = "confirmRole";
static const char *const wiredProperty = "confirmWired";

void ConfirmButtons::Setup(QPushButton *ok, QPushButton *cancel)
{
    if (ok)
        SetupOne(ok, QStringLiteral(":/Icons/check.png"), "ok");
    if (cancel)
        SetupOne(cancel, QStringLiteral(":/Icons/abbrechen.png"), "cancel");
}

void ConfirmButtons::SetupOne(QPushButton *button, const QString &iconPath, const char *role)
{
    const QIcon icon = IconCache::Get(iconPath, iconSide);
    button->setText(QString());
    button->setIcon(icon);
    button->setIconSize(QSize(iconSide, iconSide));
    button->setFixedSize(buttonWidth, buttonHeight);
    button->setFocusPolicy(Qt::NoFocus);
    button->setProperty(roleProperty, QString::fromLatin1(role));

    // A popup may be set up again when it is re-opened; one connection pair is enough.
    if (button->property(wiredProperty).toBool())
        return;
    button->setProperty(wiredProperty, true);

    // Some styles show the icon's "active" pixmap while the finger is down, which made the
    // glyph vanish on the panel; re-setting the same icon keeps it in place. The pressed
    // frame itself comes from the style sheet (QPushButton:pressed).
    QObject::connect(button, &QPushButton::pressed, button, [button, icon] { button->setIcon(icon); });
    QObject::connect(button, &QPushButton::released, button, [button, icon] { button->setIcon(icon); });
}

} // namespace GlobalElements
} // namespace ovra
