#pragma once

#include <QList>
#include <QString>

namespace ovra {
namespace GlobalElements {
class Paths;
}

namespace Settings {

// One row of the language table. The keywords are the controller's and are kept with their
// spellings: the controller answers "chinesishc" for the keyword the panel sends as
// "chinesisch", and the Russian label starts with a Latin capital P.
struct Language
{
    QString label;           // on the button
    QString sentKeyword;     // "lang==" the panel sends
    QString acceptedKeyword; // "lang" the controller sends
    QString file;            // translation file
    bool offered;            // shown on the language page
};

// In the order of the buttons widget_Lang1 .. widget_Lang12.
const QList<Language> &Languages();

// A translation to load, the keyword that reports it to the controller once it is loaded, and
// the keyword under which the panel then knows it as its current language: the controller's
// spelling, so that only the controller's own keyword for the language shown is a repetition.
struct LanguageChoice
{
    QString file;
    QString keyword;
    QString current;
};

// The controller's keyword, compared case-sensitively with what the controller sends; one that
// matches no row loads US English. The keyword reported back is always the controller's own.
LanguageChoice ChoiceFromController(const QString &keyword);
// A button's label, its blanks ignored; a label that matches no row loads US English. For
// Chinese the panel reports "chinesisch" but knows it as "chinesishc": the controller's later
// "chinesisch" is then no repetition and loads US English, as the controller expects.
LanguageChoice ChoiceFromButton(const QString &label);

// The language page's rows in grid order: the offered languages close ranks, the one shown
// follows them when it is not offered, so it is on the page and marked, and the rest, hidden,
// keep their places behind.
QList<int> LanguagePageOrder(int shownRow);
bool OnLanguagePage(int row, int shownRow);

// Where a translation file lies: "/home/pi/Downloads/translations/<file>" under the home.
QString TranslationPath(const GlobalElements::Paths &paths, const QString &file);
// Row of the language whose file is loaded; without a translation the German source texts
// show, which is row 0.
int ShownLanguageRow(const QString &loadedFile);

} // namespace Settings
} // namespace ovra
