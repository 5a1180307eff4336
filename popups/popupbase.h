#pragma once

#include <QDialog>
#include <QSize>

namespace ovra {
namespace Popups {

// What every popup shares. With a parent it is drawn inside that parent's window, on its
// own over the page: it covers the whole window, dims the page and takes every touch meant
// for it, with the form's rounded "popupCard" frame centred on top. So it looks the same
// on every platform plug-in, composited or not. Without a parent it is a plain frameless
// window of the card's size. Popups are retranslated when the language changes and close
// only through their own buttons, so that each close sends exactly the signal its button
// stands for.
class PopupBase : public QDialog
{
    Q_OBJECT

public:
    explicit PopupBase(QWidget *parent = nullptr);

    // Re-applies every visible text in the current language.
    virtual void Translate() = 0;

    // Re-evaluates style sheet rules that key on a dynamic property such as "invalid".
    static void Repolish(QWidget *widget);

    void setVisible(bool visible) override;

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    // Moves the popup into its parent's window, over the whole of it.
    void CoverWindow();

    QSize m_cardSize;
};

} // namespace Popups
} // namespace ovra
