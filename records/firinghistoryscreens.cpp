#include "records/firinghistoryscreens.h"

#include "records/firingdetailview.h"
#include "records/firinghistory.h"
#include "records/firinghistoryview.h"
#include "records/firingrecorder.h"

#include <QDebug>
#include <QElapsedTimer>

namespace ovra {
namespace Records {

FiringHistoryScreens::FiringHistoryScreens(QWidget *cover, FiringRecorder &recorder, const QString &home,
                                           std::function<bool()> fahrenheit, QObject *parent)
    : QObject(parent), m_cover(cover), m_recorder(recorder), m_home(home), m_fahrenheit(std::move(fahrenheit)),
      m_history(new FiringHistoryView(cover)), m_detail(new FiringDetailView(cover))
{
    m_history->hide();
    m_detail->hide();
    connect(m_history, &FiringHistoryView::SignalOpen, this, &FiringHistoryScreens::Open);
    connect(m_history, &FiringHistoryView::SignalClose, this, &FiringHistoryScreens::Close);
    connect(m_detail, &FiringDetailView::SignalClose, m_detail, &QWidget::hide);
    connect(m_history, &FiringHistoryView::SignalHome, this, &FiringHistoryScreens::SignalHome);
    connect(m_detail, &FiringDetailView::SignalHome, this, &FiringHistoryScreens::SignalHome);
}

void FiringHistoryScreens::ShowHistory()
{
    m_recorder.Store().Flush();
    m_history->SetFirings(FiringHistory(FiringStore::FileIn(m_home)).List());
    Cover(m_history);
}

void FiringHistoryScreens::Open(qint64 id)
{
    QElapsedTimer clock;
    clock.start();
    FiringRecord record;
    m_recorder.Store().Flush();
    if (!FiringHistory(FiringStore::FileIn(m_home)).Load(id, &record)) {
        qDebug() << "firing history: firing" << id << "is gone";
        return;
    }
    m_detail->SetRecord(record, m_fahrenheit());
    Cover(m_detail);
    qDebug() << "firing history: firing" << id << "with" << record.samples.size() << "samples opened in"
             << clock.elapsed() << "ms";
}

void FiringHistoryScreens::Close()
{
    m_detail->hide();
    m_history->hide();
}

void FiringHistoryScreens::Cover(QWidget *screen)
{
    screen->setGeometry(m_cover->rect());
    screen->show();
    screen->raise();
}

} // namespace Records
} // namespace ovra
