#pragma once

#include "app/pageinterface.h"

#include <QString>
#include <QWidget>

#include <array>

class QPushButton;

namespace ovra {
namespace GlobalElements {

// A large menu tile: a caption, optionally an icon to its left, and the page it leads to.
// The caption wraps onto a second line or is shortened with "…" (full text as tooltip)
// rather than being cut off at the tile's edge.
class Button : public QWidget
{
    Q_OBJECT
    // Forms name the icon; without the declaration uic's setProperty would only store it.
    Q_PROPERTY(QString icon READ GetIcon WRITE SetIcon)

public:
    static constexpr int iconSide = 40;
    // Caption sizes in pixels, tried in turn until the caption fits; the style sheet
    // matches the chosen one through the dynamic property captionSize on the push button.
    static constexpr std::array<int, 3> captionPixelSizes{{22, 20, 18}};
    static const char *const captionSizeProperty;

    explicit Button(QWidget *parent = nullptr);

    void SetText(const QString &text);
    QString GetText() const;

    // An empty path removes the icon.
    void SetIcon(const QString &resourcePath);
    QString GetIcon() const { return m_iconPath; }

    void SetNextPageIndex(ovra::GlobalElements::Pageinterface::en_pages page);
    ovra::GlobalElements::Pageinterface::en_pages GetNextPageIndex() const { return m_nextPage; }

    void SetCheckable(bool checkable);
    void SetChecked(bool checked);
    bool IsChecked() const;

    QPushButton *GetPushButtonObject() const { return m_button; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void SignalButtonClicked(ovra::GlobalElements::Pageinterface::en_pages page);
    void SignalToggled(bool checked);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    // Room between icon and caption, as the style draws it, with a little to spare.
    static constexpr int iconGap = 8;

    void RefitCaption();

    QPushButton *m_button;
    QString m_caption;
    QString m_iconPath;
    bool m_refitting = false;
    bool m_refitWhenShown = false;
    Pageinterface::en_pages m_nextPage = Pageinterface::StartUp;
};

} // namespace GlobalElements
} // namespace ovra
