// The touch widget kit, driven through its real child buttons as a finger would.
#include "faults/testdisplayelement.h"
#include "programs/program.h"
#include "widgets/button.h"
#include "widgets/captionfit.h"
#include "widgets/confirmbuttons.h"
#include "widgets/displayelement.h"
#include "widgets/displayelementicon.h"
#include "widgets/elidedlabel.h"
#include "widgets/iconbutton.h"
#include "widgets/keyboard.h"
#include "widgets/numpad.h"
#include "widgets/programbutton.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

using namespace ovra::GlobalElements;
using Page = Pageinterface::en_pages;

namespace {

void click(QAbstractButton *button)
{
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
}

QPushButton *key(QWidget *pad, const char *name)
{
    auto *button = pad->findChild<QPushButton *>(QString::fromLatin1(name));
    if (!button)
        qWarning("no key %s", name);
    return button;
}

// Every line of a fitted caption, as the button draws it, must fit the given width.
bool LinesFit(const QString &buttonText, const QFontMetrics &metrics, int width)
{
    const QStringList lines = CaptionFit::DisplayText(buttonText).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (metrics.horizontalAdvance(line) > width)
            return false;
    }
    return true;
}

} // namespace

class TestWidgetKit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void captionEscaping();
    void captionWrapsAtSpacesAndHyphens();
    void captionElidesOnlyWhenItMust();

    void buttonReportsItsTargetPage();
    void buttonToggles();
    void buttonShowsAmpersandAndNeverOverflows();

    void iconbuttonClickAndCheckedState();
    void iconbuttonIconFollowsSize();

    void valueBoxesElideWithTooltip();

    void selftestIconTable_data();
    void selftestIconTable();
    void selftestSignalComesBeforeTheIcon();
    void selftestRowMayBeDeletedByListener();

    void programButtonTitleCarriesProgram();
    void programButtonStarCarriesNewState();
    void programButtonReflectedStateIsSilent();

    void pinComparison_data();
    void pinComparison();
    void pinRejectedWithoutCode();
    void pinRightCodeOpensTarget();
    void pinWrongCodeClearsAndMarks();
    void pinClearKeyAndDigitCap();

    void keyboardInsertsAtCursor();
    void keyboardShiftIsOneShot();
    void keyboardBackspaceAndEnter();
    void keyboardWithoutTargetDoesNothing();
    void keyboardKeysAreFingerSized();

    void confirmButtonsSetup();

    void styleSheetReachesNamespacedClasses();
    void styleSheetHasNoTinyText();
};

void TestWidgetKit::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qRegisterMetaType<Page>();
    qRegisterMetaType<Program *>();
}

// ---- Caption fitting ----------------------------------------------------------------------

void TestWidgetKit::captionEscaping()
{
    QCOMPARE(CaptionFit::DisplayText(QStringLiteral("Datum && Uhrzeit")), QStringLiteral("Datum & Uhrzeit"));
    QCOMPARE(CaptionFit::DisplayText(QStringLiteral("&Service")), QStringLiteral("Service"));
    QCOMPARE(CaptionFit::DisplayText(QStringLiteral("A&&&B")), QStringLiteral("A&B"));
    QCOMPARE(CaptionFit::DisplayText(QStringLiteral("Ende&")), QStringLiteral("Ende"));
    QCOMPARE(CaptionFit::Escape(QStringLiteral("A & B")), QStringLiteral("A && B"));

    const QFontMetrics metrics(QFont(QStringLiteral("DejaVu Sans"), 12));
    QCOMPARE(CaptionFit::Fit(QStringLiteral("Datum && Uhrzeit"), metrics, 1000, 2),
             QStringLiteral("Datum && Uhrzeit"));
}

void TestWidgetKit::captionWrapsAtSpacesAndHyphens()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    const QFontMetrics metrics(font);

    const int oneWord = metrics.horizontalAdvance(QStringLiteral("Einstellungen"));
    bool elided = true;
    QCOMPARE(CaptionFit::Fit(QStringLiteral("Einstellungen Service"), metrics, oneWord, 2, &elided),
             QStringLiteral("Einstellungen\nService"));
    QVERIFY(!elided);

    const int half = qMax(metrics.horizontalAdvance(QStringLiteral("Service-")),
                          metrics.horizontalAdvance(QStringLiteral("Funktionen")));
    QVERIFY(half < metrics.horizontalAdvance(QStringLiteral("Service-Funktionen")));
    QCOMPARE(CaptionFit::Fit(QStringLiteral("Service-Funktionen"), metrics, half, 2, &elided),
             QStringLiteral("Service-\nFunktionen"));
    QVERIFY(!elided);

    // A leading minus is part of a number, not a place to break.
    QCOMPARE(CaptionFit::Fit(QStringLiteral("-5 K"), metrics, metrics.horizontalAdvance(QStringLiteral("-5")), 2),
             QStringLiteral("-5\nK"));
}

void TestWidgetKit::captionElidesOnlyWhenItMust()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(QStringLiteral("Programm"));

    bool elided = false;
    const QString one = CaptionFit::Fit(QStringLiteral("Programmverwaltung"), metrics, width, 1, &elided);
    QVERIFY(elided);
    QVERIFY(one.endsWith(QChar(0x2026)));
    QVERIFY(LinesFit(one, metrics, width));

    const QString two = CaptionFit::Fit(QStringLiteral("Neues Programm anlegen und speichern"), metrics, width, 2, &elided);
    QVERIFY(elided);
    QCOMPARE(two.count(QLatin1Char('\n')), 1);
    QVERIFY(two.startsWith(QStringLiteral("Neues\n")));
    QVERIFY(LinesFit(two, metrics, width));

    // A shortened ampersand must still be escaped for the button.
    const QString amp = CaptionFit::Fit(QStringLiteral("A && B && C && D && E"), metrics,
                                        metrics.horizontalAdvance(QStringLiteral("A & B &")), 1, &elided);
    QVERIFY(elided);
    QVERIFY(amp.startsWith(QStringLiteral("A && B")));

    QCOMPARE(CaptionFit::Fit(QString(), metrics, width, 2, &elided), QString());
    QVERIFY(!elided);
}

// ---- Tiles --------------------------------------------------------------------------------

void TestWidgetKit::buttonReportsItsTargetPage()
{
    Button button;
    button.SetText(QStringLiteral("Einstellungen"));
    button.resize(300, 80);
    button.show();
    QSignalSpy clicked(&button, &Button::SignalButtonClicked);

    click(button.GetPushButtonObject());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.takeFirst().at(0).value<Page>(), Pageinterface::StartUp);

    button.SetNextPageIndex(Pageinterface::Settings);
    QCOMPARE(button.GetNextPageIndex(), Pageinterface::Settings);
    click(button.GetPushButtonObject());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.takeFirst().at(0).value<Page>(), Pageinterface::Settings);

    button.setEnabled(false);
    click(button.GetPushButtonObject());
    QCOMPARE(clicked.count(), 0);
}

void TestWidgetKit::buttonToggles()
{
    Button button;
    button.resize(300, 80);
    button.show();
    QSignalSpy toggled(&button, &Button::SignalToggled);
    QSignalSpy clicked(&button, &Button::SignalButtonClicked);

    click(button.GetPushButtonObject());
    QCOMPARE(toggled.count(), 0);
    QVERIFY(!button.IsChecked());

    button.SetCheckable(true);
    click(button.GetPushButtonObject());
    QVERIFY(button.IsChecked());
    click(button.GetPushButtonObject());
    QVERIFY(!button.IsChecked());
    QCOMPARE(toggled.count(), 2);
    QCOMPARE(toggled.at(0).at(0).toBool(), true);
    QCOMPARE(toggled.at(1).at(0).toBool(), false);
    QCOMPARE(clicked.count(), 3);

    button.SetChecked(true);
    QVERIFY(button.IsChecked());
}

void TestWidgetKit::buttonShowsAmpersandAndNeverOverflows()
{
    Button button;
    button.SetText(QStringLiteral("Datum && Uhrzeit"));
    button.resize(400, 80);
    button.show();
    QCOMPARE(button.GetText(), QStringLiteral("Datum && Uhrzeit"));
    QCOMPARE(CaptionFit::DisplayText(button.GetPushButtonObject()->text()), QStringLiteral("Datum & Uhrzeit"));
    QVERIFY(button.GetPushButtonObject()->toolTip().isEmpty());

    // Squeezed into a narrow tile with an icon, the caption is shortened, offered in full as
    // a tooltip, and every line still fits beside the icon.
    button.SetText(QStringLiteral("Programmverwaltung und Favoriten"));
    button.SetIcon(QStringLiteral(":/Icons/back.png"));
    button.resize(150, 64);
    QPushButton *push = button.GetPushButtonObject();
    QCOMPARE(push->toolTip(), QStringLiteral("Programmverwaltung und Favoriten"));
    QVERIFY(push->text().contains(QChar(0x2026)));
    QVERIFY(LinesFit(push->text(), push->fontMetrics(), push->width() - Button::iconSide));

    // Growing again brings the full caption back.
    button.resize(760, 80);
    QVERIFY(!push->text().contains(QChar(0x2026)));
    QVERIFY(push->toolTip().isEmpty());

    button.SetIcon(QString());
    QVERIFY(push->icon().isNull());
}

// ---- Icon buttons -------------------------------------------------------------------------

void TestWidgetKit::iconbuttonClickAndCheckedState()
{
    Iconbutton button;
    button.SetIcon(QStringLiteral(":/Icons/back.png"));
    button.resize(72, 72);
    button.show();
    QCOMPARE(button.GetIcon(), QStringLiteral(":/Icons/back.png"));
    QSignalSpy clicked(&button, &Iconbutton::Signal_ButtonClicked);
    QSignalSpy toggled(&button, &Iconbutton::SignalToggled);

    click(button.GetButtonObject());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(toggled.count(), 0);
    QVERIFY(!button.IsChecked());

    button.SetCheckable(true);
    click(button.GetButtonObject());
    QVERIFY(button.IsChecked());
    QCOMPARE(toggled.count(), 1);
    QCOMPARE(toggled.at(0).at(0).toBool(), true);

    button.SetChecked(false);
    QVERIFY(!button.IsChecked());

    button.setEnabled(false);
    click(button.GetButtonObject());
    QCOMPARE(clicked.count(), 2);
}

void TestWidgetKit::iconbuttonIconFollowsSize()
{
    Iconbutton button;
    button.SetIcon(QStringLiteral(":/Icons/back.png"));
    button.show();
    button.resize(120, 120);
    QCOMPARE(button.GetButtonObject()->iconSize(), QSize(72, 72));
    button.resize(200, 50);
    QCOMPARE(button.GetButtonObject()->iconSize(), QSize(30, 30));

    // With a caption the icon gives up room so the caption line stays inside the frame.
    button.resize(72, 72);
    button.SetText(QStringLiteral("Service"));
    const int caption = button.GetButtonObject()->fontMetrics().height();
    const int icon = button.GetButtonObject()->iconSize().height();
    QVERIFY(icon > 0);
    QVERIFY(icon + caption <= 72);
    QCOMPARE(Iconbutton::IconSideFor(QSize(10, 10), 40), 8);
}

// ---- Value boxes --------------------------------------------------------------------------

void TestWidgetKit::valueBoxesElideWithTooltip()
{
    DisplayElement box;
    box.resize(160, 48);
    box.show();
    auto *label = box.findChild<ElidedLabel *>();
    QVERIFY(label);

    box.SetText(QStringLiteral("R02E"));
    QCOMPARE(box.GetText(), QStringLiteral("R02E"));
    QVERIFY(!label->IsElided());
    QVERIFY(label->toolTip().isEmpty());

    const QString longText = QStringLiteral("Zirkonoxid hochtransluzent, schnelles Sintern");
    box.SetText(longText);
    QCOMPARE(box.GetText(), longText);
    QVERIFY(label->IsElided());
    QCOMPARE(label->toolTip(), longText);

    box.resize(2000, 48);
    QVERIFY(!label->IsElided());
    QVERIFY(label->toolTip().isEmpty());

    DisplayElementIcon withIcon;
    withIcon.resize(200, 52);
    withIcon.show();
    withIcon.SetText(QStringLiteral("1200°C"));
    withIcon.SetIcon(QStringLiteral(":/Play/temp.png"));
    QCOMPARE(withIcon.GetText(), QStringLiteral("1200°C"));
    QCOMPARE(withIcon.GetIcon(), QStringLiteral(":/Play/temp.png"));
    auto *iconLabel = withIcon.findChildren<QLabel *>().value(0);
    QVERIFY(iconLabel && !iconLabel->pixmap(Qt::ReturnByValue).isNull());
    withIcon.SetIcon(QString());
    QVERIFY(iconLabel->isHidden());
}

// ---- Self-test rows -----------------------------------------------------------------------

void TestWidgetKit::selftestIconTable_data()
{
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("icon");
    QTest::newRow("pass") << "pass" << TestDisplayElement::passIcon;
    QTest::newRow("upper case is no pass") << "PASS" << TestDisplayElement::failIcon;
    QTest::newRow("padded is no pass") << " pass" << TestDisplayElement::failIcon;
    QTest::newRow("delete resets") << "delete" << TestDisplayElement::pendingIcon;
    QTest::newRow("fail") << "fail" << TestDisplayElement::failIcon;
    QTest::newRow("empty") << "" << TestDisplayElement::failIcon;
}

void TestWidgetKit::selftestIconTable()
{
    QFETCH(QString, result);
    QFETCH(QString, icon);
    TestDisplayElement row;
    QCOMPARE(row.GetPassKeyword(), QStringLiteral("pass"));
    QCOMPARE(row.GetIconPath(), TestDisplayElement::pendingIcon);
    row.SetIconResult(result);
    QCOMPARE(row.GetIconPath(), icon);
    QCOMPARE(TestDisplayElement::IconForResult(result, row.GetPassKeyword()), icon);
}

void TestWidgetKit::selftestSignalComesBeforeTheIcon()
{
    TestDisplayElement row;
    row.SetText(QStringLiteral("Heizelement"));
    QCOMPARE(row.GetText(), QStringLiteral("Heizelement"));
    row.SetIconResult(QStringLiteral("pass"));

    QStringList seen;
    connect(&row, &TestDisplayElement::SignalSelftestResult, &row,
            [&](const QString &result) { seen << result << row.GetIconPath(); });
    row.SetIconResult(QStringLiteral("fail"));
    QCOMPARE(seen, QStringList({QStringLiteral("fail"), TestDisplayElement::passIcon}));
    QCOMPARE(row.GetIconPath(), TestDisplayElement::failIcon);

    row.SetIconResult(QStringLiteral("delete"));
    QCOMPARE(row.GetIconPath(), TestDisplayElement::pendingIcon);
}

void TestWidgetKit::selftestRowMayBeDeletedByListener()
{
    auto *row = new TestDisplayElement;
    QSignalSpy destroyed(row, &QObject::destroyed);
    connect(row, &TestDisplayElement::SignalSelftestResult, this, [row] { delete row; });
    row->SetIconResult(QStringLiteral("delete"));
    QCOMPARE(destroyed.count(), 1);
}

// ---- Program list entries -----------------------------------------------------------------

void TestWidgetKit::programButtonTitleCarriesProgram()
{
    Program program(QStringLiteral("Zirkon Speed && Dense"), QStringLiteral("Zirkon"), {}, QStringLiteral("X"), false);
    ProgramButton entry;
    entry.resize(720, 64);
    entry.show();
    entry.SetButtonProgram(&program);
    entry.SetNextPageIndex(Pageinterface::PlayProg);
    QCOMPARE(entry.GetButtonProgram(), &program);
    QCOMPARE(entry.GetText(), program.GetName());

    QList<int> order;
    QSignalSpy prog(&entry, &ProgramButton::SignalProgButtonClicked);
    QSignalSpy page(&entry, &ProgramButton::SignalButtonClicked);
    QSignalSpy fav(&entry, &ProgramButton::SignalSetProgToFav);
    connect(&entry, &ProgramButton::SignalProgButtonClicked, this, [&] { order << 1; });
    connect(&entry, &ProgramButton::SignalButtonClicked, this, [&] { order << 2; });

    click(entry.GetPushButtonObject());
    QCOMPARE(prog.count(), 1);
    QCOMPARE(prog.at(0).at(0).value<Program *>(), &program);
    QCOMPARE(page.count(), 1);
    QCOMPARE(page.at(0).at(0).value<Page>(), Pageinterface::PlayProg);
    QCOMPARE(order, QList<int>({1, 2}));
    QCOMPARE(fav.count(), 0);

    // A program name is shown literally: both ampersands stay.
    QCOMPARE(CaptionFit::DisplayText(entry.GetPushButtonObject()->text()), program.GetName());

    entry.SetCheckable(true);
    click(entry.GetPushButtonObject());
    QVERIFY(entry.IsChecked());
}

void TestWidgetKit::programButtonStarCarriesNewState()
{
    Program program(QStringLiteral("Kurz"), QStringLiteral("Zirkon"), {}, QStringLiteral("X"), false);
    ProgramButton entry;
    entry.resize(720, 64);
    entry.show();
    entry.SetButtonProgram(&program);
    QSignalSpy fav(&entry, &ProgramButton::SignalSetProgToFav);
    QSignalSpy prog(&entry, &ProgramButton::SignalProgButtonClicked);

    click(entry.GetFavButtonObject());
    QCOMPARE(fav.count(), 1);
    QCOMPARE(fav.at(0).at(0).toBool(), true);
    QCOMPARE(fav.at(0).at(1).value<Program *>(), &program);
    QVERIFY(entry.IsFavChecked());

    click(entry.GetFavButtonObject());
    QCOMPARE(fav.count(), 2);
    QCOMPARE(fav.at(1).at(0).toBool(), false);
    QCOMPARE(prog.count(), 0);
    // The entry reports; changing the record is the list's business.
    QVERIFY(!program.IsFav());

    ProgramButton detached;
    detached.show();
    QSignalSpy detachedFav(&detached, &ProgramButton::SignalSetProgToFav);
    click(detached.GetFavButtonObject());
    QCOMPARE(detachedFav.count(), 1);
    QCOMPARE(detachedFav.at(0).at(1).value<Program *>(), nullptr);
}

void TestWidgetKit::programButtonReflectedStateIsSilent()
{
    Program program(QStringLiteral("Favorit"), QStringLiteral("Zirkon"), {}, QStringLiteral("X"), true);
    ProgramButton entry;
    QSignalSpy fav(&entry, &ProgramButton::SignalSetProgToFav);

    entry.SetButtonProgram(&program);
    QVERIFY(entry.IsFavChecked());
    entry.SetFavChecked(false);
    QVERIFY(!entry.IsFavChecked());
    entry.SetFavChecked(true);
    QCOMPARE(fav.count(), 0);

    // The star image follows the state even though no signal went out.
    const QIcon on(QStringLiteral(":/Icons/favorite_on.png"));
    const QIcon shown = entry.GetFavButtonObject()->icon();
    QCOMPARE(shown.pixmap(24).toImage(), on.pixmap(24).toImage());
}

// ---- PIN pad ------------------------------------------------------------------------------

void TestWidgetKit::pinComparison_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("hasCode");
    QTest::addColumn<uint>("code");
    QTest::addColumn<bool>("correct");
    QTest::newRow("match") << "4711" << true << 4711u << true;
    QTest::newRow("no code yet") << "4711" << false << 4711u << false;
    QTest::newRow("no code, typed zero") << "0" << false << 0u << false;
    QTest::newRow("other number") << "4712" << true << 4711u << false;
    QTest::newRow("leading zero reads as number") << "0815" << true << 815u << true;
    QTest::newRow("eight digits") << "99999999" << true << 99999999u << true;
    // A code the controller sent as non-numeric arrives as 0; only an entry reads as 0.
    QTest::newRow("empty is not zero") << "" << true << 0u << false;
    QTest::newRow("typed zero vs zero") << "0" << true << 0u << true;
    QTest::newRow("not digits") << "12a" << true << 12u << false;
    QTest::newRow("sign") << "+12" << true << 12u << false;
}

void TestWidgetKit::pinComparison()
{
    QFETCH(QString, typed);
    QFETCH(bool, hasCode);
    QFETCH(uint, code);
    QFETCH(bool, correct);
    QCOMPARE(NumPad::IsCodeCorrect(typed, hasCode, code), correct);
}

void TestWidgetKit::pinRejectedWithoutCode()
{
    QLineEdit field(QStringLiteral("left over"));
    NumPad pad;
    pad.show();
    pad.Initialize(&field, Pageinterface::Service);
    QVERIFY(field.text().isEmpty());
    QCOMPARE(field.echoMode(), QLineEdit::Password);
    QVERIFY(!pad.HasCode());
    QSignalSpy correct(&pad, &NumPad::SignalCorrectCode);
    QSignalSpy wrong(&pad, &NumPad::SignalWrongCode);

    click(key(&pad, "pushButton_0"));
    click(key(&pad, "pushButton_ok"));
    QCOMPARE(correct.count(), 0);
    QCOMPARE(wrong.count(), 1);
    QVERIFY(field.text().isEmpty());
}

void TestWidgetKit::pinRightCodeOpensTarget()
{
    QLineEdit field;
    NumPad pad;
    pad.show();
    pad.Initialize(&field, Pageinterface::ServiceProgs);
    pad.SetCode(4711);
    QSignalSpy correct(&pad, &NumPad::SignalCorrectCode);
    QSignalSpy wrong(&pad, &NumPad::SignalWrongCode);

    for (const char *name : {"pushButton_4", "pushButton_7", "pushButton_1", "pushButton_1"})
        click(key(&pad, name));
    QCOMPARE(field.text(), QStringLiteral("4711"));
    click(key(&pad, "pushButton_ok"));
    QCOMPARE(correct.count(), 1);
    QCOMPARE(correct.at(0).at(0).value<Page>(), Pageinterface::ServiceProgs);
    QCOMPARE(wrong.count(), 0);
    QVERIFY(field.text().isEmpty());
    QVERIFY(!pad.IsShowingWrong());

    // Typing "0" against a code of 0 opens, an empty field does not.
    pad.SetCode(0);
    click(key(&pad, "pushButton_ok"));
    QCOMPARE(wrong.count(), 1);
    click(key(&pad, "pushButton_0"));
    click(key(&pad, "pushButton_ok"));
    QCOMPARE(correct.count(), 2);
}

void TestWidgetKit::pinWrongCodeClearsAndMarks()
{
    QLineEdit field;
    NumPad pad;
    pad.show();
    pad.Initialize(&field, Pageinterface::Service);
    pad.SetCode(1234);
    QSignalSpy correct(&pad, &NumPad::SignalCorrectCode);
    QSignalSpy wrong(&pad, &NumPad::SignalWrongCode);

    click(key(&pad, "pushButton_9"));
    click(key(&pad, "pushButton_ok"));
    QCOMPARE(wrong.count(), 1);
    QCOMPARE(correct.count(), 0);
    QVERIFY(field.text().isEmpty());
    QVERIFY(pad.IsShowingWrong());
    QCOMPARE(field.property(NumPad::codeStateProperty).toString(), QStringLiteral("wrong"));

    // The next key press takes the mark away and is typed as usual.
    click(key(&pad, "pushButton_1"));
    QVERIFY(!pad.IsShowingWrong());
    QCOMPARE(field.text(), QStringLiteral("1"));

    // Re-initialising for another visit starts clean.
    click(key(&pad, "pushButton_ok"));
    QVERIFY(pad.IsShowingWrong());
    pad.Initialize(&field, Pageinterface::Service);
    QVERIFY(!pad.IsShowingWrong());
}

void TestWidgetKit::pinClearKeyAndDigitCap()
{
    NumPad unattached;
    unattached.show();
    click(key(&unattached, "pushButton_5"));
    click(key(&unattached, "pushButton_clear"));
    click(key(&unattached, "pushButton_ok"));

    QLineEdit field;
    NumPad pad;
    pad.show();
    pad.Initialize(&field, Pageinterface::Service);
    click(key(&pad, "pushButton_1"));
    click(key(&pad, "pushButton_2"));
    click(key(&pad, "pushButton_clear"));
    QCOMPARE(field.text(), QStringLiteral("1"));
    click(key(&pad, "pushButton_clear"));
    click(key(&pad, "pushButton_clear"));
    QVERIFY(field.text().isEmpty());

    for (int i = 0; i < 10; ++i)
        click(key(&pad, "pushButton_3"));
    QCOMPARE(field.text(), QString(NumPad::maxDigits, QLatin1Char('3')));
}

// ---- Keyboard -----------------------------------------------------------------------------

void TestWidgetKit::keyboardInsertsAtCursor()
{
    QLineEdit field(QStringLiteral("Ofen"));
    field.setCursorPosition(2);
    Keyboard keyboard;
    keyboard.show();
    keyboard.SetTarget(&field);
    QSignalSpy changed(&keyboard, &Keyboard::SignalTextChanged);

    click(key(&keyboard, "pushButton_x"));
    QCOMPARE(field.text(), QStringLiteral("Ofxen"));
    QCOMPARE(field.cursorPosition(), 3);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("Ofxen"));

    field.setText(QString());
    for (const char *name : {"pushButton_ue", "pushButton_space", "pushButton_minus", "pushButton_underscore",
                             "pushButton_ss", "pushButton_7"})
        click(key(&keyboard, name));
    QCOMPARE(field.text(), QStringLiteral("ü -_ß7"));

    keyboard.insertLetter(QStringLiteral("Zr"));
    QCOMPARE(field.text(), QStringLiteral("ü -_ß7Zr"));

    // A full field stays as it is and reports nothing.
    field.setMaxLength(field.text().size());
    const int before = changed.count();
    click(key(&keyboard, "pushButton_a"));
    QCOMPARE(changed.count(), before);
}

void TestWidgetKit::keyboardShiftIsOneShot()
{
    QLineEdit field;
    Keyboard keyboard;
    keyboard.show();
    keyboard.SetTarget(&field);
    QPushButton *shift = key(&keyboard, "pushButton_shift");

    click(shift);
    QVERIFY(keyboard.IsShifted());
    QVERIFY(shift->isChecked());
    QCOMPARE(key(&keyboard, "pushButton_a")->text(), QStringLiteral("A"));
    QCOMPARE(key(&keyboard, "pushButton_oe")->text(), QStringLiteral("Ö"));
    QCOMPARE(key(&keyboard, "pushButton_ss")->text(), QStringLiteral("ß"));
    click(key(&keyboard, "pushButton_z"));
    QVERIFY(!keyboard.IsShifted());
    QVERIFY(!shift->isChecked());
    QCOMPARE(key(&keyboard, "pushButton_a")->text(), QStringLiteral("a"));
    click(key(&keyboard, "pushButton_r"));
    QCOMPARE(field.text(), QStringLiteral("Zr"));

    click(shift);
    click(key(&keyboard, "pushButton_ae"));
    click(shift);
    click(key(&keyboard, "pushButton_ss"));
    QCOMPARE(field.text(), QStringLiteral("ZrÄß"));

    // Shift pressed twice is released again.
    click(shift);
    click(shift);
    QVERIFY(!keyboard.IsShifted());
    click(key(&keyboard, "pushButton_b"));
    QCOMPARE(field.text(), QStringLiteral("ZrÄßb"));
}

void TestWidgetKit::keyboardBackspaceAndEnter()
{
    QLineEdit field(QStringLiteral("Zirkon"));
    field.setCursorPosition(3);
    Keyboard keyboard;
    keyboard.show();
    keyboard.SetTarget(&field);
    QSignalSpy changed(&keyboard, &Keyboard::SignalTextChanged);
    QSignalSpy enter(&keyboard, &Keyboard::SignalEnter);

    click(key(&keyboard, "pushButton_backspace"));
    QCOMPARE(field.text(), QStringLiteral("Zikon"));
    QCOMPARE(changed.count(), 1);

    field.setCursorPosition(0);
    click(key(&keyboard, "pushButton_backspace"));
    QCOMPARE(field.text(), QStringLiteral("Zikon"));
    QCOMPARE(changed.count(), 1);

    click(key(&keyboard, "pushButton_enter"));
    QCOMPARE(enter.count(), 1);
    QCOMPARE(field.text(), QStringLiteral("Zikon"));
}

void TestWidgetKit::keyboardWithoutTargetDoesNothing()
{
    Keyboard keyboard;
    keyboard.show();
    QSignalSpy changed(&keyboard, &Keyboard::SignalTextChanged);
    click(key(&keyboard, "pushButton_q"));
    click(key(&keyboard, "pushButton_backspace"));
    keyboard.insertLetter(QStringLiteral("x"));
    QCOMPARE(changed.count(), 0);

    // A field that went away with its popup detaches the keyboard.
    auto *field = new QLineEdit;
    keyboard.SetTarget(field);
    delete field;
    QCOMPARE(keyboard.GetTarget(), nullptr);
    click(key(&keyboard, "pushButton_q"));
    QCOMPARE(changed.count(), 0);
}

void TestWidgetKit::keyboardKeysAreFingerSized()
{
    Keyboard keyboard;
    keyboard.resize(800, 232);
    keyboard.show();
    const QList<QPushButton *> keys = keyboard.findChildren<QPushButton *>();
    QCOMPARE(keys.size(), 46);
    for (const QPushButton *k : keys) {
        QVERIFY2(k->height() >= 52, qPrintable(k->objectName()));
        QVERIFY2(k->width() >= 52, qPrintable(k->objectName()));
        QVERIFY2(keyboard.rect().contains(k->geometry()), qPrintable(k->objectName()));
    }
}

// ---- Popup buttons ------------------------------------------------------------------------

void TestWidgetKit::confirmButtonsSetup()
{
    QPushButton ok(QStringLiteral("OK"));
    QPushButton cancel(QStringLiteral("Abbrechen"));
    ConfirmButtons::Setup(&ok, &cancel);
    ConfirmButtons::Setup(&ok, nullptr);
    ConfirmButtons::Setup(nullptr, nullptr);

    for (QPushButton *b : {&ok, &cancel}) {
        QCOMPARE(b->size(), QSize(ConfirmButtons::buttonWidth, ConfirmButtons::buttonHeight));
        QVERIFY(b->text().isEmpty());
        QVERIFY(!b->icon().isNull());
    }
    QCOMPARE(ok.property(ConfirmButtons::roleProperty).toString(), QStringLiteral("ok"));
    QCOMPARE(cancel.property(ConfirmButtons::roleProperty).toString(), QStringLiteral("cancel"));

    const QImage check = QIcon(QStringLiteral(":/Icons/check.png")).pixmap(48).toImage();
    ok.show();
    QSignalSpy clicked(&ok, &QPushButton::clicked);
    QTest::mousePress(&ok, Qt::LeftButton);
    QCOMPARE(ok.icon().pixmap(48).toImage(), check);
    QTest::mouseRelease(&ok, Qt::LeftButton);
    QCOMPARE(ok.icon().pixmap(48).toImage(), check);
    QCOMPARE(clicked.count(), 1);
}

// ---- Style sheet --------------------------------------------------------------------------

void TestWidgetKit::styleSheetReachesNamespacedClasses()
{
    QFile file(QStringLiteral(":/style/panel.qss"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QWidget page;
    page.setStyleSheet(QString::fromUtf8(file.readAll()));
    auto *tile = new Button(&page);
    tile->SetText(QStringLiteral("Programme"));
    tile->setGeometry(0, 0, 400, 80);
    auto *value = new DisplayElement(&page);
    value->setGeometry(0, 100, 300, 48);
    auto *pad = new NumPad(&page);
    pad->setGeometry(0, 160, 300, 320);
    page.resize(800, 480);
    page.show();

    // Rules written for ovra--GlobalElements--X must reach the classes in the namespace.
    QCOMPARE(tile->GetPushButtonObject()->font().pixelSize(), 22);
    QCOMPARE(value->findChild<ElidedLabel *>()->font().pixelSize(), 22);
    QCOMPARE(key(pad, "pushButton_5")->font().pixelSize(), 28);
    QCOMPARE(tile->GetPushButtonObject()->font().family(), QStringLiteral("DejaVu Sans"));

    // A caption too long for 22 px steps down before it is shortened.
    tile->SetText(QStringLiteral("Einstellungen und Service"));
    tile->setGeometry(0, 0, 230, 64);
    QPushButton *push = tile->GetPushButtonObject();
    QVERIFY(push->font().pixelSize() < 22);
    QVERIFY(push->font().pixelSize() >= 16);
    QCOMPARE(push->property(Button::captionSizeProperty).toInt(), push->font().pixelSize());
}

void TestWidgetKit::styleSheetHasNoTinyText()
{
    QFile file(QStringLiteral(":/style/panel.qss"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString sheet = QString::fromUtf8(file.readAll());
    QRegularExpression size(QStringLiteral("font-size:\\s*(\\d+)(px|pt)"));
    int count = 0;
    for (auto it = size.globalMatch(sheet); it.hasNext(); ++count) {
        const QRegularExpressionMatch m = it.next();
        QCOMPARE(m.captured(2), QStringLiteral("px"));
        QVERIFY2(m.captured(1).toInt() >= 16, qPrintable(m.captured(0)));
    }
    QVERIFY(count > 5);
    // Braces balance: an unbalanced sheet is silently dropped as a whole by Qt.
    QCOMPARE(sheet.count(QLatin1Char('{')), sheet.count(QLatin1Char('}')));
}

QTEST_MAIN(TestWidgetKit)
#include "tst_widgetkit.moc"
