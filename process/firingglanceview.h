#pragma once

#include "process/processtime.h"

#include <QWidget>

#include <functional>

class QLabel;
class QProgressBar;

namespace ovra {
namespace GlobalElements {
class FurnaceState;
}

namespace Process {

// The top of the process page, drawn from the furnace: the temperature large enough to read
// across the lab, the stage and segment, the time left with the end beside it, and how much
// of the firing is done. Holds no state of its own.
class FiringGlanceView : public QWidget
{
    Q_OBJECT

public:
    explicit FiringGlanceView(QWidget *parent = nullptr);

    // The rows of a program by its name, nullptr when the store does not hold it.
    using ProgramRows = std::function<const ProcessTime::Matrix *(const QString &program)>;
    // Draws the furnace from now on; it must outlive this view.
    void Follow(const GlobalElements::FurnaceState *furnace, const ProgramRows &rows);

public slots:
    void Refresh();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void Fit();

    const GlobalElements::FurnaceState *m_furnace = nullptr;
    ProgramRows m_rows;
    QLabel *m_temperature;
    QLabel *m_stage;
    QLabel *m_segment;
    QLabel *m_remaining;
    QLabel *m_end;
    QProgressBar *m_progress;
};

} // namespace Process
} // namespace ovra
