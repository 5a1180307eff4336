#pragma once

#include "records/firinghistory.h"

#include <QWidget>

#include <memory>

class Ui_FiringHistoryView;
class QStandardItemModel;

namespace ovra {
namespace Records {

// The list of recorded firings, newest first: date, program, duration and result of each, a
// row a finger can hit. Shown over the window; the controller's page does not change.
class FiringHistoryView : public QWidget
{
    Q_OBJECT

public:
    static constexpr int rowHeight = 72;

    explicit FiringHistoryView(QWidget *parent = nullptr);
    ~FiringHistoryView() override;

    void SetFirings(const QList<FiringSummary> &firings);
    int Count() const;
    // The firing of a row, as a tap on it opens it.
    void Open(int row);

signals:
    void SignalOpen(qint64 id);
    void SignalClose();
    // The home key of every page: straight to the main menu.
    void SignalHome();

protected:
    void changeEvent(QEvent *event) override;

private:
    void Retranslate();

    std::unique_ptr<Ui_FiringHistoryView> m_ui;
    QStandardItemModel *m_model;
};

} // namespace Records
} // namespace ovra
