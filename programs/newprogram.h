#pragma once

#include "app/pageinterface.h"
#include "programs/program.h"
#include "programs/programtable.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

class QLineEdit;

namespace Ui {
class NewProgram;
}

namespace ovra {
namespace Popups {
class PopupLeaveNewProg;
class PopupOverrideProg;
} // namespace Popups

namespace GlobalElements {

class Chart;
class Iconbutton;
class Keyboard;
class TableHead;
class TableRow;

// The program editor page: segments are typed into a table with the digit pad, drawn on
// the chart, named on the save page and handed out as a new user program. The matrix is
// always in °C; the table shows the unit chosen in the settings.
class NewProgram : public QWidget
{
    Q_OBJECT

public:
    enum View { ViewTable = 0, ViewChart = 1, ViewSave = 2 };

    explicit NewProgram(QWidget *parent = nullptr);
    ~NewProgram() override;

    void SetSelectedMaterial(const QString &material);
    QString GetSelectedMaterial() const { return m_selectedMaterial; }
    void SetMaxHeatRate(unsigned int maxHeatRate);
    unsigned int GetMaxHeatRate() const { return m_maxHeatRate; }
    void SetUnitToFahrenheit(bool fahrenheit);
    bool IsFahrenheit() const { return m_fahrenheit; }

    // Opens the editor on a stored program. With saveAtOnce the next chart creation stores
    // the program without showing the chart.
    void ChangeProgram(ovra::GlobalElements::Program *program, bool saveAtOnce);

    // Appends a segment given in °C; does nothing once the table is full.
    void AddRow(unsigned int rate, unsigned int temp, unsigned int time);
    void ReadTableContent();
    void CleanMatrix();
    bool CheckMatrix() const;

    void ResetName();
    void Translate();

    Iconbutton *GetBackButton() const;
    Iconbutton *GetExitButton() const;
    Iconbutton *GetExitChartButton() const;
    Iconbutton *GetFwdButton() const;
    Chart *GetChart() const;
    Keyboard *GetKeyboard() const;
    QLineEdit *GetNameField() const;

    int GetCurrentView() const;
    const QList<TableRow *> &GetRows() const { return m_rows; }
    const Program::Matrix &GetMatrix() const { return *m_matrix; }
    QString GetNameMessage() const;
    QString GetSaveTitle() const { return m_saveTitle; }
    bool IsNewProgram() const { return m_newProgram; }
    bool IsChangeMode() const { return m_changeMode; }
    bool IsSaveAtOnce() const { return m_saveAtOnce; }
    QString GetOldName() const { return m_oldName; }

    Popups::PopupOverrideProg *GetOverridePopup() const { return m_popupOverride; }
    Popups::PopupLeaveNewProg *GetLeaveToMenuPopup() const { return m_popupLeaveToMenu; }
    Popups::PopupLeaveNewProg *GetLeaveBackPopup() const { return m_popupLeaveBack; }

signals:
    // The receiver owns the program.
    void SignalSaveNewProg(ovra::GlobalElements::Program *program);
    void SignalBackToProgs();
    void SignalExitNewProg();

public slots:
    void SlotBackToTableContent();
    void SlotSaveProg(ovra::GlobalElements::Pageinterface::en_pages page);
    void SlotDeleteTableContent();
    void SlotSetNewProgram();
    void SlotCreateChart();
    void SlotSendProgToSave();
    void SlotCheckOverride();
    void SlotCheckOverridePopup(bool confirmed);
    // Connected to the back and the two exit buttons; tells them apart by the sender.
    void CheckNewProgram();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Marks the table cell the number pad types into; the mark stays while the pad is used.
    void MarkTypingField(QWidget *focused);
    QPointer<QLineEdit> m_typingField;
    enum class Leave { ToMainMenu, Back };

    void SetupDigitPad();
    void SetupScrolling();
    QLineEdit *FocusedTableField() const;
    void OnPadDigit(QChar digit);
    void OnPadClear();
    void OnPadEnter();
    void CheckLeave(Leave leave);
    void LeaveEditor(Leave leave);
    void ShowMaterial();
    // False, with the reason on the save page, when the name may not be stored.
    bool AcceptName(const QString &name);
    void ShowNameMessage(const QString &message);
    QString NameInField() const;

    std::unique_ptr<Ui::NewProgram> ui;

    const int m_maxRows = ProgramTable::maxRows;
    QList<TableRow *> m_rows;
    std::unique_ptr<Program::Matrix> m_matrix;
    QString m_selectedMaterial;
    const QString m_manufacturer = QStringLiteral("user");
    unsigned int m_maxHeatRate = ProgramTable::defaultMaxRate;
    bool m_saveAtOnce = false;
    bool m_changeMode = false;
    QString m_oldName;
    bool m_newProgram = false;
    bool m_fahrenheit = false;
    QString m_saveTitle;

    Popups::PopupOverrideProg *m_popupOverride = nullptr;
    Popups::PopupLeaveNewProg *m_popupLeaveToMenu = nullptr;
    Popups::PopupLeaveNewProg *m_popupLeaveBack = nullptr;
};

} // namespace GlobalElements
} // namespace ovra
