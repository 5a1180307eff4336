#pragma once

#include <QString>
#include <QWidget>

class QLabel;

namespace ovra {
namespace GlobalElements {

class ElidedLabel;

// A value box with an icon in front, e.g. a thermometer before "1200°C" or a clock before
// the end time. Without an icon the text takes the whole box.
class DisplayElementIcon : public QWidget
{
    Q_OBJECT
    // Forms name the icon; without the declaration uic's setProperty would only store it.
    Q_PROPERTY(QString icon READ GetIcon WRITE SetIcon)

public:
    explicit DisplayElementIcon(QWidget *parent = nullptr);

    QString GetText() const;
    QString GetIcon() const { return m_iconPath; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Icon edge for a box of the given height: fills it less a margin, never above 40 px.
    static int IconSideFor(int boxHeight);

public slots:
    void SetText(const QString &text);
    // An empty path removes the icon.
    void SetIcon(const QString &resourcePath);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void UpdatePixmap();

    QLabel *m_icon;
    ElidedLabel *m_label;
    QString m_iconPath;
};

} // namespace GlobalElements
} // namespace ovra
