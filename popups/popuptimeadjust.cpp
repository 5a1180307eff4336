#include "popups/popuptimeadjust.h"

#include "popups/datetimefields.h"
#include "popups/digitentry.h"
#include "ui_popuptimeadjust.h"
#include "widgets/confirmbuttons.h"

#include <QRegularExpressionValidator>

namespace ovra {
namespace Popups {

namespace {
const char *const invalidProperty = "invalid";

const DateTimeField fieldOrder[] = {DateTimeField::Day, DateTimeField::Month, DateTimeField::Year,
                                    DateTimeField::Hour, DateTimeField::Minute};
} // namespace

PopupTimeAdjust::PopupTimeAdjust(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupTimeAdjust)
    , m_entry(new DigitEntry(this))
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, ui->pushButton_Cancel);
    ui->label_Error->hide();

    m_fields = {ui->lineEdit_day, ui->lineEdit_month, ui->lineEdit_year, ui->lineEdit_hour, ui->lineEdit_minute};
    for (QLineEdit *field : qAsConst(m_fields)) {
        const QString pattern = QStringLiteral("\\d{0,%1}").arg(field->maxLength());
        field->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), field));
        // Editing a marked field takes the mark away; the check runs again on OK.
        connect(field, &QLineEdit::textChanged, this, [this, field] {
            if (!field->property(invalidProperty).toBool())
                return;
            field->setProperty(invalidProperty, false);
            Repolish(field);
        });
    }
    m_entry->SetFields(m_fields);

    m_entry->ConnectPad({ui->pushButton_0, ui->pushButton_1, ui->pushButton_2, ui->pushButton_3, ui->pushButton_4,
                         ui->pushButton_5, ui->pushButton_6, ui->pushButton_7, ui->pushButton_8, ui->pushButton_9},
                        ui->pushButton_Clear, ui->pushButton_Next);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &PopupTimeAdjust::SlotOk);
    connect(ui->pushButton_Cancel, &QPushButton::clicked, this, &QDialog::reject);
}

PopupTimeAdjust::~PopupTimeAdjust() = default;

void PopupTimeAdjust::Translate()
{
    ui->retranslateUi(this);
}

void PopupTimeAdjust::SetDateTime(const QString &date, const QString &time)
{
    DateTimeEntry entry;
    if (!SplitDateTime(date, time, &entry))
        return;
    ShowDateTimeEntry(m_fields, entry);
    MarkInvalid({});
    m_entry->SetCurrent(0);
}

DateTimeEntry PopupTimeAdjust::GetEntry() const
{
    return ReadDateTimeEntry(m_fields);
}

void PopupTimeAdjust::SlotOk()
{
    const DateTimeEntry entry = GetEntry();
    const DateTimeFields invalid = InvalidDateTimeFields(entry);
    MarkInvalid(invalid);
    if (invalid) {
        for (int i = 0; i < m_fields.size(); ++i) {
            if (invalid.testFlag(fieldOrder[i])) {
                m_entry->SetCurrent(i);
                break;
            }
        }
        return;
    }
    emit SignalDateAdjust(DateAdjustText(entry));
    emit SignalTimeAdjust(TimeAdjustText(entry));
    accept();
}

void PopupTimeAdjust::MarkInvalid(DateTimeFields invalid)
{
    for (int i = 0; i < m_fields.size(); ++i) {
        QLineEdit *field = m_fields.at(i);
        const bool marked = invalid.testFlag(fieldOrder[i]);
        field->setProperty(invalidProperty, marked);
        Repolish(field);
    }
    ui->label_Error->setVisible(invalid != 0);
}

} // namespace Popups
} // namespace ovra
