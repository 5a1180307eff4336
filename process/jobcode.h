#pragma once

#include "app/pageinterface.h"

#include <QObject>
#include <QString>

namespace ovra {
namespace GlobalElements {
class FurnaceState;
}

namespace Process {

// The job a firing is done for, as the lab's barcode or the operator names it. Entered on the
// program page, typed on the panel's keyboard or by a scanner that types like a keyboard; the
// next start takes it into the firing's record. Never sent to the controller.
// Kept only while the program page is shown: leaving it without a start drops the code, so a
// code cannot slip onto another program's firing.
class JobCode : public QObject
{
    Q_OBJECT

public:
    static constexpr int maxLength = 32;

    // Latin letters (umlauts included), the digits 0-9, "-", "/", ".", "_" and the space: what
    // a lab's barcode label holds, and what the panel's keyboard can type.
    static bool IsAllowed(QChar c);
    // The allowed characters of `text`, at most maxLength of them; what is left out is logged.
    static QString Accepted(const QString &text);

    // Follows the furnace's page: keys count only while the program page is shown, and leaving
    // it drops the code. The furnace must outlive this.
    explicit JobCode(const GlobalElements::FurnaceState &furnace, QObject *parent = nullptr);
    bool TakesKeys() const { return m_onPage; }

    QString Text() const { return m_text; }

    // The keyboard's whole text; editing goes on from it.
    void Set(const QString &text);
    // Keys as a scanner types them: the first after an Enter begins a new code, a scan never
    // adds to the last one.
    void Type(const QString &keys);
    void Backspace();
    void EndEntry(); // Enter
    void Clear();
    // For a start: the code without spaces at its ends; none is left for the next firing.
    QString Take();

signals:
    void Changed(const QString &text);

private:
    void Store(const QString &text);
    void PageShown(GlobalElements::Pageinterface::en_pages page);

    QString m_text;
    bool m_ended = true;
    bool m_onPage = false;
};

} // namespace Process
} // namespace ovra
