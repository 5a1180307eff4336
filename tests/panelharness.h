#pragma once

#include "app/mainwindow.h"
#include "panelview.h"

#include <QScopedPointer>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

class QWidget;

// A main window offscreen with its own home folder and no serial line, driven by controller
// frames fed straight into its message handler and by taps on its widgets.
class PanelHarness : public PanelView
{
public:
    explicit PanelHarness(int selftestDelayMs = 7000,
                          const std::function<void(ovra::GlobalElements::PanelOptions &)> &adjust = {});

    ovra::Mainwindow::MainWindow *Window() const { return m_window.data(); }
    QString Home() const { return m_home.path(); }

    // Feeds one frame; returns the requests that went out with the answer, or
    // "<bad answer>" when the answer's checksum is wrong.
    QStringList Send(const QByteArray &fields);

private:
    QTemporaryDir m_home;
    QScopedPointer<ovra::Mainwindow::MainWindow> m_window;
};
