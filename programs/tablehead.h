#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class TableHead;
}

namespace ovra {
namespace GlobalElements {

// The column captions above the editor's table, aligned with the fields of TableRow.
class TableHead : public QWidget
{
    Q_OBJECT

public:
    explicit TableHead(QWidget *parent = nullptr);
    ~TableHead() override;

    void SetFahrenheit(bool fahrenheit);
    bool IsFahrenheit() const { return m_fahrenheit; }
    // Room at the right for a scroll bar beside the rows below.
    void SetRightInset(int pixels);

    QString GetRateText() const;
    QString GetTempText() const;
    QString GetTimeText() const;

    void Translate();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::TableHead> ui;
    bool m_fahrenheit = false;
    int m_baseRightMargin = 0;
};

} // namespace GlobalElements
} // namespace ovra
