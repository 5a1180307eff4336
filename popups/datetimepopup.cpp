#include "popups/datetimepopup.h"

#include "popups/digitentry.h"
#include "ui_datetimepopup.h"

#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace Popups {

namespace {
const char *const invalidProperty = "invalid";

const DateTimeField fieldOrder[] = {DateTimeField::Day, DateTimeField::Month, DateTimeField::Year, DateTimeField::Hour,
                                    DateTimeField::Minute};
} // namespace

DateTimePopup::DateTimePopup(QWidget *parent)
    : PopupBase(parent), ui(new Ui::DateTimePopup), m_form(new QWidget),
      m_cancel(AddButton(QStringLiteral("pushButton_cancel"), Verb::Neutral)),
      m_ok(AddButton(QStringLiteral("pushButton_ok"), Verb::Action)), m_entry(new DigitEntry(this))
{
    resize(760, 440);
    ui->setupUi(m_form);
    Body()->addWidget(m_form, 1);
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
    connect(m_ok, &QPushButton::clicked, this, [this] { Confirm(); });
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

DateTimePopup::~DateTimePopup() = default;

void DateTimePopup::Translate()
{
    ui->retranslateUi(m_form);
    SetTitle(Title());
    m_cancel->setText(tr("Abbrechen"));
    m_ok->setText(ConfirmVerb());
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
