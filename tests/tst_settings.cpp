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
    // The choice is remembered under the keyword it is reported by, but for the tapped Chinese.
    const auto row = [](const char *tag, bool tapped, const char *text, const char *file, const char *reported,
                        const char *remembered = nullptr) {
        QTest::newRow(tag) << tapped << QString::fromUtf8(text) << QString::fromLatin1(file)
                           << QString::fromLatin1(reported) << QString::fromLatin1(remembered ? remembered : reported);
    };
    row("controller: case matters", false, "Deutsch", "translation_en_US.qm", "Deutsch");
    row("controller: its Chinese", false, "chinesishc", "translation_cn.qm", "chinesishc");
    row("tap: blanks ignored", true, " English UK ", "translation_en_UK.qm", "englischUK");
    row("tap: Chinese", true, "中國", "translation_cn.qm", "chinesisch", "chinesishc");
    row("tap: Portuguese", true, "Português", "translation_br.qm", "portugisisch");
    // The button's label begins with a Latin P; a Cyrillic Р is another label.
    row("tap: Russian, Latin P", true, "Pусский", "translation_ru.qm", "russisch");
    row("tap: Russian, Cyrillic Р", true, "Русский", "translation_en_US.qm", "englischUS");
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
