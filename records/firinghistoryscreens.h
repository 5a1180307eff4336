#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace ovra {
namespace Records {

class FiringDetailView;
class FiringHistoryView;
class FiringRecorder;

// The firing history and a firing's detail, shown over whatever page is up: they are no page
// of their own, so the controller keeps seeing the page it knows.
class FiringHistoryScreens : public QObject
{
    Q_OBJECT

public:
    // `cover`: the widget the screens lie over, and their parent.
    FiringHistoryScreens(QWidget *cover, FiringRecorder &recorder, const QString &home,
                         std::function<bool()> fahrenheit, QObject *parent = nullptr);

signals:
    // Home was tapped on either screen: the window goes to its main menu, which closes them.
    void SignalHome();

public slots:
    void ShowHistory();
    void Open(qint64 id);
    void Close();

private:
    void Cover(QWidget *screen);

    QWidget *m_cover;
    FiringRecorder &m_recorder;
    const QString m_home;
    std::function<bool()> m_fahrenheit;
    FiringHistoryView *m_history;
    FiringDetailView *m_detail;
};

} // namespace Records
} // namespace ovra
