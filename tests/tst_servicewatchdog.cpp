// The keep-alive systemd watches: ready once, then pings while the event loop turns; silent
// when systemd did not ask for it.
#include "app/servicewatchdog.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using ovra::GlobalElements::ServiceWatchdog;

class TestServiceWatchdog : public QObject
{
    Q_OBJECT

private slots:
    void pingsSystemdWhileTheLoopTurns()
    {
        QTemporaryDir dir;
        const QByteArray path = QFile::encodeName(dir.filePath(QStringLiteral("notify")));
        const int fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
        QCOMPARE(::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof(address)), 0);
        qputenv("NOTIFY_SOCKET", path);
        qputenv("WATCHDOG_USEC", "40000");

        QStringList received;
        auto drain = [&] {
            char buffer[64];
            ssize_t n;
            while ((n = ::recv(fd, buffer, sizeof(buffer), 0)) > 0)
                received << QString::fromLatin1(buffer, int(n));
            return received;
        };
        ServiceWatchdog watchdog;
        QVERIFY(watchdog.IsActive());
        QTRY_VERIFY(drain().count(QStringLiteral("WATCHDOG=1")) >= 2);
        QCOMPARE(received.first(), QStringLiteral("READY=1"));
        ::close(fd);

        qunsetenv("NOTIFY_SOCKET");
        QVERIFY(!ServiceWatchdog().IsActive());
    }
};

QTEST_GUILESS_MAIN(TestServiceWatchdog)
#include "tst_servicewatchdog.moc"
