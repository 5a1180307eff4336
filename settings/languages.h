#pragma once

#include <QList>
#include <QString>

namespace ovra {
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

const QList<Language> &Languages();

} // namespace Settings
} // namespace ovra
