#pragma once

#include "records/firingchart.h"
#include "records/firinghistory.h"

#include <QWidget>

#include <memory>

class Ui_FiringDetailView;

namespace ovra {
namespace Records {

// One recorded firing: the measured temperature over its real time drawn over the program's
// planned profile, its facts and its failures with their times.
class FiringDetailView : public QWidget
{
    Q_OBJECT

public:
    explicit FiringDetailView(QWidget *parent = nullptr);
    ~FiringDetailView() override;

    void SetRecord(const FiringRecord &record, bool fahrenheit);
    const FiringChart::Series &GetSeries() const { return m_series; }
    QStringList Facts() const; // the lines beside the chart, as shown

signals:
    void SignalClose();
    // The home key of every page: straight to the main menu.
    void SignalHome();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void Retranslate();

    std::unique_ptr<Ui_FiringDetailView> m_ui;
    FiringRecord m_record;
    FiringChart::Series m_series;
    bool m_fahrenheit = false;
};

} // namespace Records
} // namespace ovra
