#pragma once

#include <QLabel>

namespace ovra {
namespace GlobalElements {

// A one-line label that shortens its text with "…" when it does not fit and then offers the
// full text as a tooltip. Values from the controller (program names, fault texts) have no
// length limit, and a value cut off mid-character reads as a different value.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    // Use these rather than QLabel::setText(), which cannot keep the tooltip current.
    void SetText(const QString &text);
    QString GetText() const { return text(); }

    bool IsElided() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QString ShownText() const;
    void UpdateToolTip();
};

} // namespace GlobalElements
} // namespace ovra
