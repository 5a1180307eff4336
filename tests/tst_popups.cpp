// The popups as the user and the main window meet them: what each button sends, that the
// popup then goes away, the blinking door warning, and the two date/time entries.

#include "faults/errorhandler.h"
#include "faults/popupdeletefailurelist.h"
#include "faults/popupfailure.h"
#include "popups/popup.h"
#include "popups/popupargonfailure.h"
#include "popups/popupdeleteprogram.h"
#include "popups/popuplicense.h"
#include "popups/popupoverrideprog.h"
#include "popups/popupqrcode.h"
#include "popups/popupquitprogram.h"
#include "popups/popupsettings.h"
#include "popups/popupstop.h"
#include "popups/popuptempwarning.h"
#include "popups/popuptimeadjust.h"
#include "popups/popupusb.h"
#include "popups/timerpopup.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <memory>

using namespace ovra::Popups;

namespace {

std::unique_ptr<PopupBase> makePopup(const QString &name, QWidget *parent,
                                     ovra::GlobalElements::ErrorHandler *errors = nullptr)
{
    static const QMap<QString, std::function<PopupBase *(QWidget *)>> factories = {
        {QStringLiteral("Popup"), [](QWidget *p) { return new Popup(p); }},
        {QStringLiteral("PopupSettings"), [](QWidget *p) { return new PopupSettings(p); }},
        {QStringLiteral("PopupDeleteFailureList"), [](QWidget *p) { return new PopupDeleteFailureList(p); }},
        {QStringLiteral("PopupStop"), [](QWidget *p) { return new PopupStop(p); }},
        {QStringLiteral("PopupDeleteProgram"), [](QWidget *p) { return new PopupDeleteProgram(p); }},
        {QStringLiteral("PopupQuitProgram"), [](QWidget *p) { return new PopupQuitProgram(p); }},
        {QStringLiteral("PopupOverrideProg"), [](QWidget *p) { return new PopupOverrideProg(p); }},
        {QStringLiteral("PopupArgonFailure"), [](QWidget *p) { return new PopupArgonFailure(p); }},
        {QStringLiteral("PopupTempWarning"), [](QWidget *p) { return new PopupTempWarning(p); }},
        {QStringLiteral("PopupLicense"), [](QWidget *p) { return new PopupLicense(p); }},
        {QStringLiteral("PopupTimeAdjust"), [](QWidget *p) { return new PopupTimeAdjust(p); }},
        {QStringLiteral("PopupUSB"), [](QWidget *p) { return new PopupUSB(p); }},
        {QStringLiteral("PopupQRCode"), [](QWidget *p) { return new PopupQRCode(p); }},
        {QStringLiteral("TimerPopup"), [](QWidget *p) { return new TimerPopup(p); }},
    };
    if (name == QLatin1String("PopupFailure"))
        return std::make_unique<PopupFailure>(errors, parent);
    return std::unique_ptr<PopupBase>(factories.value(name)(parent));
}

QStringList allPopups()
{
    return {QStringLiteral("Popup"), QStringLiteral("PopupSettings"), QStringLiteral("PopupDeleteFailureList"),
            QStringLiteral("PopupFailure"), QStringLiteral("PopupStop"), QStringLiteral("PopupDeleteProgram"),
            QStringLiteral("PopupQuitProgram"), QStringLiteral("PopupOverrideProg"),
            QStringLiteral("PopupArgonFailure"), QStringLiteral("PopupTempWarning"), QStringLiteral("PopupLicense"),
            QStringLiteral("PopupTimeAdjust"), QStringLiteral("PopupUSB"), QStringLiteral("PopupQRCode"),
            QStringLiteral("TimerPopup")};
}

QPushButton *button(QWidget *popup, const char *name)
{
    auto *b = popup->findChild<QPushButton *>(QString::fromLatin1(name));
    if (!b)
        qWarning("no button %s", name);
    return b;
}

QLineEdit *field(QWidget *popup, const char *name)
{
    return popup->findChild<QLineEdit *>(QString::fromLatin1(name));
}

void click(QWidget *popup, const char *name)
{
    QPushButton *b = button(popup, name);
    QVERIFY(b);
    QTest::mouseClick(b, Qt::LeftButton);
}

bool isCurrent(QLineEdit *f)
{
    return f->property("current").toBool();
}

// Translates one word, enough to see a popup follow a language change.
class OneWordTranslator : public QTranslator
{
public:
    OneWordTranslator(const char *source, QString target)
        : m_source(source)
        , m_target(std::move(target))
    {
    }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(sourceText, m_source) == 0 ? m_target : QString();
    }
    bool isEmpty() const override { return false; }

private:
    const char *m_source;
    QString m_target;
};

} // namespace

class TstPopups : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    // Every popup
    void fitsTheScreenAndIsCentred_data();
    void fitsTheScreenAndIsCentred();
    void confirmButtons_data();
    void confirmButtons();
    void escapeDoesNotClose();
    void followsLanguageChange();

    // Single popups
    void materialChoice();
    void argonFailureHidesOnOk();
    void failureListFollowsHandler();
    void licenseNamesTheToolkitVersion();
    void usbProgress();
    void qrCodeImageAndMissingFile();

    // Door warning
    void tempWarningBlinksAndStops();
    void tempWarningShowAgainKeepsRhythm();
    void tempWarningBlinkDoesNotMoveText();
    void tempWarningRequestsDoorClose();

    // Delayed start
    void timerSetDateTimeRejectsMalformed();
    void timerDigitsFollowLengthRule();
    void timerClearAndNextField();
    void timerTappedFieldTakesDigits();
    void timerOkBuildsRequest_data();
    void timerOkBuildsRequest();
    void timerCancelSendsNothing();

    // Controller clock
    void timeAdjustSendsPaddedTexts();
    void timeAdjustRefusesInvalidDate();

private:
    std::unique_ptr<QWidget> m_host;
};

void TstPopups::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    // Sizes come out as on the panel only with the panel's style (it sets minimum heights).
    QString style;
    for (const char *path : {":/style/panel.qss", ":/style/popups.qss"}) {
        QFile file(QString::fromLatin1(path));
        QVERIFY(file.open(QIODevice::ReadOnly));
        style += QString::fromUtf8(file.readAll());
    }
    qApp->setStyleSheet(style);
}

void TstPopups::init()
{
    // The main window's place on the panel.
    m_host = std::make_unique<QWidget>();
    m_host->setGeometry(40, 30, 800, 480);
    m_host->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_host.get()));
}

void TstPopups::cleanup()
{
    m_host.reset();
}

void TstPopups::fitsTheScreenAndIsCentred_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : allPopups())
        QTest::newRow(qPrintable(name)) << name;
}

void TstPopups::fitsTheScreenAndIsCentred()
{
    QFETCH(QString, name);
    ovra::GlobalElements::ErrorHandler errors;
    auto popup = makePopup(name, m_host.get(), &errors);
    popup->show();
    QVERIFY(QTest::qWaitForWindowExposed(popup.get()));

    QVERIFY(popup->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(popup->isModal());
    const QRect screen = m_host->geometry();
    const QRect frame = popup->frameGeometry();
    QVERIFY2(screen.contains(frame), qPrintable(QStringLiteral("%1x%2").arg(frame.width()).arg(frame.height())));
    QVERIFY(qAbs(frame.center().x() - screen.center().x()) <= 1);
    QVERIFY(qAbs(frame.center().y() - screen.center().y()) <= 1);
}

void TstPopups::confirmButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("okName");
    QTest::addColumn<QByteArray>("cancelName");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QVariantList>("okArgs");
    // Null: cancel sends nothing.
    QTest::addColumn<QVariant>("cancelArg");

    const QVariantList none;
    QTest::newRow("stop") << "PopupStop" << QByteArray("pushButton_OK") << QByteArray("pushButton_Cancel")
                          << QByteArray(SIGNAL(SignalPopupStopButton(bool))) << QVariantList{true} << QVariant(false);
    QTest::newRow("factory settings") << "PopupSettings" << QByteArray("pushButton_OK") << QByteArray("pushButton_Cancel")
                                      << QByteArray(SIGNAL(SignalPopupSettingsButton(bool))) << QVariantList{true}
                                      << QVariant(false);
    QTest::newRow("override program") << "PopupOverrideProg" << QByteArray("pushButton_OK")
                                      << QByteArray("pushButton_Cancel")
                                      << QByteArray(SIGNAL(SignalOverrideProg(bool))) << QVariantList{true}
                                      << QVariant(false);
    QTest::newRow("delete program") << "PopupDeleteProgram" << QByteArray("pushButton_OK")
                                    << QByteArray("pushButton_Cancel") << QByteArray(SIGNAL(SignalDeleteProgram()))
                                    << none << QVariant();
    QTest::newRow("quit program") << "PopupQuitProgram" << QByteArray("pushButton_okQuit")
                                  << QByteArray("pushButton_nokQuit") << QByteArray(SIGNAL(SignalQuitProgram()))
                                  << none << QVariant();
    QTest::newRow("delete failure list") << "PopupDeleteFailureList" << QByteArray("pushButton_OKDel")
                                         << QByteArray("pushButton_XDel")
                                         << QByteArray(SIGNAL(SignalPopupDeleteFailureListButton())) << none
                                         << QVariant();
}

void TstPopups::confirmButtons()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, okName);
    QFETCH(QByteArray, cancelName);
    QFETCH(QByteArray, signal);
    QFETCH(QVariantList, okArgs);
    QFETCH(QVariant, cancelArg);

    {
        auto popup = makePopup(name, m_host.get());
        QSignalSpy spy(popup.get(), signal.constData());
        popup->show();
        QVERIFY(QTest::qWaitForWindowExposed(popup.get()));
        // Both buttons show the shared icons, not text.
        QVERIFY(button(popup.get(), okName.constData())->text().isEmpty());
        QVERIFY(!button(popup.get(), okName.constData())->icon().isNull());
        QVERIFY(!button(popup.get(), cancelName.constData())->icon().isNull());

        click(popup.get(), okName.constData());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0), okArgs);
        QVERIFY(!popup->isVisible());
        QCOMPARE(popup->result(), int(QDialog::Accepted));
    }
    {
        auto popup = makePopup(name, m_host.get());
        QSignalSpy spy(popup.get(), signal.constData());
        popup->show();
        QVERIFY(QTest::qWaitForWindowExposed(popup.get()));
        click(popup.get(), cancelName.constData());
        if (cancelArg.isValid()) {
            QCOMPARE(spy.count(), 1);
            QCOMPARE(spy.at(0), QVariantList{cancelArg});
        } else {
            QCOMPARE(spy.count(), 0);
        }
        QVERIFY(!popup->isVisible());
        QCOMPARE(popup->result(), int(QDialog::Rejected));
    }
}

void TstPopups::escapeDoesNotClose()
{
    PopupStop popup(m_host.get());
    QSignalSpy spy(&popup, &PopupStop::SignalPopupStopButton);
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QTest::keyClick(&popup, Qt::Key_Escape);
    QVERIFY(popup.isVisible());
    QCOMPARE(spy.count(), 0);
}

void TstPopups::followsLanguageChange()
{
    PopupStop stop(m_host.get());
    PopupQRCode qr(m_host.get());
    qr.SetImage(QStringLiteral("/nonexistent/qr.png"));

    OneWordTranslator toEnglish("Prozess wird abgebrochen!", QStringLiteral("Process will be aborted!"));
    OneWordTranslator qrEnglish("QR Code nicht verfügbar", QStringLiteral("QR code not available"));
    QCoreApplication::installTranslator(&toEnglish);
    QCoreApplication::installTranslator(&qrEnglish);
    auto *message = stop.findChild<QLabel *>(QStringLiteral("label_Message"));
    auto *qrLabel = qr.findChild<QLabel *>(QStringLiteral("label_QRCode"));
    QTRY_COMPARE(message->text(), QStringLiteral("Process will be aborted!"));
    // Text set in code, not in the form, must follow too.
    QTRY_COMPARE(qrLabel->text(), QStringLiteral("QR code not available"));
    // Re-translating must not bring text back onto the icon buttons.
    QVERIFY(button(&stop, "pushButton_OK")->text().isEmpty());

    QCoreApplication::removeTranslator(&toEnglish);
    QCoreApplication::removeTranslator(&qrEnglish);
    QTRY_COMPARE(message->text(), QStringLiteral("Prozess wird abgebrochen!"));
}

void TstPopups::materialChoice()
{
    // Other code picks the material through the slot without the popup on screen.
    Popup hidden(m_host.get());
    QSignalSpy hiddenSpy(&hidden, &Popup::SignalPopupButton);
    hidden.on_pushButton_ZirkonPopup_clicked();
    QCOMPARE(hiddenSpy.count(), 1);
    QCOMPARE(hiddenSpy.at(0).at(0).toString(), QStringLiteral("Zirkon"));
    QVERIFY(!hidden.isVisible());

    Popup shown(m_host.get());
    QSignalSpy spy(&shown, &Popup::SignalPopupButton);
    shown.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown));
    click(&shown, "pushButton_ArgonPopup");
    // Exactly once: the form's connect-by-name must not add a second connection.
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Argon"));
    QVERIFY(!shown.isVisible());
}

void TstPopups::argonFailureHidesOnOk()
{
    PopupArgonFailure popup(m_host.get());
    QSignalSpy spy(&popup, &PopupArgonFailure::SignalPopupArgonFailureOK);
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    click(&popup, "pushButton_ArgonFailureOK");
    QCOMPARE(spy.count(), 1);
    QVERIFY(!popup.isVisible());
}

void TstPopups::failureListFollowsHandler()
{
    ovra::GlobalElements::ErrorHandler errors;
    errors.AddError(QStringLiteral("123"));
    PopupFailure popup(&errors, m_host.get());
    QCOMPARE(popup.GetFailurePopupText(), QStringLiteral("123\n"));

    errors.AddError(QStringLiteral("4567"));
    QCOMPARE(popup.GetFailurePopupText(), QStringLiteral("4567\n123\n"));

    popup.SetFailurePopupText(QStringLiteral("E01\nE02"));
    QCOMPARE(popup.GetFailurePopupText(), QStringLiteral("E01\nE02"));
    errors.DeleteProcessErrorList();
    QCOMPARE(popup.GetFailurePopupText(), QString());

    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    click(&popup, "pushButton_OK");
    QVERIFY(!popup.isVisible());

    // Without a handler it only shows what it is given.
    PopupFailure alone(nullptr, m_host.get());
    alone.SetFailurePopupText(QStringLiteral("999"));
    QCOMPARE(alone.GetFailurePopupText(), QStringLiteral("999"));
}

void TstPopups::licenseNamesTheToolkitVersion()
{
    PopupLicense popup(m_host.get());
    QVERIFY(popup.GetLicenseText().contains(QString::fromLatin1(qVersion())));
    QVERIFY(popup.GetLicenseText().contains(QStringLiteral("LGPL")));
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    click(&popup, "pushButton_OK");
    QVERIFY(!popup.isVisible());
}

void TstPopups::usbProgress()
{
    PopupUSB popup(m_host.get());
    auto *percent = popup.findChild<QLabel *>(QStringLiteral("label_Percent"));
    popup.SetText(QStringLiteral("  Firmware Aktualisierung...\n  Bitte warten..."));
    QCOMPARE(popup.GetText(), QStringLiteral("  Firmware Aktualisierung...\n  Bitte warten..."));

    popup.SlotUpdateProgress(QStringLiteral("37"));
    QCOMPARE(popup.GetProgress(), 37);
    QCOMPARE(percent->text(), QStringLiteral("37%"));
    popup.SlotUpdateProgress(QStringLiteral(" 42% "));
    QCOMPARE(popup.GetProgress(), 42);
    QCOMPARE(percent->text(), QStringLiteral("42%"));
    popup.SlotUpdateProgress(QStringLiteral("fertig"));
    QCOMPARE(popup.GetProgress(), 42);
    QCOMPARE(percent->text(), QStringLiteral("42%"));
    popup.SlotUpdateProgress(QStringLiteral("150"));
    QCOMPARE(popup.GetProgress(), 100);
    QCOMPARE(percent->text(), QStringLiteral("100%"));

    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    popup.SetBusy(true);
    QVERIFY(popup.IsBusy());
    click(&popup, "pushButton_USBProgress");
    QVERIFY(popup.isVisible());
    popup.SetBusy(false);
    click(&popup, "pushButton_USBProgress");
    QVERIFY(!popup.isVisible());
}

void TstPopups::qrCodeImageAndMissingFile()
{
    PopupQRCode popup(m_host.get());
    auto *label = popup.findChild<QLabel *>(QStringLiteral("label_QRCode"));

    popup.SetImage(QStringLiteral("/nonexistent/qr.png"));
    QVERIFY(!popup.HasImage());
    QCOMPARE(label->text(), QStringLiteral("QR Code nicht verfügbar"));

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("qr.png"));
    QImage big(400, 400, QImage::Format_RGB32);
    big.fill(Qt::white);
    QVERIFY(big.save(path));
    popup.SetImage(path);
    QVERIFY(popup.HasImage());
    QVERIFY(label->text().isEmpty());
    // A large picture is scaled into the card.
    QCOMPARE(label->pixmap(Qt::ReturnByValue).size(), QSize(PopupQRCode::imageSide, PopupQRCode::imageSide));

    popup.SetImage(dir.filePath(QStringLiteral("gone.png")));
    QVERIFY(!popup.HasImage());
    QVERIFY(label->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(label->text(), QStringLiteral("QR Code nicht verfügbar"));

    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    click(&popup, "pushButton_OK");
    QVERIFY(!popup.isVisible());
}

void TstPopups::tempWarningBlinksAndStops()
{
    PopupTempWarning popup(m_host.get());
    popup.SetBlinkInterval(20);
    QVERIFY(!popup.IsBlinking());

    popup.Show();
    QVERIFY(popup.isVisible());
    QVERIFY(popup.IsBlinking());
    QVERIFY(popup.IsGraphicVisible());
    QTRY_VERIFY(!popup.IsGraphicVisible());
    QTRY_VERIFY(popup.IsGraphicVisible());
    QTRY_VERIFY(!popup.IsGraphicVisible());

    popup.Hide();
    QVERIFY(!popup.isVisible());
    QVERIFY(!popup.IsBlinking());
    // Comes back lit, not in the dark half of a blink.
    QVERIFY(popup.IsGraphicVisible());

    // The main window may also just hide() it.
    popup.Show();
    QVERIFY(popup.IsBlinking());
    popup.hide();
    QVERIFY(!popup.IsBlinking());
}

void TstPopups::tempWarningShowAgainKeepsRhythm()
{
    PopupTempWarning popup(m_host.get());
    popup.SetBlinkInterval(20);

    popup.Show();
    QTRY_VERIFY(!popup.IsGraphicVisible());
    // A repeated Show() (every status message while the door is open) must neither relight
    // the graphic nor stop the blinking.
    popup.Show();
    QVERIFY(!popup.IsGraphicVisible());
    QVERIFY(popup.IsBlinking());
    QCOMPARE(popup.GetBlinkInterval(), 20);
    QTRY_VERIFY(popup.IsGraphicVisible());
    QTRY_VERIFY(!popup.IsGraphicVisible());
}

void TstPopups::tempWarningBlinkDoesNotMoveText()
{
    PopupTempWarning popup(m_host.get());
    popup.Show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    auto *message = popup.findChild<QLabel *>(QStringLiteral("label_Message"));
    const QRect lit = message->geometry();
    popup.SlotToggleGraphic();
    QVERIFY(!popup.IsGraphicVisible());
    QCoreApplication::processEvents();
    QCOMPARE(message->geometry(), lit);
}

void TstPopups::tempWarningRequestsDoorClose()
{
    PopupTempWarning popup(m_host.get());
    QSignalSpy spy(&popup, &PopupTempWarning::SignalRequestDoorClose);
    popup.Show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    click(&popup, "pushButton_DoorClose");
    QCOMPARE(spy.count(), 1);
    // It stays until the door is reported closed.
    QVERIFY(popup.isVisible());
    QVERIFY(popup.IsBlinking());
}

void TstPopups::timerSetDateTimeRejectsMalformed()
{
    TimerPopup popup(m_host.get());
    QVERIFY(popup.SetDateTime(QStringLiteral("03.03.2027"), QStringLiteral("09:05")));
    QCOMPARE(field(&popup, "lineEdit_day")->text(), QStringLiteral("03"));
    QCOMPARE(field(&popup, "lineEdit_minute")->text(), QStringLiteral("05"));

    QVERIFY(!popup.SetDateTime(QStringLiteral("04.04"), QStringLiteral("10:10")));
    QVERIFY(!popup.SetDateTime(QStringLiteral("04.04.2028"), QStringLiteral("1010")));
    QVERIFY(!popup.SetDateTime(QString(), QString()));
    QCOMPARE(field(&popup, "lineEdit_day")->text(), QStringLiteral("03"));
    QCOMPARE(field(&popup, "lineEdit_year")->text(), QStringLiteral("2027"));
    QCOMPARE(field(&popup, "lineEdit_minute")->text(), QStringLiteral("05"));
}

void TstPopups::timerDigitsFollowLengthRule()
{
    TimerPopup popup(m_host.get());
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QVERIFY(popup.SetDateTime(QStringLiteral("03.03.2027"), QStringLiteral("09:05")));
    QLineEdit *hour = field(&popup, "lineEdit_hour");
    QLineEdit *year = field(&popup, "lineEdit_year");
    QLineEdit *minute = field(&popup, "lineEdit_minute");

    click(&popup, "pushButton_enter");
    click(&popup, "pushButton_enter");
    QVERIFY(isCurrent(year));
    // A full year field starts over with the digit.
    click(&popup, "pushButton_2");
    QCOMPARE(year->text(), QStringLiteral("2"));
    click(&popup, "pushButton_0");
    click(&popup, "pushButton_2");
    click(&popup, "pushButton_8");
    QCOMPARE(year->text(), QStringLiteral("2028"));

    click(&popup, "pushButton_enter");
    QVERIFY(isCurrent(hour));
    click(&popup, "pushButton_1");
    QCOMPARE(hour->text(), QStringLiteral("1"));
    click(&popup, "pushButton_2");
    QCOMPARE(hour->text(), QStringLiteral("12"));
    // The third digit clears the field and starts it again.
    click(&popup, "pushButton_3");
    QCOMPARE(hour->text(), QStringLiteral("3"));

    click(&popup, "pushButton_enter");
    QVERIFY(isCurrent(minute));
    // Minutes take 00..59 only: a tens digit of 7 is refused by the field.
    click(&popup, "pushButton_7");
    QCOMPARE(minute->text(), QString());
    click(&popup, "pushButton_4");
    click(&popup, "pushButton_5");
    QCOMPARE(minute->text(), QStringLiteral("45"));
}

void TstPopups::timerClearAndNextField()
{
    TimerPopup popup(m_host.get());
    popup.show();
    QVERIFY(QTest::qWaitForWindowActive(&popup));
    QVERIFY(popup.SetDateTime(QStringLiteral("03.04.2027"), QStringLiteral("09:05")));
    const QVector<QLineEdit *> order = {field(&popup, "lineEdit_day"), field(&popup, "lineEdit_month"),
                                        field(&popup, "lineEdit_year"), field(&popup, "lineEdit_hour"),
                                        field(&popup, "lineEdit_minute")};
    QVERIFY(isCurrent(order[0]));
    QTRY_COMPARE(QApplication::focusWidget(), order[0]);

    click(&popup, "pushButton_clr");
    QCOMPARE(order[0]->text(), QStringLiteral("0"));
    QCOMPARE(order[1]->text(), QStringLiteral("04"));

    // day -> month -> year -> hour -> minute -> day, with the keyboard focus along.
    for (int step = 1; step <= order.size(); ++step) {
        click(&popup, "pushButton_enter");
        QLineEdit *expected = order[step % order.size()];
        for (QLineEdit *f : order)
            QCOMPARE(isCurrent(f), f == expected);
        QTRY_COMPARE(QApplication::focusWidget(), expected);
    }

    // Clearing an empty field is harmless and leaves the others alone.
    click(&popup, "pushButton_clr");
    QCOMPARE(order[0]->text(), QString());
    click(&popup, "pushButton_clr");
    QCOMPARE(order[0]->text(), QString());
    QCOMPARE(order[1]->text(), QStringLiteral("04"));
}

void TstPopups::timerTappedFieldTakesDigits()
{
    TimerPopup popup(m_host.get());
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QVERIFY(popup.SetDateTime(QStringLiteral("03.04.2027"), QStringLiteral("09:05")));
    QLineEdit *month = field(&popup, "lineEdit_month");
    QTest::mouseClick(month, Qt::LeftButton);
    QVERIFY(isCurrent(month));
    click(&popup, "pushButton_7");
    QCOMPARE(month->text(), QStringLiteral("7"));
    QCOMPARE(field(&popup, "lineEdit_day")->text(), QStringLiteral("03"));
}

void TstPopups::timerOkBuildsRequest_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QStringList>("fields");

    // The clock is pinned at 22.11.2026 10:00.
    QTest::newRow("as typed") << "03.03.2027" << "09:05" << "timer==20270303,0905"
                              << QStringList{"03", "03", "2027", "09", "05"};
    QTest::newRow("single digits padded") << "3.3.2027" << "9:5" << "timer==20270303,0905"
                                          << QStringList{"03", "03", "2027", "09", "05"};
    QTest::newRow("31 April") << "31.04.2027" << "12:00" << "timer==20270430,1200"
                              << QStringList{"30", "04", "2027", "12", "00"};
    QTest::newRow("past year") << "24.12.2020" << "08:00" << "timer==20261224,0800"
                               << QStringList{"24", "12", "2026", "08", "00"};
    QTest::newRow("earlier today") << "22.11.2026" << "09:00" << "timer==20261123,0900"
                                   << QStringList{"23", "11", "2026", "09", "00"};
}

void TstPopups::timerOkBuildsRequest()
{
    QFETCH(QString, date);
    QFETCH(QString, time);
    QFETCH(QString, request);
    QFETCH(QStringList, fields);

    TimerPopup popup(m_host.get());
    popup.SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(10, 0)); });
    QSignalSpy spy(&popup, &TimerPopup::SignalAutoStartTimerSet);
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QVERIFY(popup.SetDateTime(date, time));
    click(&popup, "pushButton_ok");

    QCOMPARE(spy.count(), 1);
    QCOMPARE(popup.GetRequestedTimer(), request);
    QVERIFY(!popup.isVisible());
    // The user sees the corrected start when the popup opens again.
    const QStringList shown = {field(&popup, "lineEdit_day")->text(), field(&popup, "lineEdit_month")->text(),
                               field(&popup, "lineEdit_year")->text(), field(&popup, "lineEdit_hour")->text(),
                               field(&popup, "lineEdit_minute")->text()};
    QCOMPARE(shown, fields);

    popup.ResetRequest();
    QVERIFY(popup.GetRequestedTimer().isEmpty());
}

void TstPopups::timerCancelSendsNothing()
{
    TimerPopup popup(m_host.get());
    QSignalSpy spy(&popup, &TimerPopup::SignalAutoStartTimerSet);
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QVERIFY(popup.SetDateTime(QStringLiteral("03.03.2099"), QStringLiteral("09:05")));
    click(&popup, "pushButton_cancel");
    QCOMPARE(spy.count(), 0);
    QVERIFY(popup.GetRequestedTimer().isEmpty());
    QVERIFY(!popup.isVisible());
}

void TstPopups::timeAdjustSendsPaddedTexts()
{
    PopupTimeAdjust popup(m_host.get());
    QSignalSpy dates(&popup, &PopupTimeAdjust::SignalDateAdjust);
    QSignalSpy times(&popup, &PopupTimeAdjust::SignalTimeAdjust);
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    popup.SetDateTime(QStringLiteral("29.02.2028"), QStringLiteral("23:59"));
    click(&popup, "pushButton_OK");
    QCOMPARE(dates.count(), 1);
    QCOMPARE(dates.at(0).at(0).toString(), QStringLiteral("20280229"));
    QCOMPARE(times.at(0).at(0).toString(), QStringLiteral("2359"));
    QVERIFY(!popup.isVisible());

    // Typed on the pad, single digits are padded.
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    popup.SetDateTime(QStringLiteral("01.01.2027"), QStringLiteral("00:00"));
    click(&popup, "pushButton_5");              // day 5
    click(&popup, "pushButton_Next");
    click(&popup, "pushButton_3");              // month 3
    click(&popup, "pushButton_Next");
    click(&popup, "pushButton_Next");
    click(&popup, "pushButton_9");              // hour 9
    click(&popup, "pushButton_Next");
    click(&popup, "pushButton_Clear");
    click(&popup, "pushButton_Clear");
    click(&popup, "pushButton_7");              // minute 7
    click(&popup, "pushButton_OK");
    QCOMPARE(dates.count(), 2);
    QCOMPARE(dates.at(1).at(0).toString(), QStringLiteral("20270305"));
    QCOMPARE(times.at(1).at(0).toString(), QStringLiteral("0907"));

    // Cancel sends nothing.
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    click(&popup, "pushButton_Cancel");
    QCOMPARE(dates.count(), 2);
    QCOMPARE(times.count(), 2);
    QVERIFY(!popup.isVisible());
}

void TstPopups::timeAdjustRefusesInvalidDate()
{
    PopupTimeAdjust popup(m_host.get());
    QSignalSpy dates(&popup, &PopupTimeAdjust::SignalDateAdjust);
    QSignalSpy times(&popup, &PopupTimeAdjust::SignalTimeAdjust);
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    popup.SetDateTime(QStringLiteral("31.04.2027"), QStringLiteral("10:00"));
    QLineEdit *day = field(&popup, "lineEdit_day");
    QLineEdit *month = field(&popup, "lineEdit_month");
    auto *error = popup.findChild<QLabel *>(QStringLiteral("label_Error"));

    click(&popup, "pushButton_Next"); // the day field must become current again
    click(&popup, "pushButton_OK");
    QCOMPARE(dates.count(), 0);
    QCOMPARE(times.count(), 0);
    QVERIFY(popup.isVisible());
    QVERIFY(day->property("invalid").toBool());
    QVERIFY(!month->property("invalid").toBool());
    QVERIFY(error->isVisible());
    QVERIFY(isCurrent(day));

    // Editing the marked field takes the mark away; 30 April is accepted.
    click(&popup, "pushButton_Clear");
    QVERIFY(!day->property("invalid").toBool());
    click(&popup, "pushButton_Clear");
    click(&popup, "pushButton_3");
    click(&popup, "pushButton_0");
    click(&popup, "pushButton_OK");
    QCOMPARE(dates.count(), 1);
    QCOMPARE(dates.at(0).at(0).toString(), QStringLiteral("20270430"));
    QCOMPARE(times.at(0).at(0).toString(), QStringLiteral("1000"));
    QVERIFY(!popup.isVisible());
    QVERIFY(!error->isVisible());

    // A fresh SetDateTime clears old marks.
    popup.SetDateTime(QStringLiteral("01.13.2027"), QStringLiteral("25:00"));
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    click(&popup, "pushButton_OK");
    QVERIFY(month->property("invalid").toBool());
    QVERIFY(field(&popup, "lineEdit_hour")->property("invalid").toBool());
    QVERIFY(!day->property("invalid").toBool());
    popup.SetDateTime(QStringLiteral("01.12.2027"), QStringLiteral("23:00"));
    QVERIFY(!month->property("invalid").toBool());
    QVERIFY(!field(&popup, "lineEdit_hour")->property("invalid").toBool());
    QVERIFY(!error->isVisible());
}

QTEST_MAIN(TstPopups)
#include "tst_popups.moc"
