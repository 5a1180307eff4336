#pragma once

#include <QString>
#include <QWidget>

namespace ovra {
namespace GlobalElements {

class ElidedLabel;

// A read-only value box (device data, program parameters). Too long a value is shortened
// with "…" and shown in full as a tooltip.
class DisplayElement : public QWidget
{
    Q_OBJECT

public:
    explicit DisplayElement(QWidget *parent = nullptr);

    QString GetText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void SetText(const QString &text);

protected:
    // A plain QWidget subclass only shows its style sheet box if it paints it itself.
    void paintEvent(QPaintEvent *event) override;

private:
    ElidedLabel *m_label;
};

} // namespace GlobalElements
} // namespace ovra
