// Settings and service functions of the window as the user and the controller drive them:
// start-up scripts, service PIN, factory reset, USB stick menu and QR code.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "ui_mainwindow.h"

#include <QDirIterator>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}

const QStringList deviceScripts = {QStringLiteral("/home/pi/Downloads/makeExecutable.py"),
                                   QStringLiteral("/home/pi/autostartUserinterface.sh"),
                                   QStringLiteral("/home/pi/Downloads/decode_and_unzip_lin.py"),
                                   QStringLiteral("/home/pi/DispOn/dispOn.py")};

QStringList FilesUnder(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    files.sort();
    return files;
}
} // namespace

class TestService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startupScriptsGoIntoTheGivenHomeOnly();
};

void TestService::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
}

void TestService::startupScriptsGoIntoTheGivenHomeOnly()
{
    QList<bool> onDevice;
    for (const QString &path : deviceScripts)
        onDevice << QFile::exists(path);

    PanelHarness panel;
    QStringList expected;
    for (const QString &path : deviceScripts) {
        const QString resource = QStringLiteral(":/scripts/") + QFileInfo(path).fileName();
        if (QFile::exists(resource))
            expected << panel.Home() + path.mid(QStringLiteral("/home/pi").size());
    }
    expected.sort();
    QVERIFY(expected.size() >= 3);
    QCOMPARE(FilesUnder(panel.Home()), expected);
    QVERIFY(QFileInfo(panel.Home() + QStringLiteral("/DispOn/dispOn.py")).isExecutable());
    for (int i = 0; i < deviceScripts.size(); ++i)
        QCOMPARE(QFile::exists(deviceScripts.at(i)), onDevice.at(i));
}

QTEST_MAIN(TestService)
#include "tst_service.moc"
