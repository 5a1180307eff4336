// Pairing a phone with the lab view from the lab link popup: the real ovra-lab makes the token,
// the QR code on screen reads back as the address with it, and a lab view that is missing or
// fails is said in words.

#include "lablink/lablinkview.h"
#include "lablink/labpairing.h"
#include "popups/popupqrcode.h"

#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace ovra::LabLink;

namespace {

void writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QString statusText(const LabLinkView &view)
{
    return view.findChild<QLabel *>(QStringLiteral("label_LabLinkStatus"))->text();
}

} // namespace

class TstLabPairing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<LabPairing::Failure>(); }
    void init();

    void pairingShowsTheNewTokensAddress();
    void missingLabViewHidesTheButton();
    void failuresAreSaid();

private:
    // A home whose lablink.ini has only [view]: the pairing needs no broker.
    std::unique_ptr<LabLinkView> viewFor(const QString &program, const QString &data,
                                         const QByteArray &more = QByteArray());
    QPushButton *pairButton(const LabLinkView &view);

    std::unique_ptr<QTemporaryDir> m_home;
};

void TstLabPairing::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
    QVERIFY(QDir(m_home->path()).mkdir(QStringLiteral("lab")));
}

std::unique_ptr<LabLinkView> TstLabPairing::viewFor(const QString &program, const QString &data, const QByteArray &more)
{
    writeFile(m_home->filePath(QStringLiteral("lablink.ini")),
              "[view]\nprogram=" + program.toUtf8() + "\ndata=" + data.toUtf8() + "\n" + more);
    auto view = std::make_unique<LabLinkView>(nullptr, m_home->path());
    view->show();
    return view;
}

QPushButton *TstLabPairing::pairButton(const LabLinkView &view)
{
    return view.findChild<QPushButton *>(QStringLiteral("pushButton_LabLinkPair"));
}

void TstLabPairing::pairingShowsTheNewTokensAddress()
{
    const QString data = m_home->filePath(QStringLiteral("lab"));
    auto view = viewFor(QStringLiteral(OVRA_LAB_BINARY), data, "address=http://127.0.0.1:8080/\n");
    QSignalSpy paired(&view->Pairing(), &LabPairing::Paired);
    QVERIFY(!pairButton(*view)->isHidden());
    pairButton(*view)->click();
    QVERIFY(!pairButton(*view)->isEnabled()); // one pairing at a time, the GUI still running
    QVERIFY(paired.wait(20000));
    const QString address = paired.at(0).at(0).toString();
    QVERIFY2(address.startsWith(QStringLiteral("http://127.0.0.1:8080/pair?token=")), qPrintable(address));
    QVERIFY(pairButton(*view)->isEnabled());

    // The lab view knows the token by the panel's name for it.
    QProcess lab;
    lab.start(QStringLiteral(OVRA_LAB_BINARY), {QStringLiteral("--data"), data, QStringLiteral("--list-tokens")});
    QVERIFY(lab.waitForFinished(20000));
    const QStringList tokens = QString::fromUtf8(lab.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(tokens.size(), 1);
    QVERIFY2(QRegularExpression(QStringLiteral("^panel-\\d{8}-\\d{6}-[0-9a-f]{4}\\t")).match(tokens[0]).hasMatch(),
             qPrintable(tokens[0]));

    auto *popup = view->findChild<ovra::Popups::PopupQRCode *>();
    QVERIFY(popup->isVisible() && popup->HasImage());
    QCOMPARE(popup->findChild<QLabel *>(QStringLiteral("label_QRCodeCaption"))->text(), address);
    const QString zbarimg = QStandardPaths::findExecutable(QStringLiteral("zbarimg"));
    if (zbarimg.isEmpty())
        QSKIP("zbarimg (zbar-tools) is not installed");
    const QString png = m_home->filePath(QStringLiteral("shown.png"));
    QVERIFY(popup->findChild<QLabel *>(QStringLiteral("label_QRCode"))->pixmap(Qt::ReturnByValue).save(png));
    QProcess reader;
    reader.start(zbarimg, {QStringLiteral("--raw"), QStringLiteral("-q"), png});
    QVERIFY(reader.waitForFinished(20000));
    QCOMPARE(QString::fromUtf8(reader.readAllStandardOutput()).trimmed(), address);
}

void TstLabPairing::missingLabViewHidesTheButton()
{
    const QString data = m_home->filePath(QStringLiteral("lab"));
    QVERIFY(pairButton(*viewFor(m_home->filePath(QStringLiteral("ovra-lab")), data))->isHidden());
    QVERIFY(
        pairButton(*viewFor(QStringLiteral(OVRA_LAB_BINARY), m_home->filePath(QStringLiteral("gone"))))->isHidden());
    // Not executable.
    writeFile(m_home->filePath(QStringLiteral("ovra-lab")), "#!/bin/sh\n");
    QVERIFY(pairButton(*viewFor(m_home->filePath(QStringLiteral("ovra-lab")), data))->isHidden());
}

void TstLabPairing::failuresAreSaid()
{
    const QString data = m_home->filePath(QStringLiteral("lab"));
    const QString hangs = m_home->filePath(QStringLiteral("hangs"));
    writeFile(hangs, "#!/bin/sh\nexec sleep 60\n");
    QVERIFY(QFile::setPermissions(hangs, QFile::ReadOwner | QFile::ExeOwner));
    const struct
    {
        QString program;
        LabPairing::Failure failure;
        const char *said;
    } cases[] = {
        {QStringLiteral("/bin/false"), LabPairing::Failure::Refused, "Die Laboransicht konnte nicht gekoppelt werden."},
        {QStringLiteral("/bin/true"), LabPairing::Failure::NoToken, "Die Laboransicht konnte nicht gekoppelt werden."},
        {hangs, LabPairing::Failure::TimedOut, "Die Laboransicht antwortet nicht."},
    };
    for (const auto &c : cases) {
        auto view = viewFor(c.program, data);
        view->Pairing().SetTimeout(300);
        QSignalSpy failed(&view->Pairing(), &LabPairing::Failed);
        QSignalSpy paired(&view->Pairing(), &LabPairing::Paired);
        pairButton(*view)->click();
        QVERIFY2(failed.wait(10000), qPrintable(c.program));
        QCOMPARE(failed.at(0).at(0).value<LabPairing::Failure>(), c.failure);
        QVERIFY2(statusText(*view).endsWith(QLatin1String(c.said)), qPrintable(statusText(*view)));
        QVERIFY(pairButton(*view)->isEnabled());
        QVERIFY(!view->findChild<ovra::Popups::PopupQRCode *>()->isVisible());
        QVERIFY(!failed.wait(500) && paired.isEmpty()); // said once, and nothing after
    }
}

QTEST_MAIN(TstLabPairing)
#include "tst_labpairing.moc"
