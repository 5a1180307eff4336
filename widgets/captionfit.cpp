#include "widgets/captionfit.h"

#include <QFont>
#include <QFontMetrics>
#include <QStringList>
#include <QTextBoundaryFinder>

namespace ovra {
namespace GlobalElements {

QString CaptionFit::DisplayText(const QString &caption)
{
    QString out;
    out.reserve(caption.size());
    for (int i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == QLatin1Char('&')) {
            // "&&" is a literal ampersand; a single one only marks the next letter.
            if (i + 1 < caption.size() && caption.at(i + 1) == QLatin1Char('&')) {
                out += QLatin1Char('&');
                ++i;
            }
            continue;
        }
        out += caption.at(i);
    }
    return out;
}

QString CaptionFit::Escape(const QString &displayText)
{
    QString out = displayText;
    out.replace(QLatin1Char('&'), QLatin1String("&&"));
    return out;
}

namespace {

// A piece of the caption that is never split, and whether a space separates it from the
// piece before. Hyphenated compounds ("Service-Funktionen") may break after the hyphen.
struct Piece
{
    QString text;
    bool spaceBefore;
};

// Chinese and Japanese put no spaces between words: a line may end between almost any two of
// their characters, and a caption without such breaks could only be shortened, never wrapped.
bool IsCjk(QChar c)
{
    const QChar::Script script = c.script();
    return script == QChar::Script_Han || script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
}

// Where a line may end inside one word: after a hyphen between letters (not in a leading
// "-5"), and where the Unicode line-break rules allow it next to a CJK character (which keeps
// "ー", small kana and closing marks off the start of a line).
QList<int> BreaksInWord(const QString &word)
{
    QList<int> breaks;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, word);
    for (int i = 1; i < word.size(); ++i) {
        bool allowed = word.at(i - 1) == QLatin1Char('-') && i > 1;
        if (!allowed && (IsCjk(word.at(i - 1)) || IsCjk(word.at(i)))) {
            finder.setPosition(i);
            allowed = finder.isAtBoundary();
        }
        if (allowed)
            breaks << i;
    }
    return breaks;
}

QList<Piece> SplitIntoPieces(const QString &text)
{
    QList<Piece> pieces;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        bool first = true;
        int from = 0;
        for (const int at : BreaksInWord(word)) {
            pieces.append({word.mid(from, at - from), first});
            first = false;
            from = at;
        }
        pieces.append({word.mid(from), first});
    }
    return pieces;
}

QString Joined(const QString &line, const Piece &piece)
{
    if (line.isEmpty())
        return piece.text;
    return piece.spaceBefore ? line + QLatin1Char(' ') + piece.text : line + piece.text;
}

} // namespace

QString CaptionFit::Fit(const QString &caption, const QFontMetrics &metrics, int width, int maxLines, bool *elided)
{
    const QString text = DisplayText(caption).simplified();
    bool dropped = false;
    if (maxLines < 1)
        maxLines = 1;
    if (width < 1)
        width = 1;

    QStringList lines;
    const QList<Piece> pieces = SplitIntoPieces(text);
    int next = 0;
    while (next < pieces.size()) {
        if (lines.size() == maxLines - 1) {
            // Last line: whatever is left, shortened if it has to be.
            QString rest;
            for (int i = next; i < pieces.size(); ++i)
                rest = Joined(rest, pieces.at(i));
            const QString shown = metrics.elidedText(rest, Qt::ElideRight, width);
            dropped = dropped || shown != rest;
            lines << shown;
            break;
        }
        QString line = pieces.at(next++).text;
        while (next < pieces.size()) {
            const QString longer = Joined(line, pieces.at(next));
            if (metrics.horizontalAdvance(longer) > width)
                break;
            line = longer;
            ++next;
        }
        if (metrics.horizontalAdvance(line) > width) {
            // One word wider than the button: it gets a line of its own, shortened.
            line = metrics.elidedText(line, Qt::ElideRight, width);
            dropped = true;
        }
        lines << line;
    }

    if (elided)
        *elided = dropped;
    return Escape(lines.join(QLatin1Char('\n')));
}

int CaptionFit::LargestPixels(QFont font, const QString &text, int width, int largest, int smallest)
{
    int pixels = largest;
    for (; pixels > smallest; pixels -= 2) {
        font.setPixelSize(pixels);
        if (QFontMetrics(font).size(0, text).width() <= width)
            break;
    }
    return qMax(pixels, smallest);
}

} // namespace GlobalElements
} // namespace ovra
