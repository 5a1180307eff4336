#include "process/autostartnoteview.h"

namespace ovra {
namespace Process {

AutostartNoteView::AutostartNoteView(const QString &text, QWidget *parent) : QPlainTextEdit(text, parent)
{
    setObjectName(QStringLiteral("plainTextEdit_autostart"));
    setReadOnly(true);
    setFont(QFont(QStringLiteral("Monserrat"), 16));
    setStyleSheet(QStringLiteral("QPlainTextEdit{\n border: 0px;\n color: rgb(83, 88, 91);\n}"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    setFixedSize(180, 72); // three lines at 16 pt
}

} // namespace Process
} // namespace ovra
