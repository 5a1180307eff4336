#pragma once

#include <QWidget>

#include <memory>

class QLineEdit;

namespace Ui {
class TableRow;
}

namespace ovra {
namespace GlobalElements {

// One segment of the program editor's table: its number and three entry fields for rate,
// target temperature and hold time, shown in the editor's unit. The fields keep their
// entries within the furnace's limits as they are typed.
class TableRow : public QWidget
{
    Q_OBJECT

public:
    explicit TableRow(QWidget *parent = nullptr);
    ~TableRow() override;

    void SetNumber(int number);
    int GetNumber() const { return m_number; }

    void SetRate(unsigned int rate);
    unsigned int GetRate() const;
    void SetTemp(unsigned int temp);
    unsigned int GetTemp() const;
    void SetTime(unsigned int time);
    unsigned int GetTime() const;

    // The rate limit in °C/min; in Fahrenheit the field's limit follows from it.
    void SetMaxRate(unsigned int maxRate);
    unsigned int GetMaxRate() const { return m_maxRate; }

    void SetFahrenheit(bool fahrenheit);
    bool IsFahrenheit() const { return m_fahrenheit; }

    void SetBackgroundVisible(bool visible);
    bool IsBackgroundVisible() const { return m_backgroundVisible; }

    // Shows an empty segment in the row's unit.
    void ResetRow();
    // Hides the row at once and deletes it from the event loop.
    void Destroy();

    QLineEdit *GetRateField() const;
    QLineEdit *GetTempField() const;
    QLineEdit *GetTimeField() const;
    bool OwnsField(const QWidget *widget) const;

private:
    void ApplyLimits();

    std::unique_ptr<Ui::TableRow> ui;
    int m_number = 1;
    unsigned int m_maxRate;
    bool m_fahrenheit = false;
    bool m_backgroundVisible = false;
};

} // namespace GlobalElements
} // namespace ovra
