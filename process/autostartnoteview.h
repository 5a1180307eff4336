#pragma once

#include <QPlainTextEdit>

namespace ovra {
namespace Process {

// The note of a delayed start beside the start button: three quiet lines that take no touch.
class AutostartNoteView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit AutostartNoteView(const QString &text, QWidget *parent = nullptr);
};

} // namespace Process
} // namespace ovra
