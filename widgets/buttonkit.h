#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <functional>

class QAbstractButton;
class QEvent;
class QPushButton;
class QWidget;

namespace ovra {
namespace GlobalElements {

// What the kit's button widgets do alike around the Qt button they wrap.
class ButtonKit
{
public:
    // Fills frame with button, edge to edge. The frame decides its own size, so what the
    // button shows (a refitted caption, a resized icon) cannot push the layout around. The
    // button takes no focus, and frame filters its events to notice when the content has to
    // be fitted again (NeedsRefit).
    static void Embed(QWidget *frame, QAbstractButton *button);

    // True after the events that change the room a caption or an icon has on the button.
    static bool NeedsRefit(const QEvent *event);

    // The room for the caption inside the button's frame and padding.
    static QRect CaptionRoom(QPushButton *button);

    // Shows the image when it is there, a glyph of the same meaning otherwise.
    static void SetKeyFace(QAbstractButton *key, const QString &iconPath, const QString &fallback, int iconSide);

    // The pad's keys that type something are the ones its form gives a "keyText" property;
    // a click on one hands that text to type. Returns those keys.
    static QList<QPushButton *> ConnectTextKeys(QWidget *pad, const std::function<void(const QString &)> &type);
};

} // namespace GlobalElements
} // namespace ovra
