// The service functions' logic without a window: upkeep of the start-up scripts, the
// programs file and backup on the USB stick, the device report and its QR code.
#include "app/paths.h"
#include "app/scriptupkeep.h"
#include "programs/heatfiletext.h"
#include "programs/program.h"
#include "settings/devicereport.h"
#include "settings/qrcode.h"
#include "settings/usbfiles.h"
#include "settings/usbstick.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using ovra::GlobalElements::Paths;
using ovra::GlobalElements::Program;
using ovra::GlobalElements::ScriptUpkeep;
using ovra::Settings::UsbFiles;
namespace HeatfileText = ovra::GlobalElements::HeatfileText;

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
    void heatfileTextReadsWhatItWrites();
    void heatfileTextRefusesEditedNonsense_data();
    void heatfileTextRefusesEditedNonsense();
    void stickVolumes();
    void myProgramsGoToTheStickAndBack();
    void loadingIsAllOrNothing();
    void unwritableStickFails();
    void backupHoldsProgramsDeviceDataAndLogs();
    void deviceReportAndQrCode();
};

namespace {
Program Sample(const QString &name, const QString &material, bool fav)
{
    return Program(name, material, {{10, 900, 30}, {5, 1530, 120}}, QStringLiteral("user"), fav);
}
const char *const goodText = "[metainfo];name=Krone;manufacturer=user;material=Zirkon;favorite=false;"
                             "[1];rate=10;temp=1173;hold=1800;";
} // namespace

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

void TestServiceCore::heatfileTextReadsWhatItWrites()
{
    for (const Program &original : {Sample(QStringLiteral("Brücke 14-gliedrig"), QStringLiteral("Zirkon"), true),
                                    Sample(QStringLiteral("Argon Krone"), QStringLiteral("Argon"), false)}) {
        Program read(QString(), QString(), {}, QString(), false);
        QString error;
        QVERIFY2(HeatfileText::Read(HeatfileText::Write(original), &read, &error), qPrintable(error));
        QCOMPARE(read.GetName(), original.GetName());
        QCOMPARE(read.GetMaterial(), original.GetMaterial());
        QCOMPARE(read.IsFav(), original.IsFav());
        QCOMPARE(*read.GetMatrix(), *original.GetMatrix());
    }
    // The metainfo keys in another order, no closing separator: a person's edit.
    Program read(QString(), QString(), {}, QString(), false);
    QString error;
    QVERIFY(HeatfileText::Read(QStringLiteral("[metainfo];favorite=true;material=Zirkon;manufacturer=user;name=X;"
                                              "[1];rate=1;temp=323;hold=0"), &read, &error));
    QCOMPARE(*read.GetMatrix(), (Program::Matrix{{1, 50, 0}}));
}

void TestServiceCore::heatfileTextRefusesEditedNonsense_data()
{
    QTest::addColumn<QString>("text");
    const QString head = QStringLiteral("[metainfo];name=Krone;manufacturer=user;material=Zirkon;favorite=false;");
    const QString segment = QStringLiteral("[%1];rate=10;temp=1173;hold=60;");
    QString eleven = head;
    for (int i = 1; i <= 11; ++i)
        eleven += segment.arg(i);
    QTest::newRow("no segment") << head;
    QTest::newRow("segments out of order") << head + segment.arg(2);
    QTest::newRow("eleven segments") << eleven;
    QTest::newRow("above 1650 °C") << head + QStringLiteral("[1];rate=10;temp=1924;hold=60;");
    QTest::newRow("below 50 °C") << head + QStringLiteral("[1];rate=10;temp=322;hold=60;");
    QTest::newRow("rate 0") << head + QStringLiteral("[1];rate=0;temp=1173;hold=60;");
    QTest::newRow("hold not whole minutes") << head + QStringLiteral("[1];rate=10;temp=1173;hold=90;");
    QTest::newRow("negative") << head + QStringLiteral("[1];rate=-10;temp=1173;hold=60;");
    QTest::newRow("argon for zirconia") << head + QStringLiteral("[1];rate=10;temp=1173;hold=60;argon=on;");
    QTest::newRow("argon missing") << QString(head).replace(QStringLiteral("Zirkon"), QStringLiteral("Argon")) + segment.arg(1);
    QTest::newRow("unknown key") << head + QStringLiteral("colour=red;") + segment.arg(1);
    QTest::newRow("name twice") << head + QStringLiteral("name=B;") + segment.arg(1);
    QTest::newRow("no name") << QString(head).replace(QStringLiteral("Krone"), QString()) + segment.arg(1);
    QTest::newRow("frame separator in name") << QString(head).replace(QStringLiteral("Krone"), QStringLiteral("a$$b")) + segment.arg(1);
    QTest::newRow("favourite yes") << QString(head).replace(QStringLiteral("false"), QStringLiteral("yes")) + segment.arg(1);
}

void TestServiceCore::heatfileTextRefusesEditedNonsense()
{
    QFETCH(QString, text);
    Program program(QStringLiteral("untouched"), QString(), {}, QString(), false);
    QString error;
    QVERIFY(!HeatfileText::Read(text, &program, &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(program.GetName(), QStringLiteral("untouched"));
}

void TestServiceCore::stickVolumes()
{
    using ovra::Settings::UsbStick::IsStickVolume;
    QVERIFY(IsStickVolume(QStringLiteral("/dev/sda1"), QStringLiteral("/media/pi/STICK")));
    QVERIFY(IsStickVolume(QStringLiteral("/dev/sdb"), QStringLiteral("/mnt/usb")));
    QVERIFY(IsStickVolume(QStringLiteral("/dev/sdc1"), QStringLiteral("/run/media/pi/A B")));
    // A board that boots from a USB disk: its system is no stick.
    QVERIFY(!IsStickVolume(QStringLiteral("/dev/sda2"), QStringLiteral("/")));
    QVERIFY(!IsStickVolume(QStringLiteral("/dev/sda1"), QStringLiteral("/boot")));
    QVERIFY(!IsStickVolume(QStringLiteral("/dev/mmcblk0p1"), QStringLiteral("/media/pi/bootfs")));
    QVERIFY(!IsStickVolume(QStringLiteral("/dev/sda1"), QStringLiteral("/media")));
    QCOMPARE(ovra::Settings::UsbStick::Find(QStringLiteral("/some/folder")), QStringLiteral("/some/folder"));
}

void TestServiceCore::myProgramsGoToTheStickAndBack()
{
    QTemporaryDir stick;
    const UsbFiles files(stick.path());
    const Program crown = Sample(QStringLiteral("Krone"), QStringLiteral("Argon"), true);
    const Program bridge = Sample(QStringLiteral("Brücke"), QStringLiteral("Zirkon"), false);
    QString error;
    QVERIFY2(files.SavePrograms({&crown, &bridge}, &error), qPrintable(error));

    // A person can read it: each program in plain words before its line.
    const QString text = QString::fromUtf8(Read(stick.filePath(QStringLiteral("ovra/myprograms.txt"))));
    QVERIFY(text.contains(QStringLiteral("# Brücke | Zirkon | 10 °C/min to 900 °C, hold 30 min; 5 °C/min to 1530 °C, hold 120 min\n")));

    QList<Program *> loaded;
    QVERIFY2(files.LoadPrograms({QStringLiteral("Fremd")}, &loaded, &error), qPrintable(error));
    QCOMPARE(loaded.size(), 2);
    QCOMPARE(HeatfileText::Write(*loaded.at(0)), HeatfileText::Write(crown));
    QCOMPARE(HeatfileText::Write(*loaded.at(1)), HeatfileText::Write(bridge));
    qDeleteAll(loaded);

    // Saved again over the old file: the new one replaces it whole.
    QVERIFY(files.SavePrograms({&bridge}, &error));
    QVERIFY(files.LoadPrograms({}, &loaded, &error));
    QCOMPARE(loaded.size(), 1);
    qDeleteAll(loaded);
}

void TestServiceCore::loadingIsAllOrNothing()
{
    QTemporaryDir stick;
    QVERIFY(QDir(stick.path()).mkpath(QStringLiteral("ovra")));
    const QString file = stick.filePath(QStringLiteral("ovra/myprograms.txt"));
    const UsbFiles files(stick.path());
    const QByteArray good(goodText);
    const QList<QPair<QByteArray, QString>> cases = {
        {"# only notes\n\n", QStringLiteral("holds no program")},
        {good + "\n" + QByteArray(goodText).replace("temp=1173", "temp=99999") + "\n", QStringLiteral("myprograms.txt:2:")},
        {QByteArray(goodText).replace("manufacturer=user", "manufacturer=Zircos"), QStringLiteral("not one of my programs")},
        {good + "\n" + good, QStringLiteral("taken")},
        {QByteArray(goodText).replace("Krone", "Fremd"), QStringLiteral("taken")}, // a maker's program
    };
    for (const auto &c : cases) {
        QVERIFY(Write(file, c.first));
        QList<Program *> loaded;
        QString error;
        QVERIFY(!files.LoadPrograms({QStringLiteral("Fremd")}, &loaded, &error));
        QVERIFY2(error.contains(c.second), qPrintable(error));
        QVERIFY(loaded.isEmpty());
    }
    QVERIFY(QFile::remove(file));
    QList<Program *> loaded;
    QString error;
    QVERIFY(!files.LoadPrograms({}, &loaded, &error));
    QVERIFY(!UsbFiles(QString()).LoadPrograms({}, &loaded, &error));
}

void TestServiceCore::unwritableStickFails()
{
    const Program crown = Sample(QStringLiteral("Krone"), QStringLiteral("Zirkon"), false);
    QString error;
    QVERIFY(!UsbFiles(QString()).SavePrograms({&crown}, &error));
    QVERIFY(!UsbFiles(QStringLiteral("/nonexistent/stick")).SavePrograms({&crown}, &error));
    QCOMPARE(error, QStringLiteral("no USB stick"));
    // Where the folder must go there is a file (as root, permissions would not stop us).
    QTemporaryDir stick;
    QVERIFY(Write(stick.filePath(QStringLiteral("ovra")), "in the way"));
    QVERIFY(!UsbFiles(stick.path()).SavePrograms({&crown}, &error));
    QVERIFY(error.contains(QStringLiteral("ovra")));
}

void TestServiceCore::backupHoldsProgramsDeviceDataAndLogs()
{
    QTemporaryDir stick;
    QTemporaryDir logs;
    QVERIFY(Write(logs.filePath(QStringLiteral("Log_2026_11_23__09_00_00_000.txt")), "line\n"));
    const Program crown(QStringLiteral("Krone"), QStringLiteral("Zirkon"), {{10, 900, 30}}, QStringLiteral("Zircos"), false);
    QString error;
    const QString folder = UsbFiles(stick.path()).Backup({&crown}, QStringLiteral("Model: X"), QStringLiteral("SN 42/7"),
                                                         logs.path(), QDateTime(QDate(2026, 11, 23), QTime(9, 30, 5)), &error);
    QCOMPARE(folder, stick.filePath(QStringLiteral("ovra/backup/SN_42_7_20261123_093005")));
    QVERIFY(Read(folder + QStringLiteral("/programs.txt")).contains("name=Krone;manufacturer=Zircos"));
    QCOMPARE(Read(folder + QStringLiteral("/device.txt")), QByteArray("Model: X\n"));
    QCOMPARE(Read(folder + QStringLiteral("/logs/Log_2026_11_23__09_00_00_000.txt")), QByteArray("line\n"));
}

void TestServiceCore::deviceReportAndQrCode()
{
    ovra::Settings::DeviceReport::Data data;
    data.model = QStringLiteral("  Sinter  X ");
    data.serialNumber = QStringLiteral("%1");
    data.failures = QStringList{QStringLiteral("E12"), QStringLiteral("E3")};
    QCOMPARE(ovra::Settings::DeviceReport::Text(data),
             QStringLiteral("Model: Sinter X\nSerial: %1\nHW: -\nSW: -\nHours: -\nFailures: E12,E3"));

    const auto code = ovra::Settings::QrCode::Encode("Model: Sinter X");
    QVERIFY(code.Size() >= 21);
    QVERIFY(code.IsDark(0, 0)); // a finder pattern's corner
    QCOMPARE(ovra::Settings::QrCode::Encode(QByteArray(4000, 'x')).Size(), 0); // beyond any QR code
}

QTEST_GUILESS_MAIN(TestServiceCore)
#include "tst_servicecore.moc"
