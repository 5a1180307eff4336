#pragma once

#include <QString>
#include <QWidget>

class QToolButton;

namespace ovra {
namespace GlobalElements {

// A square touch button with an icon and, optionally, a short caption under it. The icon
// follows the button's size so the same class serves 56 px row buttons and large tiles.
class Iconbutton : public QWidget
{
    Q_OBJECT
    // Forms name the icon; without the declaration uic's setProperty would only store it.
    Q_PROPERTY(QString icon READ GetIcon WRITE SetIcon)

public:
    explicit Iconbutton(QWidget *parent = nullptr);

    void SetIcon(const QString &resourcePath);
    QString GetIcon() const { return m_iconPath; }

    void SetText(const QString &text);
    QString GetText() const;

    void SetCheckable(bool checkable);
    void SetChecked(bool checked);
    bool IsChecked() const;

    QToolButton *GetButtonObject() const { return m_button; }

    // Icon edge for a button of the given size: ~60 % of the smaller side, less the caption
    // line when there is one.
    static int IconSideFor(const QSize &buttonSize, int captionHeight);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void Signal_ButtonClicked();
    void SignalToggled(bool checked);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void UpdateIconSize();

    QToolButton *m_button;
    QString m_iconPath;
};

} // namespace GlobalElements
} // namespace ovra
