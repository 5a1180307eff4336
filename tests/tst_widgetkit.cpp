// The touch widget kit, driven through its real child buttons as a finger would.
#include "faults/testdisplayelement.h"
#include "programs/program.h"
#include "touch.h"
#include "widgets/button.h"
#include "widgets/captionfit.h"
#include "widgets/displayelementicon.h"
#include "widgets/iconbutton.h"
#include "widgets/keyboard.h"
#include "widgets/numpad.h"
#include "widgets/programbutton.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

using namespace ovra::GlobalElements;
using Page = Pageinterface::en_pages;

class TestWidgetKit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void captionText_data();
    void captionText();
    void captionWrapsWithoutSpaces_data();
    void captionWrapsWithoutSpaces();

    void iconsNamedByAForm();

    void selftestRowMayBeDeletedByListener();

    void programButtonReflectsTheRecordSilently();

    void pinPad();

    void keyboardInsertsAtCursor();
    void keyboardShiftIsOneShot();
    void keyboardWithoutTargetDoesNothing();
};

void TestWidgetKit::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qRegisterMetaType<Page>();
}

void TestWidgetKit::captionText_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *tag, const char *caption, const char *shown) {
        QTest::newRow(tag) << QString::fromUtf8(caption) << QString::fromUtf8(shown);
    };
    row("escaped ampersand", "Datum && Uhrzeit", "Datum & Uhrzeit");
    row("mnemonic dropped", "&Service", "Service");
    row("escaped, then mnemonic", "A&&&B", "A&B");
    row("trailing ampersand", "Ende&", "Ende");
}

void TestWidgetKit::captionText()
{
    QFETCH(QString, caption);
    QFETCH(QString, shown);
    QCOMPARE(CaptionFit::DisplayText(CaptionFit::Escape(shown)), shown);
    // A button shows the caption, a program entry shows its name literally.
    Button button;
    button.SetText(caption);
    button.resize(400, 80);
    button.show();
    QCOMPARE(CaptionFit::DisplayText(button.GetPushButtonObject()->text()), shown);
    ProgramButton entry;
    entry.resize(720, 64);
    entry.show();
    entry.SetText(caption);
    QCOMPARE(CaptionFit::DisplayText(entry.GetPushButtonObject()->text()), caption);
}

void TestWidgetKit::captionWrapsWithoutSpaces_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("widest"); // the line that sets the room
    QTest::addColumn<QString>("fitted");
    const auto row = [](const char *tag, const char *caption, const char *widest, const char *fitted) {
        QTest::newRow(tag) << QString::fromUtf8(caption) << QString::fromUtf8(widest) << QString::fromUtf8(fitted);
    };
    row("after a hyphen", "Service-Funktionen", "Funktionen", "Service-\nFunktionen");
    row("between Japanese characters", "プログラム変更", "プログラム", "プログラム\n変更");
    // The long vowel mark never starts a line: "メモリ" would fit, "メモ" is what may stay.
    row("no ー at a line's start", "メモリー保存", "メモリ", "メモ\nリー保\n存");
}

void TestWidgetKit::captionWrapsWithoutSpaces()
{
    QFETCH(QString, caption);
    QFETCH(QString, widest);
    QFETCH(QString, fitted);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(22);
    const QFontMetrics metrics(font);
    bool elided = true;
    QCOMPARE(CaptionFit::Fit(caption, metrics, metrics.horizontalAdvance(widest), 3, &elided), fitted);
    QVERIFY(!elided);
}

void TestWidgetKit::iconsNamedByAForm()
{
    // uic sets a custom widget's icon with setProperty: a property the class did not declare
    // would be kept as a dynamic one, and the button would stay blank without a warning.
    const QString path = QStringLiteral(":/Icons/programs.png");
    Button tile;
    QVERIFY(tile.setProperty("icon", path));
    QCOMPARE(tile.GetIcon(), path);
    // Set before the tile has a size, the drawing is still decoded only at the tile's size.
    QCOMPARE(tile.GetPushButtonObject()->icon().availableSizes(),
             QList<QSize>{QSize(Button::iconSide, Button::iconSide)});
    Iconbutton button;
    QVERIFY(button.setProperty("icon", path));
    QVERIFY(!button.GetButtonObject()->icon().isNull());
    DisplayElementIcon box;
    QVERIFY(box.setProperty("icon", path));
    QCOMPARE(box.GetIcon(), path);
}

void TestWidgetKit::selftestRowMayBeDeletedByListener()
{
    auto *row = new TestDisplayElement;
    QSignalSpy destroyed(row, &QObject::destroyed);
    connect(row, &TestDisplayElement::SignalSelftestResult, this, [row] { delete row; });
    row->SetIconResult(QStringLiteral("pass"));
    QCOMPARE(destroyed.count(), 1);
}

void TestWidgetKit::programButtonReflectsTheRecordSilently()
{
    // What a tap on the title or the star sends is the program pages' test; showing the
    // record's state, and a tap on the title, send no favourite change.
    Program program(QStringLiteral("Kurz"), QStringLiteral("Zirkon"), {}, QStringLiteral("X"), true);
    ProgramButton entry;
    entry.resize(720, 64);
    entry.show();
    QSignalSpy fav(&entry, &ProgramButton::SignalSetProgToFav);
    entry.SetButtonProgram(&program);
    QVERIFY(entry.IsFavChecked());
    Tap(entry.GetPushButtonObject());
    QCOMPARE(fav.count(), 0);
}

void TestWidgetKit::pinPad()
{
    QLineEdit field(QStringLiteral("left over"));
    NumPad pad;
    pad.show();
    pad.Initialize(&field, nullptr, Pageinterface::ServiceProgs);
    QVERIFY(field.text().isEmpty());
    QSignalSpy correct(&pad, &NumPad::SignalCorrectCode);
    QSignalSpy wrong(&pad, &NumPad::SignalWrongCode);

    // Without a code from the controller nothing opens, not even "0".
    Tap(&pad, {"pushButton_0", "pushButton_ok"});
    QCOMPARE(wrong.count(), 1);
    pad.SetCode(1234);
    Tap(&pad, {"pushButton_9", "pushButton_ok"});
    QCOMPARE(wrong.count(), 2);
    QCOMPARE(correct.count(), 0);
    QVERIFY(field.text().isEmpty());
    QVERIFY(pad.IsShowingWrong());

    // The next key press takes the mark away and is typed as usual.
    Tap(Key(&pad, "pushButton_1"));
    QVERIFY(!pad.IsShowingWrong());
    QCOMPARE(field.text(), QStringLiteral("1"));

    // The right code (the page it opens: the simulated controller's PIN); the clear key takes
    // back the last digit.
    pad.SetCode(4711);
    Tap(&pad, {"pushButton_clear", "pushButton_4", "pushButton_7", "pushButton_9", "pushButton_clear", "pushButton_1",
               "pushButton_1"});
    QCOMPARE(field.text(), QStringLiteral("4711"));
    Tap(Key(&pad, "pushButton_ok"));
    QCOMPARE(correct.count(), 1);
    QCOMPARE(wrong.count(), 2);
    QVERIFY(field.text().isEmpty());

    // The field takes no more than the pad's digits.
    for (int i = 0; i < NumPad::maxDigits + 2; ++i)
        Tap(Key(&pad, "pushButton_3"));
    QCOMPARE(field.text(), QString(NumPad::maxDigits, QLatin1Char('3')));
}

void TestWidgetKit::keyboardInsertsAtCursor()
{
    QLineEdit field(QStringLiteral("Ofen"));
    field.setCursorPosition(2);
    Keyboard keyboard;
    keyboard.show();
    keyboard.SetTarget(&field);
    QSignalSpy changed(&keyboard, &Keyboard::SignalTextChanged);
    QSignalSpy enter(&keyboard, &Keyboard::SignalEnter);

    Tap(Key(&keyboard, "pushButton_x"));
    QCOMPARE(field.text(), QStringLiteral("Ofxen"));
    QCOMPARE(field.cursorPosition(), 3);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("Ofxen"));
    Tap(&keyboard, {"pushButton_ue", "pushButton_space", "pushButton_ss", "pushButton_backspace"});
    QCOMPARE(field.text(), QStringLiteral("Ofxü en"));

    // Backspace at the start and a full field change nothing.
    field.setCursorPosition(0);
    Tap(Key(&keyboard, "pushButton_backspace"));
    field.setMaxLength(field.text().size());
    Tap(Key(&keyboard, "pushButton_a"));
    QCOMPARE(field.text(), QStringLiteral("Ofxü en"));
    QCOMPARE(changed.count(), 5);

    Tap(Key(&keyboard, "pushButton_enter"));
    QCOMPARE(enter.count(), 1);
}

void TestWidgetKit::keyboardShiftIsOneShot()
{
    QLineEdit field;
    Keyboard keyboard;
    keyboard.show();
    keyboard.SetTarget(&field);
    QPushButton *shift = Key(&keyboard, "pushButton_shift");

    Tap(shift);
    QVERIFY(keyboard.IsShifted());
    QCOMPARE(Key(&keyboard, "pushButton_a")->text(), QStringLiteral("A"));
    Tap(&keyboard, {"pushButton_z", "pushButton_r"});
    QVERIFY(!keyboard.IsShifted());
    QVERIFY(!shift->isChecked());
    QCOMPARE(Key(&keyboard, "pushButton_a")->text(), QStringLiteral("a"));
    Tap(shift);
    Tap(&keyboard, {"pushButton_ae", "pushButton_shift", "pushButton_ss"});
    QCOMPARE(field.text(), QStringLiteral("ZrÄß"));
    // Shift pressed twice is released again.
    Tap(&keyboard, {"pushButton_shift", "pushButton_shift", "pushButton_b"});
    QCOMPARE(field.text(), QStringLiteral("ZrÄßb"));
}

void TestWidgetKit::keyboardWithoutTargetDoesNothing()
{
    Keyboard keyboard;
    keyboard.show();
    QSignalSpy changed(&keyboard, &Keyboard::SignalTextChanged);
    Tap(&keyboard, {"pushButton_q", "pushButton_backspace"});
    QCOMPARE(changed.count(), 0);

    // A field that went away with its popup detaches the keyboard.
    auto *field = new QLineEdit;
    keyboard.SetTarget(field);
    delete field;
    QCOMPARE(keyboard.GetTarget(), nullptr);
    Tap(Key(&keyboard, "pushButton_q"));
    QCOMPARE(changed.count(), 0);
}

QTEST_MAIN(TestWidgetKit)
#include "tst_widgetkit.moc"
