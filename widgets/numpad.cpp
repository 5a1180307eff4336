#include "widgets/numpad.h"

#include "ui_numpad.h"
#include "widgets/buttonkit.h"
#include "widgets/widgetstyle.h"

#include <QLineEdit>

namespace ovra {
namespace GlobalElements {

const char *const NumPad::codeStateProperty = "codeState";

namespace {
const int keyIconSide = 36;
} // namespace

NumPad::NumPad(QWidget *parent) : QWidget(parent), ui(new Ui::NumPad)
{
    ui->setupUi(this);

    ButtonKit::ConnectTextKeys(this, [this](const QString &digit) { OnDigit(digit); });
    ButtonKit::SetKeyFace(ui->pushButton_clear, QStringLiteral(":/Icons/backspace.png"), QStringLiteral("\u232B"),
                          keyIconSide);
    ButtonKit::SetKeyFace(ui->pushButton_ok, QStringLiteral(":/Icons/check.png"), QStringLiteral("OK"), keyIconSide);
    connect(ui->pushButton_clear, &QPushButton::clicked, this, &NumPad::OnClear);
    connect(ui->pushButton_ok, &QPushButton::clicked, this, &NumPad::OnOk);
}

NumPad::~NumPad()
{
    delete ui;
}

void NumPad::Initialize(QLineEdit *field, Pageinterface::en_pages target)
{
    if (m_field && m_field != field)
        ShowWrong(false);
    m_field = field;
    m_target = target;
    if (!m_field)
        return;
    m_field->clear();
    m_field->setEchoMode(QLineEdit::Password);
    m_field->setMaxLength(maxDigits);
    ShowWrong(false);
}

bool NumPad::IsShowingWrong() const
{
    return m_field && m_field->property(codeStateProperty).toString() == QLatin1String("wrong");
}

bool NumPad::IsCodeCorrect(const QString &typed, bool hasCode, unsigned int code)
{
    if (!hasCode || typed.isEmpty())
        return false;
    for (const QChar c : typed) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    bool ok = false;
    const unsigned int value = typed.toUInt(&ok);
    return ok && value == code;
}

QSize NumPad::sizeHint() const
{
    return QSize(300, 320);
}

void NumPad::SetCode(unsigned int code)
{
    m_code = code;
    m_hasCode = true;
}

void NumPad::OnDigit(const QString &digit)
{
    if (!m_field)
        return;
    ShowWrong(false);
    if (m_field->text().size() >= maxDigits)
        return;
    m_field->insert(digit);
}

void NumPad::OnClear()
{
    if (!m_field)
        return;
    ShowWrong(false);
    m_field->backspace();
}

void NumPad::OnOk()
{
    if (!m_field)
        return;
    const bool correct = IsCodeCorrect(m_field->text(), m_hasCode, m_code);
    // The PIN does not stay in the field either way: the page is left open on a panel
    // anyone can walk up to.
    m_field->clear();
    if (correct) {
        ShowWrong(false);
        emit SignalCorrectCode(m_target);
    } else {
        ShowWrong(true);
        emit SignalWrongCode();
    }
}

void NumPad::ShowWrong(bool wrong)
{
    if (!m_field)
        return;
    const QString state = wrong ? QStringLiteral("wrong") : QString();
    if (m_field->property(codeStateProperty).toString() == state)
        return;
    m_field->setProperty(codeStateProperty, state);
    WidgetStyle::Repolish(m_field);
}

} // namespace GlobalElements
} // namespace ovra
