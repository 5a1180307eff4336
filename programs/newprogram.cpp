#include "programs/newprogram.h"

#include "popups/popupleavenewprog.h"
#include "popups/popupoverrideprog.h"
#include "process/chart.h"
#include "programs/tablehead.h"
#include "programs/tablerow.h"
#include "ui_newprogram.h"
#include "widgets/buttonkit.h"
#include "widgets/iconbutton.h"
#include "widgets/keyboard.h"

#include <QEvent>
#include <QIcon>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QScroller>
#include <QStyle>
#include <QTimer>

namespace ovra {
namespace GlobalElements {

namespace {

const QString gasMaterial = QStringLiteral("Argon");
constexpr int padIconSide = 40;

} // namespace

NewProgram::NewProgram(QWidget *parent)
    : QWidget(parent), ui(new Ui::NewProgram), m_matrix(std::make_unique<Program::Matrix>())
{
    ui->setupUi(this);

    m_rows.append(ui->widget_row1);
    ui->widget_row1->SetNumber(1);
    ui->widget_row1->SetMaxRate(m_maxHeatRate);
    ui->widget_row1->SetBackgroundVisible(true);

    ui->widget_back->SetIcon(QStringLiteral(":/Icons/back.png"));
    ui->widget_exit->SetIcon(QStringLiteral(":/Icons/home.png"));
    ui->widget_fwd->SetIcon(QStringLiteral(":/Icons/next.png"));
    ui->widget_backChart->SetIcon(QStringLiteral(":/Icons/back.png"));
    ui->widget_exitChart->SetIcon(QStringLiteral(":/Icons/home.png"));
    ui->widget_fwdChart->SetIcon(QStringLiteral(":/Icons/next.png"));
    ui->widget_backSave->SetIcon(QStringLiteral(":/Icons/back.png"));
    ui->widget_save->SetIcon(QStringLiteral(":/Icons/check.png"));

    ui->widget_keyboard->SetTarget(ui->lineEdit_name);

    m_popupOverride = new Popups::PopupOverrideProg(this);
    m_popupLeaveToMenu = new Popups::PopupLeaveNewProg(Popups::PopupLeaveNewProg::Destination::MainMenu, this);
    m_popupLeaveBack = new Popups::PopupLeaveNewProg(Popups::PopupLeaveNewProg::Destination::Back, this);

    SetupDigitPad();
    SetupScrolling();

    connect(ui->widget_back, &Iconbutton::Signal_ButtonClicked, this, &NewProgram::CheckNewProgram);
    connect(ui->widget_exit, &Iconbutton::Signal_ButtonClicked, this, &NewProgram::CheckNewProgram);
    connect(ui->widget_exitChart, &Iconbutton::Signal_ButtonClicked, this, &NewProgram::CheckNewProgram);
    connect(ui->widget_fwd, &Iconbutton::Signal_ButtonClicked, this, &NewProgram::SlotCreateChart);
    connect(ui->widget_backChart, &Iconbutton::Signal_ButtonClicked, this, &NewProgram::SlotBackToTableContent);
    connect(ui->widget_fwdChart, &Iconbutton::Signal_ButtonClicked, this,
            [this] { SlotSaveProg(Pageinterface::NewProg); });
    connect(ui->widget_backSave, &Iconbutton::Signal_ButtonClicked, this,
            [this] { ui->stackedWidget_editor->setCurrentIndex(ViewChart); });
    connect(ui->widget_save, &Iconbutton::Signal_ButtonClicked, this, &NewProgram::SlotCheckOverride);
    connect(ui->widget_keyboard, &Keyboard::SignalEnter, this, &NewProgram::SlotCheckOverride);
    connect(ui->lineEdit_name, &QLineEdit::textChanged, this, [this] { ShowNameMessage(QString()); });

    connect(m_popupOverride, &Popups::PopupOverrideProg::SignalOverrideProg, this, &NewProgram::SlotCheckOverridePopup);
    connect(m_popupLeaveToMenu, &Popups::PopupLeaveNewProg::SignalLeave, this, [this](bool confirmed) {
        if (confirmed)
            LeaveEditor(Leave::ToMainMenu);
    });
    connect(m_popupLeaveBack, &Popups::PopupLeaveNewProg::SignalLeave, this, [this](bool confirmed) {
        if (confirmed)
            LeaveEditor(Leave::Back);
    });

    ui->stackedWidget_editor->setCurrentIndex(ViewTable);
    ShowMaterial();
    Translate();
}

NewProgram::~NewProgram()
{
    // Leaves no flick gesture registered for a widget that is going away.
    QScroller::ungrabGesture(ui->scrollArea_rows->viewport());
}

void NewProgram::SetupDigitPad()
{
    for (QPushButton *key : ui->frame_pad->findChildren<QPushButton *>()) {
        const QString digit = key->property("keyText").toString();
        if (digit.size() == 1)
            connect(key, &QPushButton::clicked, this, [this, digit] { OnPadDigit(digit.at(0)); });
    }
    ButtonKit::SetKeyFace(ui->pushButton_padClear, QStringLiteral(":/Icons/backspace.png"), QStringLiteral("\u232B"),
                          padIconSide);
    ButtonKit::SetKeyFace(ui->pushButton_padEnter, QStringLiteral(":/Icons/enter.png"), QStringLiteral("\u21B5"),
                          padIconSide);
    // Holding clear empties a field quickly, as on the name keyboard.
    ui->pushButton_padClear->setAutoRepeat(true);
    connect(ui->pushButton_padClear, &QPushButton::clicked, this, &NewProgram::OnPadClear);
    connect(ui->pushButton_padEnter, &QPushButton::clicked, this, &NewProgram::OnPadEnter);
}

void NewProgram::SetupScrolling()
{
    QWidget *viewport = ui->scrollArea_rows->viewport();
    QScroller::grabGesture(viewport, QScroller::LeftMouseButtonGesture);
    QScroller *scroller = QScroller::scroller(viewport);
    QScrollerProperties properties = scroller->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy,
                               QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff));
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                               QVariant::fromValue(QScrollerProperties::OvershootWhenScrollable));
    scroller->setScrollerProperties(properties);

    // The head's columns must stay above the fields when the scroll bar takes its room.
    ui->scrollArea_rows->verticalScrollBar()->installEventFilter(this);
}

bool NewProgram::eventFilter(QObject *watched, QEvent *event)
{
    QScrollBar *bar = ui->scrollArea_rows->verticalScrollBar();
    if (watched == bar && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
        ui->widget_head->SetRightInset(event->type() == QEvent::Show ? bar->width() : 0);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress)
        MarkTypingField(qobject_cast<QWidget *>(watched));
    return QWidget::eventFilter(watched, event);
}

void NewProgram::SetSelectedMaterial(const QString &material)
{
    m_selectedMaterial = material;
    ShowMaterial();
}

void NewProgram::SetMaxHeatRate(unsigned int maxHeatRate)
{
    m_maxHeatRate = maxHeatRate;
    for (TableRow *row : qAsConst(m_rows))
        row->SetMaxRate(maxHeatRate);
}

void NewProgram::SetUnitToFahrenheit(bool fahrenheit)
{
    const bool before = m_fahrenheit;
    m_fahrenheit = fahrenheit;
    ui->widget_head->SetFahrenheit(fahrenheit);
    // The rows keep their segments: what they show is converted into the new unit.
    for (TableRow *row : qAsConst(m_rows)) {
        const unsigned int rate = ProgramTable::ToCelcius(row->GetRate(), before);
        const unsigned int temp = ProgramTable::ToCelcius(row->GetTemp(), before);
        row->SetFahrenheit(fahrenheit);
        if (before != fahrenheit) {
            row->SetRate(ProgramTable::ToFahrenheit(rate, fahrenheit));
            row->SetTemp(ProgramTable::ToFahrenheit(temp, fahrenheit));
        }
    }
}

void NewProgram::ChangeProgram(Program *program, bool saveAtOnce)
{
    if (!program)
        return;
    // Rows left from an earlier visit would be taken for segments of this program.
    SlotDeleteTableContent();

    ui->stackedWidget_editor->setCurrentIndex(ViewTable);
    m_changeMode = true;
    m_saveAtOnce = saveAtOnce;
    m_oldName = program->GetName();
    ui->lineEdit_name->setText(m_oldName);
    SetSelectedMaterial(program->GetMaterial());

    const Program::Matrix &segments = *program->GetMatrix();
    if (segments.isEmpty())
        return;
    const QList<unsigned int> &first = segments.first();
    m_rows.first()->SetRate(ProgramTable::ToFahrenheit(first.value(0), m_fahrenheit));
    m_rows.first()->SetTemp(ProgramTable::ToFahrenheit(first.value(1), m_fahrenheit));
    m_rows.first()->SetTime(first.value(2));
    for (int i = 1; i < segments.size(); ++i) {
        const QList<unsigned int> &segment = segments.at(i);
        AddRow(segment.value(0), segment.value(1), segment.value(2));
    }
}

void NewProgram::AddRow(unsigned int rate, unsigned int temp, unsigned int time)
{
    if (m_rows.size() >= m_maxRows)
        return;
    auto *row = new TableRow(ui->scrollAreaWidgetContents_rows);
    row->SetNumber(m_rows.size() + 1);
    row->SetMaxRate(m_maxHeatRate);
    row->SetFahrenheit(m_fahrenheit);
    // Before the spacer that keeps the rows at the top.
    ui->verticalLayout_rows->insertWidget(ui->verticalLayout_rows->count() - 1, row);
    // Deliberate: the rate is converted like a temperature (see ProgramTable::ReadRows).
    row->SetRate(ProgramTable::ToFahrenheit(rate, m_fahrenheit));
    row->SetTemp(ProgramTable::ToFahrenheit(temp, m_fahrenheit));
    row->SetTime(time);
    row->SetBackgroundVisible(true);
    m_rows.append(row);
    for (QLineEdit *field : {row->GetRateField(), row->GetTempField(), row->GetTimeField()})
        field->installEventFilter(this);
}

void NewProgram::ReadTableContent()
{
    QList<ProgramTable::RowValues> values;
    for (const TableRow *row : qAsConst(m_rows))
        values.append({row->GetRate(), row->GetTemp(), row->GetTime()});
    *m_matrix = ProgramTable::ReadRows(values, m_fahrenheit);
    ShowMaterial();
}

void NewProgram::CleanMatrix()
{
    ProgramTable::CleanMatrix(*m_matrix);
    ui->widget_chart->DeleteChart();
}

bool NewProgram::CheckMatrix() const
{
    return ProgramTable::CheckMatrix(*m_matrix);
}

void NewProgram::ResetName()
{
    ui->lineEdit_name->clear();
    ShowNameMessage(QString());
}

void NewProgram::Translate()
{
    ui->retranslateUi(this);
    ui->widget_head->Translate();
    m_saveTitle = tr("Programm sichern");
    ui->label_saveTitle->setText(m_saveTitle);
    ShowMaterial();
}

void NewProgram::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Translate();
    QWidget::changeEvent(event);
}

Iconbutton *NewProgram::GetBackButton() const
{
    return ui->widget_back;
}

Iconbutton *NewProgram::GetExitButton() const
{
    return ui->widget_exit;
}

Iconbutton *NewProgram::GetExitChartButton() const
{
    return ui->widget_exitChart;
}

Iconbutton *NewProgram::GetFwdButton() const
{
    return ui->widget_fwd;
}

Chart *NewProgram::GetChart() const
{
    return ui->widget_chart;
}

Keyboard *NewProgram::GetKeyboard() const
{
    return ui->widget_keyboard;
}

QLineEdit *NewProgram::GetNameField() const
{
    return ui->lineEdit_name;
}

int NewProgram::GetCurrentView() const
{
    return ui->stackedWidget_editor->currentIndex();
}

QString NewProgram::GetNameMessage() const
{
    return ui->label_message->text();
}

void NewProgram::SlotBackToTableContent()
{
    ui->stackedWidget_editor->setCurrentIndex(ViewTable);
}

void NewProgram::SlotSaveProg(Pageinterface::en_pages)
{
    m_newProgram = false;
    ShowNameMessage(QString());
    ui->stackedWidget_editor->setCurrentIndex(ViewSave);
    ui->lineEdit_name->setFocus();
}

void NewProgram::SlotDeleteTableContent()
{
    while (m_rows.size() > 1)
        m_rows.takeLast()->Destroy();
    m_rows.first()->ResetRow();
    m_matrix->clear();
    // A cleared table is no longer the program that was opened for a change.
    m_changeMode = false;
    m_saveAtOnce = false;
    m_oldName.clear();
    ShowNameMessage(QString());
    ui->stackedWidget_editor->setCurrentIndex(ViewTable);
}

void NewProgram::SlotSetNewProgram()
{
    m_newProgram = true;
}

void NewProgram::SlotCreateChart()
{
    ReadTableContent();
    CleanMatrix();
    if (!CheckMatrix())
        return;
    ui->widget_chart->CreateChart(m_matrix.get(), false, m_fahrenheit);
    if (m_saveAtOnce) {
        m_saveAtOnce = false;
        SlotSendProgToSave();
    } else {
        ui->stackedWidget_editor->setCurrentIndex(ViewChart);
    }
}

void NewProgram::SlotSendProgToSave()
{
    const QString name = NameInField();
    if (!AcceptName(name))
        return;
    auto *program = new Program(name, m_selectedMaterial, *m_matrix, m_manufacturer, false);
    emit SignalSaveNewProg(program);
    SlotDeleteTableContent();
    ui->lineEdit_name->clear();
}

void NewProgram::SlotCheckOverride()
{
    const QString name = NameInField();
    if (!AcceptName(name))
        return;
    if (m_changeMode && name == m_oldName.trimmed())
        m_popupOverride->open();
    else
        SlotSendProgToSave();
}

void NewProgram::SlotCheckOverridePopup(bool confirmed)
{
    if (confirmed)
        SlotSendProgToSave();
    else
        ui->stackedWidget_editor->setCurrentIndex(ViewChart);
}

void NewProgram::CheckNewProgram()
{
    const QObject *button = sender();
    const bool toMenu = button == ui->widget_exit || button == ui->widget_exitChart;
    CheckLeave(toMenu ? Leave::ToMainMenu : Leave::Back);
}

void NewProgram::CheckLeave(Leave leave)
{
    if (!m_newProgram) {
        LeaveEditor(leave);
        return;
    }
    (leave == Leave::ToMainMenu ? m_popupLeaveToMenu : m_popupLeaveBack)->open();
}

void NewProgram::LeaveEditor(Leave leave)
{
    SlotDeleteTableContent();
    ResetName();
    if (leave == Leave::ToMainMenu)
        emit SignalExitNewProg();
    else
        emit SignalBackToProgs();
}

void NewProgram::MarkTypingField(QWidget *focused)
{
    auto *field = qobject_cast<QLineEdit *>(focused);
    bool inTable = false;
    for (const TableRow *row : qAsConst(m_rows))
        inTable = inTable || (field != nullptr && row->OwnsField(field));
    if (!inTable || field == m_typingField)
        return;
    // Set on a tap as well as on the focus, which an inactive window never reports: the mark
    // follows the cell the pad types into (the pad itself takes no focus).
    for (QLineEdit *edit : {m_typingField.data(), field}) {
        if (edit == nullptr)
            continue;
        edit->setProperty("typing", edit == field);
        edit->style()->unpolish(edit);
        edit->style()->polish(edit);
    }
    m_typingField = field;
}

QLineEdit *NewProgram::FocusedTableField() const
{
    QWidget *focused = window()->focusWidget();
    for (const TableRow *row : m_rows) {
        if (row->OwnsField(focused))
            return qobject_cast<QLineEdit *>(focused);
    }
    return nullptr;
}

void NewProgram::OnPadDigit(QChar digit)
{
    if (QLineEdit *field = FocusedTableField())
        field->setText(ProgramTable::PadDigit(field->text(), digit));
}

void NewProgram::OnPadClear()
{
    if (QLineEdit *field = FocusedTableField())
        field->setText(ProgramTable::PadClear(field->text()));
}

void NewProgram::OnPadEnter()
{
    const int before = m_rows.size();
    AddRow(0, 0, 0);
    if (m_rows.size() == before)
        return;
    // The new segment is typed next: give it the focus and bring it into view once laid out.
    TableRow *row = m_rows.last();
    row->GetRateField()->setFocus();
    MarkTypingField(row->GetRateField());
    QPointer<TableRow> guard(row);
    QTimer::singleShot(0, this, [this, guard] {
        if (guard)
            ui->scrollArea_rows->ensureWidgetVisible(guard, 0, 0);
    });
}

void NewProgram::ShowMaterial()
{
    const QString icon = m_selectedMaterial == gasMaterial ? QStringLiteral(":/Play/Gas.png") : QString();
    for (DisplayElementIcon *display : {ui->widget_material, ui->widget_materialChart}) {
        display->SetIcon(icon);
        display->SetText(m_selectedMaterial);
        display->setVisible(!m_selectedMaterial.isEmpty());
    }
}

QString NewProgram::NameInField() const
{
    return ui->lineEdit_name->text().trimmed();
}

bool NewProgram::AcceptName(const QString &name)
{
    switch (ProgramTable::CheckName(name)) {
    case ProgramTable::NameVerdict::Ok: return true;
    case ProgramTable::NameVerdict::Empty: ShowNameMessage(tr("Name ungültig: bitte einen Namen eingeben")); break;
    case ProgramTable::NameVerdict::ReservedCharacters:
        ShowNameMessage(tr("Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt"));
        break;
    case ProgramTable::NameVerdict::UnsupportedCharacter:
        ShowNameMessage(tr("Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt"));
        break;
    }
    // The reason is shown where the name is typed, also when saving was not started there.
    ui->stackedWidget_editor->setCurrentIndex(ViewSave);
    return false;
}

void NewProgram::ShowNameMessage(const QString &message)
{
    ui->label_message->setText(message);
}

} // namespace GlobalElements
} // namespace ovra
