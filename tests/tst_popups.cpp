// The popups as the user and the main window meet them: what each button sends, that the
// popup then goes away, that it holds the page behind it, the blinking door warning, and the
// two date/time entries.

#include "faults/popupdeletefailurelist.h"
#include "popups/popup.h"
#include "popups/popupargonfailure.h"
#include "popups/popupdeleteprogram.h"
#include "popups/popupquitprogram.h"
#include "popups/popupstop.h"
#include "popups/popuptempwarning.h"
#include "popups/popuptimeadjust.h"
#include "popups/timerpopup.h"
#include "touch.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace ovra::Popups;

namespace {

using Factory = QDialog *(*)(QWidget *);
template <class T>
QDialog *create(QWidget *parent)
{
    return new T(parent);
}

QLineEdit *field(QWidget *popup, const char *name)
{
    return popup->findChild<QLineEdit *>(QString::fromLatin1(name));
}

bool isCurrent(QLineEdit *f)
{
    return f->property("current").toBool();
}

} // namespace

Q_DECLARE_METATYPE(Factory)

class TstPopups : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void confirmButtons_data();
    void confirmButtons();
    void overlayDimsAndHoldsThePage();
    void materialChoice();
    void tempWarningBlinksUntilHidden();

    void timerRefusesMalformedAndFollowsLengthRule();
    void timerClearAndNextField();
    void timerOkBuildsRequest();

    void timeAdjustRefusesInvalidDateAndPads();

private:
    // Shows the popup and waits until it is on screen.
    bool showPopup(QWidget *popup)
    {
        popup->show();
        return QTest::qWaitForWindowExposed(popup);
    }

    std::unique_ptr<QWidget> m_host;
};

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

void TstPopups::confirmButtons_data()
{
    QTest::addColumn<Factory>("create");
    QTest::addColumn<QByteArray>("okName");
    QTest::addColumn<QByteArray>("cancelName"); // empty: there is none
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QVariantList>("okArgs");
    QTest::addColumn<QVariant>("cancelArg"); // invalid: cancel sends nothing

    const auto row = [](const char *tag, Factory popup, const char *ok, const char *cancel, const char *signal,
                        const QVariantList &okArgs, const QVariant &cancelArg) {
        QTest::newRow(tag) << popup << QByteArray(ok) << QByteArray(cancel) << QByteArray(signal) << okArgs
                           << cancelArg;
    };
    const char *okButton = "pushButton_OK", *cancelButton = "pushButton_Cancel";
    row("stop", create<PopupStop>, okButton, cancelButton, SIGNAL(SignalPopupStopButton(bool)), {true}, false);
    // The factory-reset and override questions are answered in the service and editor tests.
    row("delete program", create<PopupDeleteProgram>, okButton, cancelButton, SIGNAL(SignalDeleteProgram()), {}, {});
    row("quit program", create<PopupQuitProgram>, "pushButton_okQuit", "pushButton_nokQuit",
        SIGNAL(SignalQuitProgram()), {}, {});
    row("delete failure list", create<PopupDeleteFailureList>, "pushButton_OKDel", "pushButton_XDel",
        SIGNAL(SignalPopupDeleteFailureListButton()), {}, {});
    row("argon failure", create<PopupArgonFailure>, "pushButton_ArgonFailureOK", "",
        SIGNAL(SignalPopupArgonFailureOK()), {}, {});
}

void TstPopups::confirmButtons()
{
    QFETCH(Factory, create);
    QFETCH(QByteArray, okName);
    QFETCH(QByteArray, cancelName);
    QFETCH(QByteArray, signal);
    QFETCH(QVariantList, okArgs);
    QFETCH(QVariant, cancelArg);

    for (const bool ok : {true, false}) {
        if (!ok && cancelName.isEmpty())
            break;
        // Without a window to live in, a popup is a window of its own and answers the same.
        std::unique_ptr<QDialog> popup(create(ok ? m_host.get() : nullptr));
        QSignalSpy spy(popup.get(), signal.constData());
        QVERIFY(showPopup(popup.get()));
        // A button says what it does, in words.
        const auto *button = popup->findChild<QPushButton *>(QString::fromLatin1(ok ? okName : cancelName));
        QVERIFY(button && !button->text().isEmpty());
        Tap(popup.get(), (ok ? okName : cancelName).constData());
        QVERIFY(!popup->isVisible());
        if (!cancelName.isEmpty()) // a lone OK only hides
            QCOMPARE(popup->result(), int(ok ? QDialog::Accepted : QDialog::Rejected));
        QCOMPARE(spy.count(), ok || cancelArg.isValid() ? 1 : 0);
        if (!spy.isEmpty())
            QCOMPARE(spy.at(0), ok ? okArgs : QVariantList{cancelArg});
    }
}

void TstPopups::overlayDimsAndHoldsThePage()
{
    // A popup made for a page still covers the whole window, which keeps every touch.
    auto *page = new QWidget(m_host.get());
    page->resize(800, 480);
    auto *pageButton = new QPushButton(page);
    pageButton->setGeometry(10, 420, 60, 50); // where the back button sits, beside the card
    page->show();
    const QColor before = m_host->grab().toImage().pixelColor(400, 5);
    QSignalSpy pageTaps(pageButton, &QPushButton::clicked);
    PopupStop popup(page);
    popup.open();
    QVERIFY(QTest::qWaitForWindowExposed(m_host.get()));
    QCOMPARE(popup.parentWidget(), m_host.get());
    QVERIFY(!popup.isWindow());
    QCOMPARE(popup.geometry(), m_host->rect());
    QVERIFY(m_host->grab().toImage().pixelColor(400, 5).lightness() < before.lightness());
    QTest::mouseClick(m_host->windowHandle(), Qt::LeftButton, {}, QPoint(40, 445));
    QCOMPARE(pageTaps.count(), 0);

    Tap(&popup, "pushButton_OK");
    QVERIFY(!popup.isVisible());
    QTest::mouseClick(m_host->windowHandle(), Qt::LeftButton, {}, QPoint(40, 445));
    QCOMPARE(pageTaps.count(), 1);
}

void TstPopups::materialChoice()
{
    // Other code picks the material through the slot without the popup on screen.
    Popup hidden(m_host.get());
    QSignalSpy hiddenSpy(&hidden, &Popup::SignalPopupButton);
    hidden.on_pushButton_ZirkonPopup_clicked();
    QCOMPARE(hiddenSpy.count(), 1);
    QCOMPARE(hiddenSpy.at(0).at(0).toString(), QStringLiteral("Zirkon"));

    Popup shown(m_host.get());
    QSignalSpy spy(&shown, &Popup::SignalPopupButton);
    QVERIFY(showPopup(&shown));
    Tap(&shown, "pushButton_ArgonPopup");
    // Exactly once: the form's connect-by-name must not add a second connection.
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Argon"));
    QVERIFY(!shown.isVisible());
}

void TstPopups::tempWarningBlinksUntilHidden()
{
    PopupTempWarning popup(m_host.get());
    popup.SetBlinkInterval(20);
    popup.Show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QVERIFY(popup.IsGraphicVisible());
    QTRY_VERIFY(!popup.IsGraphicVisible());
    // A repeated Show() (every status message while the door is open) must neither relight
    // the graphic nor stop the blinking.
    popup.Show();
    QVERIFY(!popup.IsGraphicVisible());
    QTRY_VERIFY(popup.IsGraphicVisible());
    QTRY_VERIFY(!popup.IsGraphicVisible());
    // Asking for the door to close keeps it up until the door is reported closed.
    Tap(&popup, "pushButton_DoorClose"); // the request it sends: the firing test
    QVERIFY(popup.isVisible());
    QVERIFY(popup.IsBlinking());

    popup.Hide();
    QVERIFY(!popup.isVisible());
    QVERIFY(!popup.IsBlinking());
    // Comes back lit, not in the dark half of a blink.
    QVERIFY(popup.IsGraphicVisible());
    // The main window may also just hide() it.
    popup.Show();
    popup.hide();
    QVERIFY(!popup.IsBlinking());
}

void TstPopups::timerRefusesMalformedAndFollowsLengthRule()
{
    TimerPopup popup(m_host.get());
    QVERIFY(showPopup(&popup));
    QVERIFY(popup.SetDateTime(QStringLiteral("03.03.2027"), QStringLiteral("09:05")));
    QLineEdit *year = field(&popup, "lineEdit_year");
    QLineEdit *hour = field(&popup, "lineEdit_hour");
    QLineEdit *minute = field(&popup, "lineEdit_minute");
    // A malformed text is refused and changes nothing (which texts are: the timer input test).
    QVERIFY(!popup.SetDateTime(QStringLiteral("04.04"), QStringLiteral("10:10")));
    QCOMPARE(year->text(), QStringLiteral("2027"));

    Tap(&popup, {"pushButton_enter", "pushButton_enter", "pushButton_2"});
    // A full field starts over with the digit.
    QCOMPARE(year->text(), QStringLiteral("2"));
    Tap(&popup, {"pushButton_0", "pushButton_2", "pushButton_8"});
    QCOMPARE(year->text(), QStringLiteral("2028"));

    Tap(&popup, {"pushButton_enter", "pushButton_1", "pushButton_2"});
    QCOMPARE(hour->text(), QStringLiteral("12"));

    // Minutes take 00..59 only: a tens digit of 7 is refused by the field.
    Tap(&popup, {"pushButton_enter", "pushButton_7"});
    QCOMPARE(minute->text(), QString());
    Tap(&popup, {"pushButton_4", "pushButton_5"});
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

    Tap(&popup, "pushButton_clr");
    QCOMPARE(order[0]->text(), QStringLiteral("0"));
    QCOMPARE(order[1]->text(), QStringLiteral("04"));

    // day -> month -> year -> hour -> minute -> day, with the keyboard focus along.
    for (int step = 1; step <= order.size(); ++step) {
        Tap(&popup, "pushButton_enter");
        QLineEdit *expected = order[step % order.size()];
        for (QLineEdit *f : order)
            QCOMPARE(isCurrent(f), f == expected);
        QTRY_COMPARE(QApplication::focusWidget(), expected);
    }
}

void TstPopups::timerOkBuildsRequest()
{
    // 31 April: OK sends the corrected start, cancel nothing. Either way the user sees the
    // start as sent when the popup opens again.
    for (const bool ok : {true, false}) {
        TimerPopup popup(m_host.get());
        popup.SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(10, 0)); });
        QSignalSpy spy(&popup, &TimerPopup::SignalAutoStartTimerSet);
        QVERIFY(showPopup(&popup));
        QVERIFY(popup.SetDateTime(QStringLiteral("31.04.2027"), QStringLiteral("12:00")));
        Tap(&popup, ok ? "pushButton_ok" : "pushButton_cancel");

        QCOMPARE(spy.count(), ok ? 1 : 0);
        QCOMPARE(popup.GetRequestedTimer(), ok ? QStringLiteral("timer==20270430,1200") : QString());
        QVERIFY(!popup.isVisible());
        QStringList shown;
        for (const char *name : {"lineEdit_day", "lineEdit_month", "lineEdit_year", "lineEdit_hour", "lineEdit_minute"})
            shown << field(&popup, name)->text();
        QCOMPARE(shown, (QStringList{ok ? "30" : "31", "04", "2027", "12", "00"}));
    }
}

void TstPopups::timeAdjustRefusesInvalidDateAndPads()
{
    PopupTimeAdjust popup(m_host.get());
    QSignalSpy dates(&popup, &PopupTimeAdjust::SignalDateAdjust);
    QSignalSpy times(&popup, &PopupTimeAdjust::SignalTimeAdjust);
    QVERIFY(showPopup(&popup));
    popup.SetDateTime(QStringLiteral("31.04.2027"), QStringLiteral("9:5"));
    QLineEdit *day = field(&popup, "lineEdit_day");
    auto *error = popup.findChild<QLabel *>(QStringLiteral("label_Error"));

    Tap(&popup, {"pushButton_enter", "pushButton_ok"}); // the day field must become current again
    QCOMPARE(dates.count() + times.count(), 0);
    QVERIFY(popup.isVisible());
    QVERIFY(day->property("invalid").toBool());
    QVERIFY(!field(&popup, "lineEdit_month")->property("invalid").toBool());
    QVERIFY(error->isVisible());
    QVERIFY(isCurrent(day));

    // Editing the marked field takes the mark away; the 3rd is accepted and sent padded.
    Tap(&popup, "pushButton_clr");
    QVERIFY(!day->property("invalid").toBool());
    Tap(&popup, {"pushButton_clr", "pushButton_3", "pushButton_ok"});
    QCOMPARE(dates.count(), 1);
    QCOMPARE(dates.at(0).at(0).toString(), QStringLiteral("20270403"));
    QCOMPARE(times.at(0).at(0).toString(), QStringLiteral("0905"));
    QVERIFY(!popup.isVisible());

    QVERIFY(showPopup(&popup));
    Tap(&popup, "pushButton_cancel");
    QCOMPARE(dates.count() + times.count(), 2);
    QVERIFY(!popup.isVisible());
}

QTEST_MAIN(TstPopups)
#include "tst_popups.moc"
