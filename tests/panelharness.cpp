#include "panelharness.h"

#include "communication/frame.h"
#include "communication/messagehandler.h"

#include <QDir>
#include <QtTest>

namespace Frame = ovra::Communication::Frame;

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

PanelHarness::PanelHarness(int selftestDelayMs, const std::function<void(ovra::GlobalElements::PanelOptions &)> &adjust)
{
    // Once per test program: the images and forms, and the window's log kept off the output.
    static const bool prepared = [] {
        Q_INIT_RESOURCE(resources);
        qInstallMessageHandler(quiet);
        return true;
    }();
    Q_UNUSED(prepared)
    ovra::GlobalElements::PanelOptions options = ovra::GlobalElements::PanelOptions::Sandbox(m_home.path());
    options.selftestDelayMs = selftestDelayMs;
    options.playLockMs = 20; // stands for the furnace's one-second lock
    if (adjust)
        adjust(options);
    m_window.reset(new ovra::Mainwindow::MainWindow(options));
    SetWindow(m_window.data());
    m_window->show();
}

QStringList PanelHarness::Send(const QByteArray &fields)
{
    const QByteArray answer = m_window->GetMessageHandler()->HandleMessage(QString::fromLatin1(Frame::Build(fields)));
    if (!Frame::IsChecksumValid(QString::fromLatin1(answer)))
        return {QStringLiteral("<bad answer>")};
    QStringList parts = QString::fromUtf8(answer.mid(1, answer.size() - 2)).split(QStringLiteral("$$"));
    parts.removeLast();  // checksum
    parts.removeFirst(); // ack / nack
    return parts;
}

QByteArray PanelHarness::Feed(const QByteArray &frame)
{
    return m_window->GetMessageHandler()->HandleFrame(frame);
}

QStringList PanelHarness::Queued() const
{
    QStringList requests = m_window->GetMessageHandler()->GetActualRequests().split(QStringLiteral("$$"));
    requests.removeFirst(); // before the first separator
    return requests;
}

void PanelHarness::InstallTranslations() const
{
    const QString folder = Home() + QStringLiteral("/Downloads/translations/");
    QDir().mkpath(folder);
    const QDir built(QStringLiteral(OVRA_BINARY_DIR "/translations"));
    for (const QString &qm : built.entryList({QStringLiteral("*.qm")}))
        QVERIFY(QFile::copy(built.filePath(qm), folder + qm));
}

QByteArray PanelHarness::Heatfile(const char *name, const char *maker, const char *material, bool fav)
{
    return QByteArray("heatfile==[metainfo];name=") + name + ";manufacturer=" + maker + ";material=" + material +
           ";favorite=" + (fav ? "true" : "false") + ";[1];rate=10;temp=1273;hold=600;[2];rate=5;temp=1723;hold=1800;";
}
