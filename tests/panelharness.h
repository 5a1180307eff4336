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
    // Feeds a frame's bytes as they come off the line, start and end bytes included; returns
    // the answer's bytes as they would go back, empty when the panel sends nothing.
    QByteArray Feed(const QByteArray &frame);
    // The requests waiting for the next answer, each as its own field.
    QStringList Queued() const;
    // A program as the controller sends it: 10 °C/min to 1000 °C held 10 minutes, then
    // 5 °C/min to 1450 °C held 30.
    static QByteArray Heatfile(const char *name, const char *maker, const char *material = "Zirkon", bool fav = false);
    // Copies the built translations to where the panel loads them from.
    void InstallTranslations() const;

private:
    QTemporaryDir m_home;
    QScopedPointer<ovra::Mainwindow::MainWindow> m_window;
};
