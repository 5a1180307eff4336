// The program editor as the user meets it: segments typed with the real digit pad, the
// chart and save pages reached with the real buttons, the name typed on the real keyboard,
// and what the editor hands to the main window.
#include "popups/popupleavenewprog.h"
#include "popups/popupoverrideprog.h"
#include "process/chart.h"
#include "programs/newprogram.h"
#include "programs/program.h"
#include "programs/tablerow.h"
#include "touch.h"
#include "widgets/iconbutton.h"
#include "widgets/keyboard.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace ovra::GlobalElements;
using ovra::Popups::PopupLeaveNewProg;
using ovra::Popups::PopupOverrideProg;
using Row = QList<unsigned int>;
using Matrix = Program::Matrix;

namespace {

QPushButton *padKey(NewProgram *editor, const QString &key)
{
    return editor->findChild<QPushButton *>(QStringLiteral("pushButton_pad") + key);
}

// Empties the field with the clear key and types the value.
void enter(NewProgram *editor, QLineEdit *field, const QString &digits)
{
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(editor->window()->focusWidget(), field);
    while (field->text() != QLatin1String("0"))
        Tap(padKey(editor, QStringLiteral("Clear")));
    TypeDigits(editor, field, digits);
}

void typeName(NewProgram *editor, const QString &letters)
{
    for (const QChar c : letters) {
        const QString name = c == QLatin1Char(' ') ? QStringLiteral("space") : QString(c);
        Tap(editor->GetKeyboard()->findChild<QPushButton *>(QStringLiteral("pushButton_") + name));
    }
}

Program *savedProgram(const QSignalSpy &spy, int index = 0)
{
    return qvariant_cast<Program *>(spy.at(index).at(0));
}

} // namespace

class TstNewProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void entryLimitsWhileTyping_data();
    void entryLimitsWhileTyping();
    void digitPadEditsOnlyTheFocusedField();
    void tableHoldsAtMostTenRowsAndNoEmptyChart();
    void typedTableIsSaved();
    void changeProgramFillsRows_data();
    void changeProgramFillsRows();
    void saveAtOnceEmitsWithoutShowingTheChart();
    void overrideQuestion();
    void refusedNames_data();
    void refusedNames();
    void leaving_data();
    void leaving();

private:
    void toSavePage()
    {
        Tap(m_editor->GetFwdButton());
        Tap(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
        QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewSave));
    }
    Iconbutton *saveButton() const { return m_editor->findChild<Iconbutton *>(QStringLiteral("widget_save")); }

    std::unique_ptr<QWidget> m_host;
    NewProgram *m_editor = nullptr;
};

void TstNewProgram::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qRegisterMetaType<Program *>();
}

void TstNewProgram::init()
{
    m_host = std::make_unique<QWidget>();
    m_host->resize(800, 424);
    m_editor = new NewProgram(m_host.get());
    m_editor->setGeometry(0, 0, 800, 424);
    m_host->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_host.get()));
    m_host->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_host.get()));
}

void TstNewProgram::cleanup()
{
    m_editor = nullptr;
    m_host.reset();
}

void TstNewProgram::entryLimitsWhileTyping_data()
{
    QTest::addColumn<bool>("fahrenheit");
    QTest::addColumn<unsigned int>("maxRate"); // 0: the default
    QTest::addColumn<int>("column");           // rate, temperature, time
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    // The temperature's limit in either unit: the language test, from the controller's word.
    const auto row = [](const char *tag, bool fahrenheit, unsigned int maxRate, int column, const char *typed,
                        const char *shown) {
        QTest::newRow(tag) << fahrenheit << maxRate << column << QString::fromLatin1(typed)
                           << QString::fromLatin1(shown);
    };
    row("above default max", false, 0u, 0, "121", "120");
    row("above set max", false, 60u, 0, "61", "60");
    row("above °F limit", true, 0u, 0, "249", "248");
}

void TstNewProgram::entryLimitsWhileTyping()
{
    QFETCH(bool, fahrenheit);
    QFETCH(unsigned int, maxRate);
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(QString, shown);

    m_editor->SetUnitToFahrenheit(fahrenheit);
    if (maxRate != 0)
        m_editor->SetMaxHeatRate(maxRate);
    // Rows added later carry the same limits.
    m_editor->AddRow(0, 0, 0);
    for (TableRow *row : m_editor->GetRows()) {
        QLineEdit *field = QList<QLineEdit *>{row->GetRateField(), row->GetTempField(), row->GetTimeField()}[column];
        enter(m_editor, field, typed);
        QCOMPARE(field->text(), shown);
    }
}

void TstNewProgram::digitPadEditsOnlyTheFocusedField()
{
    // What a key does to a number is the table's own test; here: only to the focused field.
    QLineEdit *time = m_editor->GetRows().first()->GetTimeField();
    TypeDigits(m_editor, time, QStringLiteral("30"));

    // With the focus outside the table the pad does nothing.
    QLineEdit outside(m_host.get());
    outside.show();
    outside.setFocus();
    QCOMPARE(m_editor->window()->focusWidget(), &outside);
    Tap(padKey(m_editor, QStringLiteral("7")));
    QCOMPARE(time->text(), QStringLiteral("30"));
    Tap(padKey(m_editor, QStringLiteral("Clear")));
    QCOMPARE(time->text(), QStringLiteral("30"));
    QVERIFY(outside.text().isEmpty());
}

void TstNewProgram::tableHoldsAtMostTenRowsAndNoEmptyChart()
{
    for (int i = 0; i < 9; ++i)
        m_editor->AddRow(10, 100 + i, 1);
    QCOMPARE(m_editor->GetRows().size(), 10);
    QCOMPARE(m_editor->GetRows().last()->GetNumber(), 10);

    m_editor->AddRow(20, 999, 9); // the eleventh
    Tap(padKey(m_editor, QStringLiteral("Enter")));
    QCOMPARE(m_editor->GetRows().size(), 10);
    QCOMPARE(m_editor->GetRows().last()->GetTemp(), 108u);

    // Clearing keeps the first row, emptied, and drops the others.
    m_editor->SlotDeleteTableContent();
    QCOMPARE(m_editor->GetRows().size(), 1);
    QCOMPARE(m_editor->GetRows().first()->GetTemp(), 0u);
    // Only [0, 0, 0] rows: nothing to draw, the table stays.
    m_editor->AddRow(0, 0, 0);
    Tap(m_editor->GetFwdButton());
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
    QCOMPARE(m_editor->GetChart()->GetProfile().segmentCount, 0u);
}

void TstNewProgram::typedTableIsSaved()
{
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);
    m_editor->SetSelectedMaterial(QStringLiteral("Argon"));
    TableRow *first = m_editor->GetRows().first();
    enter(m_editor, first->GetRateField(), QStringLiteral("5"));
    enter(m_editor, first->GetTempField(), QStringLiteral("30"));
    enter(m_editor, first->GetTimeField(), QStringLiteral("10"));
    Tap(padKey(m_editor, QStringLiteral("Enter")));
    enter(m_editor, m_editor->GetRows().at(1)->GetTempField(), QStringLiteral("900"));
    Tap(padKey(m_editor, QStringLiteral("Enter")));
    // The added row has the focus: the next digits go into its rate.
    TableRow *third = m_editor->GetRows().at(2);
    QTRY_COMPARE(m_editor->window()->focusWidget(), third->GetRateField());
    Tap(padKey(m_editor, QStringLiteral("7")));
    enter(m_editor, third->GetTempField(), QStringLiteral("1200"));

    Tap(m_editor->GetFwdButton());
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewChart));
    QCOMPARE(m_editor->GetChart()->GetProfile().segmentCount, 2u);
    Tap(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
    typeName(m_editor, QStringLiteral("glanz 2"));
    QCOMPARE(saved.count(), 0);
    Tap(saveButton());
    QCOMPARE(saved.count(), 1);
    std::unique_ptr<Program> program(savedProgram(saved));
    // The typed name and "user" as the maker: what the simulated controller stores in tst_startup.
    QCOMPARE(program->GetMaterial(), QStringLiteral("Argon"));
    // 5/0/7: the row without a rate is dropped; 30 °C is raised to 50 °C.
    QCOMPARE(*program->GetMatrix(), (Matrix{Row{5, 50, 10}, Row{7, 1200, 0}}));

    // The editor is ready for the next program.
    QCOMPARE(m_editor->GetRows().size(), 1);
    QVERIFY(m_editor->GetNameField()->text().isEmpty());
}

void TstNewProgram::changeProgramFillsRows_data()
{
    QTest::addColumn<bool>("fahrenheit");
    QTest::addColumn<QStringList>("firstRow");
    QTest::addColumn<QStringList>("lastRow");
    QTest::newRow("celsius") << false << QStringList{"10", "500", "5"} << QStringList{"120", "1500", "30"};
    QTest::newRow("fahrenheit") << true << QStringList{"50", "932", "5"} << QStringList{"248", "2732", "30"};
}

void TstNewProgram::changeProgramFillsRows()
{
    QFETCH(bool, fahrenheit);
    QFETCH(QStringList, firstRow);
    QFETCH(QStringList, lastRow);

    m_editor->SetUnitToFahrenheit(fahrenheit);
    // Leftovers from an earlier visit must not end up in the program.
    m_editor->AddRow(3, 333, 3);
    m_editor->AddRow(4, 444, 4);
    Program program(QStringLiteral("Speed"), QStringLiteral("Zirkon"),
                    Matrix{Row{10, 500, 5}, Row{60, 1000, 0}, Row{120, 1500, 30}}, QStringLiteral("user"), false);
    m_editor->ChangeProgram(&program, false);

    QVERIFY(m_editor->IsChangeMode());
    QCOMPARE(m_editor->GetNameField()->text(), QStringLiteral("Speed"));
    QCOMPARE(m_editor->GetRows().size(), 3);
    const auto texts = [](const TableRow *row) {
        return QStringList{row->GetRateField()->text(), row->GetTempField()->text(), row->GetTimeField()->text()};
    };
    QCOMPARE(texts(m_editor->GetRows().first()), firstRow);
    QCOMPARE(texts(m_editor->GetRows().last()), lastRow);
    // Read back unchanged in either unit: 2732 °F is 1500 °C.
    m_editor->ReadTableContent();
    QCOMPARE(m_editor->GetMatrix(), *program.GetMatrix());
}

void TstNewProgram::saveAtOnceEmitsWithoutShowingTheChart()
{
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);
    m_editor->SetUnitToFahrenheit(true);
    Program stored(QStringLiteral("Favorit"), QStringLiteral("Argon"),
                   Matrix{Row{10, 500, 5}, Row{0, 50, 0}, Row{60, 1500, 20}}, QStringLiteral("user"), true);
    m_editor->ChangeProgram(&stored, true);

    m_editor->SlotCreateChart();
    QCOMPARE(saved.count(), 1); // at once, no event loop needed
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
    std::unique_ptr<Program> program(savedProgram(saved));
    QCOMPARE(program->GetName(), QStringLiteral("Favorit"));
    QCOMPARE(program->GetMaterial(), QStringLiteral("Argon"));
    QCOMPARE(program->GetManufacturer(), QStringLiteral("user"));
    QVERIFY(!program->IsFav());
    // The idle segment is gone; every value came back through °F unchanged.
    QCOMPARE(*program->GetMatrix(), (Matrix{Row{10, 500, 5}, Row{60, 1500, 20}}));

    // The flag served once: the next chart is shown again.
    m_editor->AddRow(5, 600, 0);
    m_editor->SlotCreateChart();
    QCOMPARE(saved.count(), 1);
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewChart));
}

void TstNewProgram::overrideQuestion()
{
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);
    Program stored(QStringLiteral("speed"), QStringLiteral("Zirkon"), Matrix{Row{10, 500, 5}}, QStringLiteral("user"),
                   false);
    PopupOverrideProg *question = m_editor->GetOverridePopup();
    const auto answer = [question](const char *name) {
        Tap(question->findChild<QPushButton *>(QString::fromLatin1(name)));
    };

    // Same name: asked; declined goes back to the chart and stores nothing.
    m_editor->ChangeProgram(&stored, false);
    toSavePage();
    Tap(saveButton());
    QVERIFY(question->isVisible());
    answer("pushButton_Cancel");
    QVERIFY(!question->isVisible());
    QCOMPARE(saved.count(), 0);
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewChart));

    // Confirmed: stored under the old name.
    Tap(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
    Tap(saveButton());
    answer("pushButton_OK");
    QCOMPARE(saved.count(), 1);
    std::unique_ptr<Program> first(savedProgram(saved));
    QCOMPARE(first->GetName(), QStringLiteral("speed"));

    // Another name is a new program: no question.
    m_editor->ChangeProgram(&stored, false);
    toSavePage();
    typeName(m_editor, QStringLiteral("2"));
    Tap(saveButton());
    QVERIFY(!question->isVisible());
    QCOMPARE(saved.count(), 2);
    std::unique_ptr<Program> second(savedProgram(saved, 1));
    QCOMPARE(second->GetName(), QStringLiteral("speed2"));
}

void TstNewProgram::refusedNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QString() << QStringLiteral("Namen eingeben");
    QTest::newRow("dot") << QStringLiteral("Speed 1.5") << QStringLiteral("; = , . und $$");
    QTest::newRow("euro") << QStringLiteral("5 \u20AC") << QStringLiteral("westeuropäischer");
}

void TstNewProgram::refusedNames()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);

    m_editor->AddRow(10, 800, 5);
    toSavePage();
    m_editor->GetNameField()->setText(name);
    Tap(saveButton());
    m_editor->SlotSendProgToSave(); // called directly as well, it refuses
    QCOMPARE(saved.count(), 0);
    QVERIFY2(m_editor->GetNameMessage().contains(reason), qPrintable(m_editor->GetNameMessage()));
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewSave));
    QCOMPARE(m_editor->GetRows().size(), 2);
}

void TstNewProgram::leaving_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("newProgram"); // under way: the user is asked first
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("exits");
    QTest::addColumn<int>("backs");
    QTest::newRow("back") << "widget_back" << false << "" << 0 << 1;
    QTest::newRow("exit") << "widget_exit" << false << "" << 1 << 0;
    QTest::newRow("exit chart") << "widget_exitChart" << false << "" << 1 << 0;
    QTest::newRow("new: exit, cancelled") << "widget_exit" << true << "pushButton_Cancel" << 0 << 0;
    QTest::newRow("new: back, cancelled") << "widget_back" << true << "pushButton_Cancel" << 0 << 0;
    QTest::newRow("new: back, confirmed") << "widget_back" << true << "pushButton_OK" << 0 << 1;
    QTest::newRow("new: exit chart, confirmed") << "widget_exitChart" << true << "pushButton_OK" << 1 << 0;
}

void TstNewProgram::leaving()
{
    QFETCH(QString, button);
    QFETCH(bool, newProgram);
    QFETCH(QString, answer);
    QFETCH(int, exits);
    QFETCH(int, backs);
    QSignalSpy exitSpy(m_editor, &NewProgram::SignalExitNewProg);
    QSignalSpy backSpy(m_editor, &NewProgram::SignalBackToProgs);
    PopupLeaveNewProg *question =
        button == QLatin1String("widget_back") ? m_editor->GetLeaveBackPopup() : m_editor->GetLeaveToMenuPopup();

    if (newProgram)
        m_editor->SlotSetNewProgram();
    m_editor->AddRow(10, 800, 5);
    if (button == QLatin1String("widget_exitChart"))
        Tap(m_editor->GetFwdButton());
    Tap(m_editor->findChild<Iconbutton *>(button));
    QCOMPARE(question->isVisible(), newProgram);
    if (newProgram)
        Tap(question->findChild<QPushButton *>(answer));

    QVERIFY(!m_editor->GetLeaveToMenuPopup()->isVisible() && !m_editor->GetLeaveBackPopup()->isVisible());
    QCOMPARE(exitSpy.count(), exits);
    QCOMPARE(backSpy.count(), backs);
    // Leaving drops the table; staying keeps it.
    QCOMPARE(m_editor->GetRows().size(), exits + backs > 0 ? 1 : 2);
    if (exits + backs > 0)
        QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
}

QTEST_MAIN(TstNewProgram)
#include "tst_newprogram.moc"
