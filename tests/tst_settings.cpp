// The language and unit rules on their own: which file a keyword or a tap loads, what is
// reported back, and what the controller's unit text means.
#include "app/paths.h"
#include "settings/languages.h"
#include "settings/temperatureunit.h"

#include <QtTest>

using namespace ovra::Settings;

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void controllerKeywords_data();
    void controllerKeywords();
    void buttonLabels_data();
    void buttonLabels();
    void translationFilesLieUnderTheHome();
    void unitFromTheController();
};

void TestSettings::controllerKeywords_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("file");
    QTest::newRow("German") << "deutsch" << "translation_de.qm";
    QTest::newRow("Chinese as the controller spells it") << "chinesishc" << "translation_cn.qm";
    // The panel's own spelling is not the controller's: it falls back to US English.
    QTest::newRow("Chinese as the panel spells it") << "chinesisch" << "translation_en_US.qm";
    QTest::newRow("French") << "franzoesisch" << "translation_fr.qm";
    QTest::newRow("Portuguese") << "portugisisch" << "translation_br.qm";
    QTest::newRow("case matters") << "Deutsch" << "translation_en_US.qm";
    QTest::newRow("unknown") << "klingonisch" << "translation_en_US.qm";
    QTest::newRow("empty") << "" << "translation_en_US.qm";
}

void TestSettings::controllerKeywords()
{
    QFETCH(QString, keyword);
    QFETCH(QString, file);
    const LanguageChoice choice = ChoiceFromController(keyword);
    QCOMPARE(choice.file, file);
    // Whatever loads, the controller hears back its own word.
    QCOMPARE(choice.keyword, keyword);
    QCOMPARE(choice.current, keyword);
    QCOMPARE(LanguageRequest(choice.keyword), QStringLiteral("lang==") + keyword);
}

void TestSettings::buttonLabels_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("current");
    QTest::newRow("blank inside") << "English US" << "translation_en_US.qm" << "englischUS" << "englischUS";
    QTest::newRow("blanks around") << " English UK " << "translation_en_UK.qm" << "englischUK" << "englischUK";
    // Reported in the panel's spelling, known in the controller's.
    QTest::newRow("Chinese") << "中國" << "translation_cn.qm" << "chinesisch" << "chinesishc";
    QTest::newRow("French") << "Français" << "translation_fr.qm" << "franzoesisch" << "franzoesisch";
    QTest::newRow("Portuguese") << "Português" << "translation_br.qm" << "portugisisch" << "portugisisch";
    // The button's label begins with a Latin P; a Cyrillic Р is another label.
    QTest::newRow("Russian, Latin P") << "Pусский" << "translation_ru.qm" << "russisch" << "russisch";
    QTest::newRow("Russian, Cyrillic Р") << "Русский" << "translation_en_US.qm" << "englischUS" << "englischUS";
}

void TestSettings::buttonLabels()
{
    QFETCH(QString, label);
    QFETCH(QString, file);
    QFETCH(QString, keyword);
    QFETCH(QString, current);
    const LanguageChoice choice = ChoiceFromButton(label);
    QCOMPARE(choice.file, file);
    QCOMPARE(choice.keyword, keyword);
    QCOMPARE(choice.current, current);
}

void TestSettings::translationFilesLieUnderTheHome()
{
    const ovra::GlobalElements::Paths home(QStringLiteral("/tmp/panel-home"));
    QCOMPARE(TranslationPath(home, QStringLiteral("translation_jp.qm")),
             QStringLiteral("/tmp/panel-home/Downloads/translations/translation_jp.qm"));
    const ovra::GlobalElements::Paths device{QString()};
    QCOMPARE(TranslationPath(device, QStringLiteral("translation_de.qm")),
             QStringLiteral("/home/pi/Downloads/translations/translation_de.qm"));

    // The page marks what shows: German until a file has loaded.
    QCOMPARE(ShownLanguageRow(QString()), 0);
    QCOMPARE(ShownLanguageRow(QStringLiteral("translation_tw.qm")), 11);
}

void TestSettings::unitFromTheController()
{
    QVERIFY(TemperatureUnit::IsFahrenheit(QStringLiteral("f")));
    for (const char *celsius : {"c", "F", "", "fahrenheit"})
        QVERIFY2(!TemperatureUnit::IsFahrenheit(QString::fromLatin1(celsius)), celsius);
    QCOMPARE(TemperatureUnit::Request(true), QStringLiteral("unit==f"));
    QCOMPARE(TemperatureUnit::Request(false), QStringLiteral("unit==c"));
    // 300 °C is 572 °F: the door warning starts at the same heat in either unit.
    QCOMPARE(TemperatureUnit::DoorTempLimit(false), 300u);
    QCOMPARE(TemperatureUnit::DoorTempLimit(true), 572u);
}

QTEST_APPLESS_MAIN(TestSettings)
#include "tst_settings.moc"
