#include "programs/programlists.h"

#include "programs/programfilter.h"
#include "programs/programhandler.h"
#include "widgets/button.h"
#include "widgets/programbutton.h"

#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace ovra {
namespace GlobalElements {

namespace {
// The value a filter button stands for; its text is that value in words.
const char *const filterValueProperty = "filterValue";

QString FilterValue(const Button *button)
{
    return button->property(filterValueProperty).toString();
}

// Five rows fill the list page; the first rows cover a flick down as well. The rest come in
// one go: every batch into a shown list lays out all its rows again.
constexpr int firstListRows = 24;
} // namespace

ProgramLists::ProgramLists(ProgramHandler::ProgramHandler *store, QObject *parent) : QObject(parent), m_store(store) {}

void ProgramLists::Fill(QVBoxLayout *layout, QList<Program *> *programs)
{
    // A batch still queued for the old list finds nothing left, or the new list's rows.
    m_pending.clear();
    for (ProgramButton *button : qAsConst(m_buttons)) {
        button->hide();
        button->deleteLater();
    }
    m_buttons.clear();
    // No row holds a replaced or deleted program any more.
    m_store->ReleaseRetired();
    m_pendingLayout = layout;
    m_pending = *programs;
    delete programs;
    // A row costs a quarter of a millisecond here and more on the board. A screenful and
    // more is built before the page shows, so the tap is answered at once however long the
    // list; the rest follows as soon as the page is up.
    AddRows(firstListRows);
}

void ProgramLists::AddRows(int count)
{
    if (m_pending.isEmpty())
        return;
    // One repaint for the whole batch, not one per row.
    QWidget *list = m_pendingLayout->parentWidget();
    list->setUpdatesEnabled(false);
    int at = m_pendingLayout->count() - 1; // before the closing spacer
    for (; count > 0 && !m_pending.isEmpty(); --count) {
        auto *button = new ProgramButton();
        button->SetButtonProgram(m_pending.takeFirst()); // shows the name and the favourite state too
        m_pendingLayout->insertWidget(at++, button);
        connect(button, &ProgramButton::SignalProgButtonClicked, this, &ProgramLists::SignalProgramChosen);
        connect(button, &ProgramButton::SignalSetProgToFav, this, &ProgramLists::SignalSetProgToFav);
        m_buttons.append(button);
    }
    list->setUpdatesEnabled(true);
    if (!m_pending.isEmpty())
        QTimer::singleShot(0, this, [this] { AddRows(m_pending.size()); });
}

void ProgramLists::Remove(const QString &name)
{
    m_pending.erase(
        std::remove_if(m_pending.begin(), m_pending.end(), [&name](const Program *p) { return p->GetName() == name; }),
        m_pending.end());
    for (int i = m_buttons.size() - 1; i >= 0; --i) {
        if (m_buttons.at(i)->GetText() == name) {
            m_buttons.at(i)->hide();
            m_buttons.at(i)->deleteLater();
            m_buttons.removeAt(i);
        }
    }
}

void ProgramLists::AddFilterButtons(QVBoxLayout *layout, bool byManufacturer)
{
    QList<Button *> &buttons = byManufacturer ? m_manufacturerButtons : m_materialButtons;
    QStringList shown;
    for (Button *button : qAsConst(buttons)) {
        shown << FilterValue(button);
        button->SetText(ProgramFilter::ShownValue(FilterValue(button))); // the language may have changed
    }
    const QStringList values = ProgramFilter::NewButtonValues(*m_store->GetProgramList(), byManufacturer, shown);
    for (const QString &value : values) {
        auto *button = new Button();
        button->setProperty(filterValueProperty, value);
        button->SetText(ProgramFilter::ShownValue(value));
        button->SetCheckable(true);
        button->setMinimumHeight(64);
        layout->insertWidget(layout->count() - 1, button);
        buttons.append(button);
    }
}

void ProgramLists::CheckForFilterOption(QList<Program *> &programs) const
{
    auto checkedTexts = [](const QList<Button *> &buttons) {
        QStringList texts;
        for (const Button *button : buttons) {
            if (button->IsChecked())
                texts << FilterValue(button).remove(QLatin1Char(' '));
        }
        return texts;
    };
    ProgramFilter::Apply(programs, checkedTexts(m_manufacturerButtons), checkedTexts(m_materialButtons));
}

} // namespace GlobalElements
} // namespace ovra
