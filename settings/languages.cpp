#include "settings/languages.h"

#include "app/paths.h"

namespace ovra {
namespace Settings {

namespace {
const QString fallbackFile = QStringLiteral("translation_en_US.qm");
const QString fallbackKeyword = QStringLiteral("englischUS");
const QString translationFolder = QStringLiteral("/home/pi/Downloads/translations/");

QString WithoutBlanks(QString text)
{
    return text.remove(QLatin1Char(' '));
}
} // namespace

const QList<Language> &Languages()
{
    static const QList<Language> table = {
        {QStringLiteral("Deutsch"), QStringLiteral("deutsch"), QStringLiteral("deutsch"),
         QStringLiteral("translation_de.qm"), true},
        {QStringLiteral("English US"), QStringLiteral("englischUS"), QStringLiteral("englischUS"),
         QStringLiteral("translation_en_US.qm"), true},
        {QStringLiteral("English UK"), QStringLiteral("englischUK"), QStringLiteral("englischUK"),
         QStringLiteral("translation_en_UK.qm"), false},
        {QStringLiteral("Español"), QStringLiteral("spanisch"), QStringLiteral("spanisch"),
         QStringLiteral("translation_es.qm"), true},
        {QStringLiteral("Français"), QStringLiteral("franzoesisch"), QStringLiteral("franzoesisch"),
         QStringLiteral("translation_fr.qm"), true},
        {QStringLiteral("Italiano"), QStringLiteral("italienisch"), QStringLiteral("italienisch"),
         QStringLiteral("translation_it.qm"), true},
        {QStringLiteral("日本の"), QStringLiteral("japanisch"), QStringLiteral("japanisch"),
         QStringLiteral("translation_jp.qm"), false},
        {QStringLiteral("한국의"), QStringLiteral("koreanisch"), QStringLiteral("koreanisch"),
         QStringLiteral("translation_kr.qm"), false},
        {QStringLiteral("Português"), QStringLiteral("portugisisch"), QStringLiteral("portugisisch"),
         QStringLiteral("translation_br.qm"), true},
        {QStringLiteral("Pусский"), QStringLiteral("russisch"), QStringLiteral("russisch"),
         QStringLiteral("translation_ru.qm"), false},
        {QStringLiteral("中國"), QStringLiteral("chinesisch"), QStringLiteral("chinesishc"),
         QStringLiteral("translation_cn.qm"), false},
        {QStringLiteral("台灣"), QStringLiteral("taiwanesisch"), QStringLiteral("taiwanesisch"),
         QStringLiteral("translation_tw.qm"), false},
    };
    return table;
}

LanguageChoice ChoiceFromController(const QString &keyword)
{
    for (const Language &language : Languages()) {
        if (language.acceptedKeyword == keyword)
            return {language.file, keyword, keyword};
    }
    return {fallbackFile, keyword, keyword};
}

LanguageChoice ChoiceFromButton(const QString &label)
{
    const QString tapped = WithoutBlanks(label);
    for (const Language &language : Languages()) {
        if (WithoutBlanks(language.label) == tapped)
            return {language.file, language.sentKeyword, language.acceptedKeyword};
    }
    return {fallbackFile, fallbackKeyword, fallbackKeyword};
}

QString TranslationPath(const GlobalElements::Paths &paths, const QString &file)
{
    return paths.Resolve(translationFolder + file);
}

bool OnLanguagePage(int row, int shownRow)
{
    return row == shownRow || Languages().at(row).offered;
}

QList<int> LanguagePageOrder(int shownRow)
{
    QList<int> order;
    for (int pass = 0; pass < 3; ++pass) {
        for (int row = 0; row < Languages().size(); ++row) {
            const int rank = Languages().at(row).offered ? 0 : row == shownRow ? 1 : 2;
            if (rank == pass)
                order << row;
        }
    }
    return order;
}

int ShownLanguageRow(const QString &loadedFile)
{
    const QList<Language> &languages = Languages();
    for (int row = 0; row < languages.size(); ++row) {
        if (languages.at(row).file == loadedFile)
            return row;
    }
    return 0;
}

} // namespace Settings
} // namespace ovra
