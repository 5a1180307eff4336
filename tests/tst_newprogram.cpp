// The program editor as the user meets it: segments typed with the real digit pad, the
// chart and save pages reached with the real buttons, the name typed on the real keyboard,
// and what the editor hands to the main window.
#include "popups/popupleavenewprog.h"
#include "popups/popupoverrideprog.h"
#include "process/chart.h"
#include "programs/newprogram.h"
#include "programs/program.h"
#include "programs/tablehead.h"
#include "programs/tablerow.h"
#include "widgets/iconbutton.h"
#include "widgets/keyboard.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>

#include <memory>

using namespace ovra::GlobalElements;
using ovra::Popups::PopupLeaveNewProg;
using ovra::Popups::PopupOverrideProg;
using Row = QList<unsigned int>;
using Matrix = Program::Matrix;

namespace {

void click(QAbstractButton *button)
{
    QVERIFY(button);
    QVERIFY(button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
}

void click(Iconbutton *button)
{
    QVERIFY(button);
    click(button->GetButtonObject());
}

QPushButton *findKey(QWidget *parent, const QString &name)
{
    auto *key = parent->findChild<QPushButton *>(name);
    if (!key)
        qWarning("no key %s", qPrintable(name));
    return key;
}

QPushButton *padKey(NewProgram *editor, const QString &key)
{
    return findKey(editor, QStringLiteral("pushButton_pad") + key);
}

// Puts the finger on the field and types the digits on the pad.
void typeInto(NewProgram *editor, QLineEdit *field, const QString &digits)
{
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(editor->window()->focusWidget(), field);
    for (const QChar digit : digits)
        click(padKey(editor, QString(digit)));
}

// Empties the field with the clear key and types the value.
void enter(NewProgram *editor, QLineEdit *field, const QString &digits)
{
    QTest::mouseClick(field, Qt::LeftButton);
    while (field->text() != QLatin1String("0"))
        click(padKey(editor, QStringLiteral("Clear")));
    typeInto(editor, field, digits);
}

void typeName(NewProgram *editor, const QString &letters)
{
    for (const QChar c : letters) {
        const QString name = c == QLatin1Char(' ') ? QStringLiteral("space") : QString(c);
        click(findKey(editor->GetKeyboard(), QStringLiteral("pushButton_") + name));
    }
}

// English for a few of the editor's German source texts, whatever their context.
class EnglishTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        static const QMap<QString, QString> words{
            {QStringLiteral("Programm sichern"), QStringLiteral("Save program")},
            {QStringLiteral("Temperatur (°C)"), QStringLiteral("Temperature (°C)")},
            {QStringLiteral("Programm nicht gespeichert!\nZurück?"), QStringLiteral("Not saved!\nBack?")}};
        return words.value(QString::fromUtf8(sourceText));
    }
    bool isEmpty() const override { return false; }
};

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

    void headFollowsTheUnit();
    void unitChangeKeepsTheSegments();
    void followsALanguageChange();
    void entryLimitsWhileTyping_data();
    void entryLimitsWhileTyping();
    void digitPadEditsTheFocusedField();
    void digitPadWithoutFocusedFieldDoesNothing();
    void enterKeyAddsAFocusedRow();
    void tableHoldsAtMostTenRows();
    void readTableContent();
    void changeProgramFillsRows_data();
    void changeProgramFillsRows();
    void createChartRefusesAnEmptyTable();
    void fullSaveWithTheRealButtons();
    void saveAtOnceEmitsWithoutShowingTheChart();
    void overrideQuestion();
    void refusedNames_data();
    void refusedNames();
    void leavingWithoutANewProgram_data();
    void leavingWithoutANewProgram();
    void leavingAsksWhileANewProgramIsUnderWay();

private:
    std::unique_ptr<QWidget> m_host;
    NewProgram *m_editor = nullptr;
};

void TstNewProgram::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qRegisterMetaType<Program *>();
    QString style;
    for (const char *path : {":/style/panel.qss", ":/style/popups.qss"}) {
        QFile file(QString::fromLatin1(path));
        QVERIFY(file.open(QIODevice::ReadOnly));
        style += QString::fromUtf8(file.readAll());
    }
    qApp->setStyleSheet(style);
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

void TstNewProgram::headFollowsTheUnit()
{
    auto *head = m_editor->findChild<TableHead *>();
    QVERIFY(head);
    QCOMPARE(head->GetTempText(), QStringLiteral("Temperatur (°C)"));
    QVERIFY(head->GetRateText().startsWith(QStringLiteral("Rate")));
    QVERIFY(head->GetRateText().endsWith(QStringLiteral("°C/min")));
    QCOMPARE(head->GetTimeText(), QStringLiteral("Haltezeit (min)"));

    m_editor->SetUnitToFahrenheit(true);
    QCOMPARE(head->GetTempText(), QStringLiteral("Temperatur (°F)"));
    QVERIFY(head->GetRateText().endsWith(QStringLiteral("°F/min")));
    QCOMPARE(head->GetTimeText(), QStringLiteral("Haltezeit (min)"));
}

void TstNewProgram::unitChangeKeepsTheSegments()
{
    Program program(QStringLiteral("p"), QStringLiteral("Zirkon"),
                    Matrix{Row{120, 1650, 5}, Row{1, 51, 0}}, QStringLiteral("user"), false);
    m_editor->ChangeProgram(&program, false);
    m_editor->AddRow(0, 0, 0);

    m_editor->SetUnitToFahrenheit(true);
    QCOMPARE(m_editor->GetRows().first()->GetRateField()->text(), QStringLiteral("248"));
    QCOMPARE(m_editor->GetRows().first()->GetTempField()->text(), QStringLiteral("3002"));
    // An empty row shows the same as one added in °F.
    QCOMPARE(m_editor->GetRows().last()->GetRate(), 32u);
    m_editor->ReadTableContent();
    QCOMPARE(m_editor->GetMatrix(), *program.GetMatrix());

    m_editor->SetUnitToFahrenheit(true); // no change: nothing converted twice
    m_editor->SetUnitToFahrenheit(false);
    QCOMPARE(m_editor->GetRows().first()->GetTempField()->text(), QStringLiteral("1650"));
    QCOMPARE(m_editor->GetRows().last()->GetRate(), 0u);
    m_editor->ReadTableContent();
    QCOMPARE(m_editor->GetMatrix(), *program.GetMatrix());
}

void TstNewProgram::followsALanguageChange()
{
    auto *head = m_editor->findChild<TableHead *>();
    EnglishTranslator english;
    QVERIFY(qApp->installTranslator(&english));
    QTRY_COMPARE(m_editor->GetSaveTitle(), QStringLiteral("Save program"));
    QTRY_COMPARE(head->GetTempText(), QStringLiteral("Temperature (°C)"));
    QTRY_COMPARE(m_editor->GetLeaveBackPopup()->GetMessage(), QStringLiteral("Not saved!\nBack?"));

    QVERIFY(qApp->removeTranslator(&english));
    QTRY_COMPARE(m_editor->GetSaveTitle(), QStringLiteral("Programm sichern"));
    QTRY_COMPARE(head->GetTempText(), QStringLiteral("Temperatur (°C)"));
}

void TstNewProgram::entryLimitsWhileTyping_data()
{
    QTest::addColumn<bool>("fahrenheit");
    QTest::addColumn<unsigned int>("maxRate"); // 0: the default
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    QTest::newRow("1650 °C kept") << false << 0u << "temp" << "1650" << "1650";
    QTest::newRow("1651 °C") << false << 0u << "temp" << "1651" << "1650";
    QTest::newRow("9999 °C") << false << 0u << "temp" << "9999" << "1650";
    QTest::newRow("3002 °F kept") << true << 0u << "temp" << "3002" << "3002";
    QTest::newRow("3003 °F") << true << 0u << "temp" << "3003" << "3002";
    QTest::newRow("default max 120 kept") << false << 0u << "rate" << "120" << "120";
    QTest::newRow("above default max") << false << 0u << "rate" << "121" << "120";
    QTest::newRow("above set max") << false << 60u << "rate" << "61" << "60";
    QTest::newRow("°F limit 248 kept") << true << 0u << "rate" << "248" << "248";
    QTest::newRow("above °F limit") << true << 0u << "rate" << "249" << "248";
    QTest::newRow("°F limit truncated") << true << 1u << "rate" << "34" << "33";
    QTest::newRow("time unlimited") << false << 0u << "time" << "99999" << "99999";
}

void TstNewProgram::entryLimitsWhileTyping()
{
    QFETCH(bool, fahrenheit);
    QFETCH(unsigned int, maxRate);
    QFETCH(QString, column);
    QFETCH(QString, typed);
    QFETCH(QString, shown);

    m_editor->SetUnitToFahrenheit(fahrenheit);
    if (maxRate != 0)
        m_editor->SetMaxHeatRate(maxRate);
    TableRow *row = m_editor->GetRows().first();
    QLineEdit *field = column == QLatin1String("rate")   ? row->GetRateField()
                       : column == QLatin1String("temp") ? row->GetTempField()
                                                         : row->GetTimeField();
    enter(m_editor, field, typed);
    QCOMPARE(field->text(), shown);

    // Rows added later carry the same limits.
    m_editor->AddRow(0, 0, 0);
    TableRow *added = m_editor->GetRows().last();
    QLineEdit *addedField = column == QLatin1String("rate")   ? added->GetRateField()
                            : column == QLatin1String("temp") ? added->GetTempField()
                                                              : added->GetTimeField();
    enter(m_editor, addedField, typed);
    QCOMPARE(addedField->text(), shown);
}

void TstNewProgram::digitPadEditsTheFocusedField()
{
    QLineEdit *rate = m_editor->GetRows().first()->GetRateField();
    QLineEdit *time = m_editor->GetRows().first()->GetTimeField();
    QCOMPARE(rate->text(), QStringLiteral("0"));

    typeInto(m_editor, rate, QStringLiteral("5"));
    QCOMPARE(rate->text(), QStringLiteral("5")); // the lone 0 was replaced
    click(padKey(m_editor, QStringLiteral("0")));
    QCOMPARE(rate->text(), QStringLiteral("50"));
    // The keys never take the focus from the field.
    QCOMPARE(m_editor->window()->focusWidget(), rate);

    click(padKey(m_editor, QStringLiteral("Clear")));
    QCOMPARE(rate->text(), QStringLiteral("5"));
    click(padKey(m_editor, QStringLiteral("Clear")));
    QCOMPARE(rate->text(), QStringLiteral("0"));
    click(padKey(m_editor, QStringLiteral("Clear")));
    QCOMPARE(rate->text(), QStringLiteral("0"));
    click(padKey(m_editor, QStringLiteral("0")));
    QCOMPARE(rate->text(), QStringLiteral("0"));

    // Another field, and the first one is left alone.
    typeInto(m_editor, time, QStringLiteral("30"));
    QCOMPARE(time->text(), QStringLiteral("30"));
    QCOMPARE(rate->text(), QStringLiteral("0"));
    QCOMPARE(m_editor->GetRows().first()->GetTime(), 30u);
}

void TstNewProgram::digitPadWithoutFocusedFieldDoesNothing()
{
    TableRow *row = m_editor->GetRows().first();
    // The focus sits outside the table (on the name field of the hidden save page it could
    // not; a field of its own stands for any other widget).
    QLineEdit outside(m_host.get());
    outside.show();
    outside.setFocus();
    QCOMPARE(m_editor->window()->focusWidget(), &outside);
    for (const QString &key : {QStringLiteral("7"), QStringLiteral("Clear")})
        click(padKey(m_editor, key));
    QCOMPARE(row->GetRateField()->text(), QStringLiteral("0"));
    QCOMPARE(row->GetTempField()->text(), QStringLiteral("0"));
    QCOMPARE(row->GetTimeField()->text(), QStringLiteral("0"));
    QVERIFY(outside.text().isEmpty());

    for (QPushButton *key : m_editor->findChild<QWidget *>(QStringLiteral("frame_pad"))->findChildren<QPushButton *>())
        QCOMPARE(key->focusPolicy(), Qt::NoFocus);
}

void TstNewProgram::enterKeyAddsAFocusedRow()
{
    m_editor->SetUnitToFahrenheit(true);
    click(padKey(m_editor, QStringLiteral("Enter")));
    QCOMPARE(m_editor->GetRows().size(), 2);
    TableRow *row = m_editor->GetRows().last();
    QCOMPARE(row->GetNumber(), 2);
    QVERIFY(row->IsFahrenheit());
    QVERIFY(row->IsBackgroundVisible());
    // An empty segment in °F shows what 0 °C converts to.
    QCOMPARE(row->GetRateField()->text(), QStringLiteral("32"));
    QCOMPARE(row->GetTempField()->text(), QStringLiteral("32"));
    QCOMPARE(row->GetTimeField()->text(), QStringLiteral("0"));
    // The next digits go into the new row.
    QTRY_COMPARE(m_editor->window()->focusWidget(), row->GetRateField());
    click(padKey(m_editor, QStringLiteral("Clear")));
    click(padKey(m_editor, QStringLiteral("6")));
    QCOMPARE(row->GetRateField()->text(), QStringLiteral("36"));
}

void TstNewProgram::tableHoldsAtMostTenRows()
{
    m_editor->SetMaxHeatRate(80);
    for (int i = 0; i < 9; ++i)
        m_editor->AddRow(10, 100 + i, 1);
    QCOMPARE(m_editor->GetRows().size(), 10);
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(m_editor->GetRows().at(i)->GetNumber(), i + 1);
        QCOMPARE(m_editor->GetRows().at(i)->GetMaxRate(), 80u);
    }

    m_editor->AddRow(20, 999, 9); // the eleventh
    QCOMPARE(m_editor->GetRows().size(), 10);
    click(padKey(m_editor, QStringLiteral("Enter")));
    QCOMPARE(m_editor->GetRows().size(), 10);
    QCOMPARE(m_editor->GetRows().last()->GetTemp(), 108u);

    // Clearing keeps the first row, emptied, and drops the others.
    m_editor->SlotDeleteTableContent();
    QCOMPARE(m_editor->GetRows().size(), 1);
    QCOMPARE(m_editor->GetRows().first()->GetRate(), 0u);
    QCOMPARE(m_editor->GetRows().first()->GetTemp(), 0u);
    QCOMPARE(m_editor->GetRows().first()->GetTime(), 0u);
    m_editor->AddRow(0, 0, 0);
    QCOMPARE(m_editor->GetRows().last()->GetNumber(), 2);
}

void TstNewProgram::readTableContent()
{
    TableRow *first = m_editor->GetRows().first();
    enter(m_editor, first->GetRateField(), QStringLiteral("5"));
    enter(m_editor, first->GetTempField(), QStringLiteral("30"));
    enter(m_editor, first->GetTimeField(), QStringLiteral("10"));
    click(padKey(m_editor, QStringLiteral("Enter")));
    enter(m_editor, m_editor->GetRows().at(1)->GetTempField(), QStringLiteral("900"));
    click(padKey(m_editor, QStringLiteral("Enter")));
    TableRow *third = m_editor->GetRows().at(2);
    enter(m_editor, third->GetRateField(), QStringLiteral("7"));
    enter(m_editor, third->GetTempField(), QStringLiteral("1200"));

    m_editor->ReadTableContent();
    QCOMPARE(m_editor->GetMatrix(), (Matrix{Row{5, 50, 10}, Row{7, 1200, 0}}));

    // Cleared fields read as 0.
    third->GetTimeField()->clear();
    m_editor->ReadTableContent();
    QCOMPARE(m_editor->GetMatrix().last(), (Row{7, 1200, 0}));

    // The same table in °F: 2732 °F is stored as 1500 °C, the rate is converted too.
    m_editor->SlotDeleteTableContent();
    m_editor->SetUnitToFahrenheit(true);
    first = m_editor->GetRows().first();
    enter(m_editor, first->GetRateField(), QStringLiteral("50"));
    enter(m_editor, first->GetTempField(), QStringLiteral("2732"));
    enter(m_editor, first->GetTimeField(), QStringLiteral("15"));
    m_editor->ReadTableContent();
    QCOMPARE(m_editor->GetMatrix(), (Matrix{Row{10, 1500, 15}}));
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
                    Matrix{Row{10, 500, 5}, Row{60, 1000, 0}, Row{120, 1500, 30}},
                    QStringLiteral("user"), false);
    m_editor->ChangeProgram(&program, false);

    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
    QVERIFY(m_editor->IsChangeMode());
    QVERIFY(!m_editor->IsSaveAtOnce());
    QCOMPARE(m_editor->GetOldName(), QStringLiteral("Speed"));
    QCOMPARE(m_editor->GetNameField()->text(), QStringLiteral("Speed"));
    QCOMPARE(m_editor->GetSelectedMaterial(), QStringLiteral("Zirkon"));
    QCOMPARE(m_editor->GetRows().size(), 3);
    const auto texts = [](const TableRow *row) {
        return QStringList{row->GetRateField()->text(), row->GetTempField()->text(), row->GetTimeField()->text()};
    };
    QCOMPARE(texts(m_editor->GetRows().first()), firstRow);
    QCOMPARE(texts(m_editor->GetRows().last()), lastRow);
    QCOMPARE(m_editor->GetRows().at(1)->GetNumber(), 2);

    // Read back unchanged in either unit.
    m_editor->ReadTableContent();
    QCOMPARE(m_editor->GetMatrix(), *program.GetMatrix());
}

void TstNewProgram::createChartRefusesAnEmptyTable()
{
    // Only [0, 0, 0] rows: nothing to draw, the table stays.
    m_editor->AddRow(0, 0, 0);
    click(m_editor->GetFwdButton());
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
    QVERIFY(m_editor->GetMatrix().isEmpty());
    QCOMPARE(m_editor->GetChart()->GetProfile().segmentCount, 0u);
}

void TstNewProgram::fullSaveWithTheRealButtons()
{
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);
    m_editor->SetSelectedMaterial(QStringLiteral("Argon"));
    m_editor->SlotSetNewProgram();

    TableRow *first = m_editor->GetRows().first();
    enter(m_editor, first->GetRateField(), QStringLiteral("40"));
    enter(m_editor, first->GetTempField(), QStringLiteral("900"));
    enter(m_editor, first->GetTimeField(), QStringLiteral("10"));
    click(padKey(m_editor, QStringLiteral("Enter")));
    typeInto(m_editor, m_editor->GetRows().last()->GetRateField(), QStringLiteral("20"));
    enter(m_editor, m_editor->GetRows().last()->GetTempField(), QStringLiteral("1450"));

    click(m_editor->GetFwdButton());
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewChart));
    QCOMPARE(m_editor->GetChart()->GetProfile().segmentCount, 2u);
    QVERIFY(!m_editor->GetChart()->GetProfile().fahrenheit);
    QVERIFY(m_editor->IsNewProgram());

    // Back to the table and forward again leaves the table as it was.
    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_backChart")));
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
    QCOMPARE(m_editor->GetRows().size(), 2);
    click(m_editor->GetFwdButton());

    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewSave));
    QVERIFY(!m_editor->IsNewProgram());
    QCOMPARE(m_editor->GetSaveTitle(), QStringLiteral("Programm sichern"));

    typeName(m_editor, QStringLiteral("glanz 2"));
    QCOMPARE(m_editor->GetNameField()->text(), QStringLiteral("glanz 2"));
    QCOMPARE(saved.count(), 0);
    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_save")));

    QCOMPARE(saved.count(), 1);
    std::unique_ptr<Program> program(savedProgram(saved));
    QCOMPARE(program->GetName(), QStringLiteral("glanz 2"));
    QCOMPARE(program->GetMaterial(), QStringLiteral("Argon"));
    QCOMPARE(program->GetManufacturer(), QStringLiteral("user"));
    QVERIFY(!program->IsFav());
    QCOMPARE(*program->GetMatrix(), (Matrix{Row{40, 900, 10}, Row{20, 1450, 0}}));

    // The editor is ready for the next program.
    QCOMPARE(m_editor->GetRows().size(), 1);
    QCOMPARE(m_editor->GetRows().first()->GetRate(), 0u);
    QVERIFY(m_editor->GetNameField()->text().isEmpty());
    QVERIFY(m_editor->GetMatrix().isEmpty());
}

void TstNewProgram::saveAtOnceEmitsWithoutShowingTheChart()
{
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);
    m_editor->SetUnitToFahrenheit(true);
    Program stored(QStringLiteral("Favorit"), QStringLiteral("Argon"),
                   Matrix{Row{10, 500, 5}, Row{0, 50, 0}, Row{60, 1500, 20}}, QStringLiteral("user"), true);
    m_editor->ChangeProgram(&stored, true);
    QVERIFY(m_editor->IsSaveAtOnce());

    m_editor->SlotCreateChart();
    QCOMPARE(saved.count(), 1); // at once, no event loop needed
    QVERIFY(!m_editor->IsSaveAtOnce());
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
    std::unique_ptr<Program> program(savedProgram(saved));
    QCOMPARE(program->GetName(), QStringLiteral("Favorit"));
    QCOMPARE(program->GetMaterial(), QStringLiteral("Argon"));
    QCOMPARE(program->GetManufacturer(), QStringLiteral("user"));
    QVERIFY(!program->IsFav());
    // The idle segment is gone; every value came back through °F unchanged.
    QCOMPARE(*program->GetMatrix(), (Matrix{Row{10, 500, 5}, Row{60, 1500, 20}}));
    QCOMPARE(m_editor->GetRows().size(), 1);
    QVERIFY(m_editor->GetNameField()->text().isEmpty());

    // The flag served once: the next chart is shown again.
    m_editor->AddRow(5, 600, 0);
    m_editor->SlotCreateChart();
    QCOMPARE(saved.count(), 1);
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewChart));
}

void TstNewProgram::overrideQuestion()
{
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);
    Program stored(QStringLiteral("speed"), QStringLiteral("Zirkon"), Matrix{Row{10, 500, 5}},
                   QStringLiteral("user"), false);
    PopupOverrideProg *question = m_editor->GetOverridePopup();
    QPushButton *ok = question->findChild<QPushButton *>(QStringLiteral("pushButton_OK"));
    QPushButton *cancel = question->findChild<QPushButton *>(QStringLiteral("pushButton_Cancel"));

    const auto toSavePage = [&] {
        m_editor->ChangeProgram(&stored, false);
        click(m_editor->GetFwdButton());
        click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
        QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewSave));
    };
    Iconbutton *save = m_editor->findChild<Iconbutton *>(QStringLiteral("widget_save"));

    // Same name: asked; declined goes back to the chart and stores nothing.
    toSavePage();
    click(save);
    QVERIFY(question->isVisible());
    QCOMPARE(saved.count(), 0);
    click(cancel);
    QVERIFY(!question->isVisible());
    QCOMPARE(saved.count(), 0);
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewChart));
    QCOMPARE(m_editor->GetRows().first()->GetTemp(), 500u);

    // Confirmed: stored under the old name.
    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
    click(save);
    QVERIFY(question->isVisible());
    click(ok);
    QCOMPARE(saved.count(), 1);
    std::unique_ptr<Program> first(savedProgram(saved));
    QCOMPARE(first->GetName(), QStringLiteral("speed"));
    QCOMPARE(*first->GetMatrix(), *stored.GetMatrix());

    // Another name is a new program: no question.
    toSavePage();
    typeName(m_editor, QStringLiteral("2"));
    click(save);
    QVERIFY(!question->isVisible());
    QCOMPARE(saved.count(), 2);
    std::unique_ptr<Program> second(savedProgram(saved, 1));
    QCOMPARE(second->GetName(), QStringLiteral("speed2"));

    // Outside change mode even the same name is not asked about.
    m_editor->AddRow(5, 600, 0);
    click(m_editor->GetFwdButton());
    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
    typeName(m_editor, QStringLiteral("speed"));
    click(save);
    QVERIFY(!question->isVisible());
    QCOMPARE(saved.count(), 3);
    delete savedProgram(saved, 2);
}

void TstNewProgram::refusedNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QString() << QStringLiteral("Namen eingeben");
    QTest::newRow("blanks") << QStringLiteral("   ") << QStringLiteral("Namen eingeben");
    QTest::newRow("dot") << QStringLiteral("Speed 1.5") << QStringLiteral("; = , . und $$");
    QTest::newRow("semicolon") << QStringLiteral("a;b") << QStringLiteral("; = , . und $$");
    QTest::newRow("two dollars") << QStringLiteral("a$$b") << QStringLiteral("; = , . und $$");
    QTest::newRow("euro") << QStringLiteral("5 \u20AC") << QStringLiteral("westeuropäischer");
}

void TstNewProgram::refusedNames()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QSignalSpy saved(m_editor, &NewProgram::SignalSaveNewProg);

    m_editor->AddRow(10, 800, 5);
    click(m_editor->GetFwdButton());
    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_fwdChart")));
    m_editor->GetNameField()->setText(name);
    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_save")));

    QCOMPARE(saved.count(), 0);
    QVERIFY(m_editor->GetNameMessage().startsWith(QStringLiteral("Name ungültig: ")));
    QVERIFY2(m_editor->GetNameMessage().contains(reason), qPrintable(m_editor->GetNameMessage()));
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewSave));
    QCOMPARE(m_editor->GetRows().size(), 2);
    QCOMPARE(m_editor->GetRows().last()->GetTemp(), 800u);
    QCOMPARE(m_editor->GetNameField()->text(), name);

    // Called directly as well, it refuses.
    m_editor->SlotSendProgToSave();
    QCOMPARE(saved.count(), 0);
    QCOMPARE(m_editor->GetRows().size(), 2);

    // Typing clears the reason; a valid name then saves.
    m_editor->GetNameField()->clear();
    typeName(m_editor, QStringLiteral("ok"));
    QVERIFY(m_editor->GetNameMessage().isEmpty());
    click(m_editor->findChild<Iconbutton *>(QStringLiteral("widget_save")));
    QCOMPARE(saved.count(), 1);
    delete savedProgram(saved);
}

void TstNewProgram::leavingWithoutANewProgram_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("toMenu");
    QTest::newRow("back") << "widget_back" << false;
    QTest::newRow("exit") << "widget_exit" << true;
    QTest::newRow("exit chart") << "widget_exitChart" << true;
}

void TstNewProgram::leavingWithoutANewProgram()
{
    QFETCH(QString, button);
    QFETCH(bool, toMenu);
    QSignalSpy exits(m_editor, &NewProgram::SignalExitNewProg);
    QSignalSpy backs(m_editor, &NewProgram::SignalBackToProgs);

    m_editor->AddRow(10, 800, 5);
    if (button == QLatin1String("widget_exitChart")) {
        click(m_editor->GetFwdButton());
        QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewChart));
        QCOMPARE(m_editor->GetExitChartButton()->objectName(), button);
    }
    click(m_editor->findChild<Iconbutton *>(button));

    QCOMPARE(exits.count(), toMenu ? 1 : 0);
    QCOMPARE(backs.count(), toMenu ? 0 : 1);
    QVERIFY(!m_editor->GetLeaveToMenuPopup()->isVisible());
    QVERIFY(!m_editor->GetLeaveBackPopup()->isVisible());
    QCOMPARE(m_editor->GetRows().size(), 1);
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
}

void TstNewProgram::leavingAsksWhileANewProgramIsUnderWay()
{
    QSignalSpy exits(m_editor, &NewProgram::SignalExitNewProg);
    QSignalSpy backs(m_editor, &NewProgram::SignalBackToProgs);
    PopupLeaveNewProg *toMenu = m_editor->GetLeaveToMenuPopup();
    PopupLeaveNewProg *back = m_editor->GetLeaveBackPopup();
    QCOMPARE(toMenu->GetMessage(), QStringLiteral("Programm nicht gespeichert!\nZum Hauptmenü?"));
    QCOMPARE(back->GetMessage(), QStringLiteral("Programm nicht gespeichert!\nZurück?"));
    const auto button = [](QWidget *popup, const char *name) {
        return popup->findChild<QPushButton *>(QString::fromLatin1(name));
    };

    m_editor->SlotSetNewProgram();
    m_editor->AddRow(10, 800, 5);

    // Cancel stays, with the table as it was.
    click(m_editor->GetExitButton());
    QVERIFY(toMenu->isVisible());
    QVERIFY(!back->isVisible());
    click(button(toMenu, "pushButton_Cancel"));
    QVERIFY(!toMenu->isVisible());
    click(m_editor->GetBackButton());
    QVERIFY(back->isVisible());
    QVERIFY(!toMenu->isVisible());
    click(button(back, "pushButton_Cancel"));
    QCOMPARE(exits.count() + backs.count(), 0);
    QCOMPARE(m_editor->GetRows().size(), 2);
    QVERIFY(m_editor->IsNewProgram());

    // OK on the back question goes back and drops the table.
    click(m_editor->GetBackButton());
    click(button(back, "pushButton_OK"));
    QCOMPARE(backs.count(), 1);
    QCOMPARE(exits.count(), 0);
    QCOMPARE(m_editor->GetRows().size(), 1);

    // OK on the menu question, asked from the chart page.
    m_editor->AddRow(10, 800, 5);
    click(m_editor->GetFwdButton());
    click(m_editor->GetExitChartButton());
    QVERIFY(toMenu->isVisible());
    click(button(toMenu, "pushButton_OK"));
    QCOMPARE(exits.count(), 1);
    QCOMPARE(backs.count(), 1);
    QCOMPARE(m_editor->GetRows().size(), 1);
    QCOMPARE(m_editor->GetCurrentView(), int(NewProgram::ViewTable));
}

QTEST_MAIN(TstNewProgram)
#include "tst_newprogram.moc"
