// The service functions' logic without a window: upkeep of the start-up scripts.
#include "app/paths.h"
#include "app/scriptupkeep.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using ovra::GlobalElements::Paths;
using ovra::GlobalElements::ScriptUpkeep;

namespace {
bool Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray Read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

struct FileStamp
{
    ino_t inode = 0;
    qint64 mtimeNs = 0;
    bool operator==(const FileStamp &o) const { return inode == o.inode && mtimeNs == o.mtimeNs; }
};

FileStamp Stamp(const QString &path)
{
    struct stat st {};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return {};
    return {st.st_ino, qint64(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec};
}

bool Runnable(const QString &path)
{
    return QFileInfo(path).permission(QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
}
} // namespace

class TestServiceCore : public QObject
{
    Q_OBJECT

private slots:
    void scriptUpkeepRewritesOnlyWhatDiffers();
};

void TestServiceCore::scriptUpkeepRewritesOnlyWhatDiffers()
{
    QTemporaryDir references;
    QTemporaryDir home;
    QVERIFY(Write(references.filePath(QStringLiteral("start.sh")), "#!/bin/sh\necho start\n"));
    QVERIFY(Write(references.filePath(QStringLiteral("key.py")), "print('key')\n"));
    const QStringList scripts = {QStringLiteral("/home/pi/start.sh"), QStringLiteral("/home/pi/DispOn/key.py"),
                                 QStringLiteral("/home/pi/Downloads/none.py")};
    const ScriptUpkeep upkeep(Paths(home.path()), references.path());
    const QString start = home.filePath(QStringLiteral("start.sh"));
    const QString key = home.filePath(QStringLiteral("DispOn/key.py"));

    // A fresh card: folders made, both written and runnable; no reference, no file.
    QCOMPARE(upkeep.Run(scripts), (QStringList{start, key}));
    QCOMPARE(Read(key), QByteArray("print('key')\n"));
    QVERIFY(Runnable(start) && Runnable(key));
    QVERIFY(!QFile::exists(home.filePath(QStringLiteral("Downloads/none.py"))));

    // Equal copies are not touched; a lost run bit comes back without a rewrite.
    QVERIFY(QFile::setPermissions(key, QFile::ReadOwner | QFile::WriteOwner));
    const FileStamp startBefore = Stamp(start);
    const FileStamp keyBefore = Stamp(key);
    QCOMPARE(upkeep.Run(scripts), QStringList());
    QVERIFY(Stamp(start) == startBefore);
    QVERIFY(Stamp(key) == keyBefore);
    QVERIFY(Runnable(key));

    // A changed or emptied script is put back.
    QVERIFY(Write(start, "#!/bin/sh\necho tampered\n"));
    QVERIFY(Write(key, ""));
    QCOMPARE(upkeep.Run(scripts), (QStringList{start, key}));
    QCOMPARE(Read(start), QByteArray("#!/bin/sh\necho start\n"));
    QCOMPARE(Read(key), QByteArray("print('key')\n"));
}

QTEST_GUILESS_MAIN(TestServiceCore)
#include "tst_servicecore.moc"
