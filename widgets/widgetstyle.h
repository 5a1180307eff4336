#pragma once

class QWidget;

namespace ovra {
namespace GlobalElements {

// Style sheet chores the kit's widgets and the popups share.
class WidgetStyle
{
public:
    // Re-evaluates style sheet rules that key on a dynamic property such as "invalid"; Qt
    // does not notice a changed property by itself.
    static void Repolish(QWidget *widget);

    // Draws the widget's style sheet box. A plain QWidget subclass shows it only if it paints
    // it itself: call from its paintEvent().
    static void PaintBackground(QWidget *widget);
};

} // namespace GlobalElements
} // namespace ovra
