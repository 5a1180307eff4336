#pragma once

#include <QString>

class QPushButton;

namespace ovra {
namespace GlobalElements {

// The OK / cancel pair at the bottom of every popup. All popups share one look and one
// feel, so they hand their two buttons over here instead of styling them each.
class ConfirmButtons
{
public:
    static constexpr int buttonWidth = 96;
    static constexpr int buttonHeight = 72;
    static constexpr int iconSide = 48;

    // cancel may be nullptr for dialogs that only acknowledge.
    static void Setup(QPushButton *ok, QPushButton *cancel);

    // Role property the style sheet keys on: "ok" or "cancel".
    static const char *const roleProperty;

private:
    static void SetupOne(QPushButton *button, const QString &iconPath, const char *role);
};

} // namespace GlobalElements
} // namespace ovra
