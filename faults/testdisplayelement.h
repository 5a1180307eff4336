#pragma once

#include <QString>
#include <QWidget>

namespace ovra {
namespace GlobalElements {

class ElidedLabel;
class Iconbutton;

// One row of the self-test list: what is being checked and, at the right, its outcome as
// an icon (pending mark, check, or fail).
class TestDisplayElement : public QWidget
{
    Q_OBJECT

public:
    explicit TestDisplayElement(QWidget *parent = nullptr);

    void SetText(const QString &text);
    QString GetText() const;

    QString GetIconPath() const;
    QString GetPassKeyword() const { return m_passKeyword; }
    Iconbutton *GetIconButton() const { return m_button; }

    // The controller's word for a test outcome mapped to the icon that shows it: the pass
    // keyword (exact, case-sensitive) passes, "delete" resets to pending, everything else
    // is a failure. An unknown word must never look like a pass.
    static QString IconForResult(const QString &result, const QString &passKeyword);

    static const QString pendingIcon;
    static const QString passIcon;
    static const QString failIcon;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void SetIconResult(const QString &result);

signals:
    void SignalSelftestResult(const QString &result);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QString m_passKeyword;
    ElidedLabel *m_label;
    Iconbutton *m_button;
};

} // namespace GlobalElements
} // namespace ovra
