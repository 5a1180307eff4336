// The language rules on their own: which file a controller's keyword or a tapped label loads,
// and under which keywords the choice is reported and remembered.
#include "settings/languages.h"

#include <QtTest>

using namespace ovra::Settings;

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void choices_data();
    void choices();
};

void TestSettings::choices_data()
{
    QTest::addColumn<bool>("tapped");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reported");
    QTest::addColumn<QString>("remembered");
    QTest::newRow("controller: case matters") << false << "Deutsch"
                                              << "translation_en_US.qm"
                                              << "Deutsch"
                                              << "Deutsch";
    QTest::newRow("controller: its Chinese") << false << "chinesishc"
                                             << "translation_cn.qm"
                                             << "chinesishc"
                                             << "chinesishc";
    QTest::newRow("controller: the panel's Chinese") << false << "chinesisch"
                                                     << "translation_en_US.qm"
                                                     << "chinesisch"
                                                     << "chinesisch";
    QTest::newRow("tap: blanks ignored") << true << " English UK "
                                         << "translation_en_UK.qm"
                                         << "englischUK"
                                         << "englischUK";
    QTest::newRow("tap: Chinese") << true << "中國"
                                  << "translation_cn.qm"
                                  << "chinesisch"
                                  << "chinesishc";
    QTest::newRow("tap: Portuguese") << true << "Português"
                                     << "translation_br.qm"
                                     << "portugisisch"
                                     << "portugisisch";
    // The button's label begins with a Latin P; a Cyrillic Р is another label.
    QTest::newRow("tap: Russian, Latin P") << true << "Pусский"
                                           << "translation_ru.qm"
                                           << "russisch"
                                           << "russisch";
    QTest::newRow("tap: Russian, Cyrillic Р") << true << "Русский"
                                              << "translation_en_US.qm"
                                              << "englischUS"
                                              << "englischUS";
}

void TestSettings::choices()
{
    QFETCH(bool, tapped);
    QFETCH(QString, text);
    const LanguageChoice choice = tapped ? ChoiceFromButton(text) : ChoiceFromController(text);
    QTEST(choice.file, "file");
    QTEST(choice.keyword, "reported");
    QTEST(choice.current, "remembered");
}

QTEST_APPLESS_MAIN(TestSettings)
#include "tst_settings.moc"
