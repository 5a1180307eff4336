#pragma once

#include <QDialog>
#include <QList>
#include <QSize>

class QFrame;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace ovra {
namespace Popups {

// The one popup card every popup fills: an optional coloured band, a title (with an icon if
// wanted), the text, whatever the popup adds below it, and a row of buttons that say what
// they do. With a parent it is drawn inside that parent's window, on its own over the page:
// it covers the whole window, dims the page and takes every touch meant for it, with the
// card centred on top. So it looks the same on every platform plug-in, composited or not.
// Without a parent it is a plain frameless window of the card's size. Popups are
// retranslated when the language changes and close only through their own buttons, so that
// each close sends exactly the signal its button stands for.
class PopupBase : public QDialog
{
    Q_OBJECT

public:
    // Band across the top: none, amber (think twice) or red (something is lost or failed).
    enum class Accent { None, Caution, Danger };
    // How a button looks: a way out, the popup's own action, or an action that cannot be undone.
    enum class Verb { Neutral, Action, Destructive };

    explicit PopupBase(QWidget *parent = nullptr);

    // Re-applies every visible text in the current language.
    virtual void Translate() = 0;

    // Re-evaluates style sheet rules that key on a dynamic property such as "invalid".
    static void Repolish(QWidget *widget);

    void setVisible(bool visible) override;

protected:
    void SetAccent(Accent accent);
    QFrame *AccentBand() const { return m_band; }
    // An empty title leaves the card without its title row.
    void SetTitle(const QString &title);
    void SetTitleIcon(const QString &resource);
    // An empty text leaves the card without it.
    void SetMessage(const QString &text);
    QLabel *MessageLabel() const { return m_message; }
    // What a popup shows between its text and its buttons.
    QVBoxLayout *Body() const { return m_body; }
    // Buttons line up left to right; with two, the way out stands left and the action right.
    QPushButton *AddButton(const QString &objectName, Verb verb);

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
    QFrame *m_card;
    QFrame *m_band;
    QLabel *m_titleIcon;
    QLabel *m_title;
    QLabel *m_message;
    QVBoxLayout *m_body;
    QHBoxLayout *m_buttonRow;
    QList<QPushButton *> m_buttons;
};

} // namespace Popups
} // namespace ovra
