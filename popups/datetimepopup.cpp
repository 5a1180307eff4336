#include "popups/datetimepopup.h"

#include "popups/digitentry.h"
#include "ui_datetimepopup.h"
#include "widgets/confirmbuttons.h"

#include <QRegularExpressionValidator>

namespace ovra {
namespace Popups {

namespace {
const char *const invalidProperty = "invalid";

const DateTimeField fieldOrder[] = {DateTimeField::Day, DateTimeField::Month, DateTimeField::Year, DateTimeField::Hour,
                                    DateTimeField::Minute};
} // namespace

DateTimePopup::DateTimePopup(QWidget *parent)
    : PopupBase(parent), ui(new Ui::DateTimePopup), m_entry(new DigitEntry(this))
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_ok, ui->pushButton_cancel);
    // The comma key is part of the key set but has no meaning in a date or a time.
    ui->pushButton_com->hide();
    ui->label_Error->hide();

    m_fields = {ui->lineEdit_day, ui->lineEdit_month, ui->lineEdit_year, ui->lineEdit_hour, ui->lineEdit_minute};
    for (QLineEdit *field : qAsConst(m_fields)) {
        const QString pattern = QStringLiteral("\\d{0,%1}").arg(field->maxLength());
        field->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), field));
        // Editing a marked field takes the mark away; the check runs again on OK.
        connect(field, &QLineEdit::textChanged, this, [field] {
            if (!field->property(invalidProperty).toBool())
                return;
            field->setProperty(invalidProperty, false);
            Repolish(field);
        });
    }
    m_entry->SetFields(m_fields);

    m_entry->ConnectPad({ui->pushButton_0, ui->pushButton_1, ui->pushButton_2, ui->pushButton_3, ui->pushButton_4,
                         ui->pushButton_5, ui->pushButton_6, ui->pushButton_7, ui->pushButton_8, ui->pushButton_9},
                        ui->pushButton_clr, ui->pushButton_enter);
    connect(ui->pushButton_ok, &QPushButton::clicked, this, [this] { Confirm(); });
    connect(ui->pushButton_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

DateTimePopup::~DateTimePopup() = default;

void DateTimePopup::Translate()
{
    ui->retranslateUi(this);
    ui->label_Title->setText(Title());
}

DateTimeEntry DateTimePopup::GetEntry() const
{
    return {ui->lineEdit_day->text(), ui->lineEdit_month->text(), ui->lineEdit_year->text(), ui->lineEdit_hour->text(),
            ui->lineEdit_minute->text()};
}

bool DateTimePopup::FillFields(const QString &date, const QString &time)
{
    DateTimeEntry entry;
    if (!SplitDateTime(date, time, &entry))
        return false;
    ShowEntry(entry);
    MarkInvalid({});
    m_entry->SetCurrent(0);
    return true;
}

void DateTimePopup::ShowEntry(const DateTimeEntry &entry)
{
    ui->lineEdit_day->setText(entry.day);
    ui->lineEdit_month->setText(entry.month);
    ui->lineEdit_year->setText(entry.year);
    ui->lineEdit_hour->setText(entry.hour);
    ui->lineEdit_minute->setText(entry.minute);
}

void DateTimePopup::MarkInvalid(DateTimeFields invalid)
{
    int first = -1;
    for (int i = 0; i < m_fields.size(); ++i) {
        const bool marked = invalid.testFlag(fieldOrder[i]);
        if (marked && first < 0)
            first = i;
        m_fields.at(i)->setProperty(invalidProperty, marked);
        Repolish(m_fields.at(i));
    }
    ui->label_Error->setVisible(invalid != 0);
    if (first >= 0)
        m_entry->SetCurrent(first);
}

} // namespace Popups
} // namespace ovra
