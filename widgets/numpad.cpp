#include "widgets/numpad.h"

#include "ui_numpad.h"
#include "widgets/buttonkit.h"
#include "widgets/widgetstyle.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace ovra {
namespace GlobalElements {

const char *const NumPad::codeStateProperty = "codeState";

namespace {
const int keyIconSide = 36;
} // namespace

NumPad::NumPad(QWidget *parent) : QWidget(parent), ui(new Ui::NumPad), m_lockTick(new QTimer(this))
{
    ui->setupUi(this);
    m_lockTick->setInterval(1000);
    connect(m_lockTick, &QTimer::timeout, this, &NumPad::ShowLock);

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

void NumPad::Initialize(QLineEdit *field, QLabel *status, Pageinterface::en_pages target)
{
    if (m_field && m_field != field)
        ShowWrong(false);
    m_field = field;
    m_status = status;
    m_target = target;
    ShowLock();
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
    if (!m_field || m_guard.IsLocked())
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
    const Settings::PinGuard::Verdict verdict = m_guard.Check(m_field->text(), m_hasCode, m_code);
    // The PIN does not stay in the field either way: the page is left open on a panel
    // anyone can walk up to.
    m_field->clear();
    if (verdict == Settings::PinGuard::Verdict::Correct) {
        ShowWrong(false);
        emit SignalCorrectCode(m_target);
        return;
    }
    ShowWrong(true);
    if (verdict == Settings::PinGuard::Verdict::Wrong)
        emit SignalWrongCode();
    ShowLock();
}

void NumPad::ShowLock()
{
    const int seconds = m_guard.SecondsLeft();
    if (seconds > 0)
        m_lockTick->start();
    else
        m_lockTick->stop();
    if (m_status)
        m_status->setText(seconds > 0 ? tr("Zu viele falsche Eingaben.\nGesperrt: noch %1 s").arg(seconds) : QString());
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
