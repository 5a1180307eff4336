#pragma once

#include <QString>

class QFont;
class QFontMetrics;

namespace ovra {
namespace GlobalElements {

// Fits a button caption into the room a button has. QPushButton neither wraps nor elides,
// and on an 800 px screen a German caption easily outgrows a tile; a clipped word is worse
// than a wrapped or shortened one.
//
// Captions use QPushButton's mnemonic escaping ("&&" shows as "&"). The fitted result keeps
// that escaping so it can be handed straight back to QAbstractButton::setText().
class CaptionFit
{
public:
    // What the user sees: "&&" becomes "&", a lone "&" marking a mnemonic disappears.
    static QString DisplayText(const QString &caption);
    // The reverse: every "&" doubled so the button shows it literally.
    static QString Escape(const QString &displayText);

    // Wraps the caption (at spaces, after hyphens, between Chinese or Japanese characters)
    // into at most maxLines lines of at most width pixels, eliding the last line (or a single
    // over-long word) with "…". elided is set when any text was dropped, so the caller can
    // offer the full text as a tooltip.
    static QString Fit(const QString &caption, const QFontMetrics &metrics, int width, int maxLines,
                       bool *elided = nullptr);

    // The largest pixel size from largest down to smallest, in steps of two, at which the text
    // fits on one line in width pixels, measured by its full extent (overhangs included);
    // smallest when none does. A text read from across the room shrinks before it is cut.
    static int LargestPixels(QFont font, const QString &text, int width, int largest, int smallest);
};

} // namespace GlobalElements
} // namespace ovra
