#pragma once

#include <QAbstractButton>

namespace ovra {
namespace Process {

class JobCode;
class JobCodeKeyboard;

// The job code on the program page: a tile with the code, or how to give one. A tap opens the
// panel's keyboard for it; keys typed while the tile is shown (a barcode scanner types like a
// keyboard, ending with Enter) go to the code and to nothing else on the page.
class JobCodeField : public QAbstractButton
{
    Q_OBJECT

public:
    explicit JobCodeField(QWidget *parent = nullptr);

    // Shows and edits `code`; the keyboard lies over `cover`. Neither is owned.
    void Attach(JobCode *code, QWidget *cover);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool TakeKey(QEvent *event);

    JobCode *m_code = nullptr;
    JobCodeKeyboard *m_keyboard = nullptr;
};

} // namespace Process
} // namespace ovra
