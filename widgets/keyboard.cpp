#include "widgets/keyboard.h"

#include "ui_keyboard.h"
#include "widgets/buttonkit.h"

#include <QLineEdit>

namespace ovra {
namespace GlobalElements {

namespace {
const int keyIconSide = 32;
} // namespace

Keyboard::Keyboard(QWidget *parent) : QWidget(parent), ui(new Ui::Keyboard)
{
    ui->setupUi(this);

    m_characterKeys = ButtonKit::ConnectTextKeys(this, [this](const QString &keyText) { OnCharacterKey(keyText); });

    ButtonKit::SetKeyFace(ui->pushButton_backspace, QStringLiteral(":/Icons/backspace.png"), QStringLiteral("\u232B"),
                          keyIconSide);
    ButtonKit::SetKeyFace(ui->pushButton_enter, QStringLiteral(":/Icons/enter.png"), QStringLiteral("\u21B5"),
                          keyIconSide);
    ui->pushButton_shift->setText(QStringLiteral("\u21E7"));
    ui->pushButton_shift->setCheckable(true);
    // Holding backspace clears a name quickly, as on any keyboard.
    ui->pushButton_backspace->setAutoRepeat(true);

    connect(ui->pushButton_backspace, &QPushButton::clicked, this, &Keyboard::OnBackspace);
    connect(ui->pushButton_space, &QPushButton::clicked, this, [this] { insertLetter(QStringLiteral(" ")); });
    connect(ui->pushButton_enter, &QPushButton::clicked, this, &Keyboard::SignalEnter);
    connect(ui->pushButton_shift, &QPushButton::toggled, this, &Keyboard::SetShifted);
}

Keyboard::~Keyboard()
{
    delete ui;
}

void Keyboard::SetTarget(QLineEdit *target)
{
    m_target = target;
    SetShifted(false);
}

QLineEdit *Keyboard::GetTarget() const
{
    return m_target;
}

QString Keyboard::KeyOutput(const QString &keyText, bool shifted)
{
    if (!shifted || keyText == QStringLiteral("ß"))
        return keyText;
    return keyText.toUpper();
}

QSize Keyboard::sizeHint() const
{
    return QSize(800, 232);
}

void Keyboard::insertLetter(const QString &text)
{
    if (!m_target)
        return;
    const QString before = m_target->text();
    m_target->insert(text);
    if (m_target->text() != before)
        emit SignalTextChanged(m_target->text());
}

void Keyboard::OnCharacterKey(const QString &keyText)
{
    if (!m_target)
        return;
    insertLetter(KeyOutput(keyText, m_shifted));
    // One capital, then back to small letters: names are typed, not shouted.
    SetShifted(false);
}

void Keyboard::OnBackspace()
{
    if (!m_target)
        return;
    const QString before = m_target->text();
    m_target->backspace();
    if (m_target->text() != before)
        emit SignalTextChanged(m_target->text());
}

void Keyboard::SetShifted(bool shifted)
{
    m_shifted = shifted;
    {
        const QSignalBlocker blocker(ui->pushButton_shift);
        ui->pushButton_shift->setChecked(shifted);
    }
    for (QPushButton *key : qAsConst(m_characterKeys))
        key->setText(KeyOutput(key->property("keyText").toString(), shifted));
}

} // namespace GlobalElements
} // namespace ovra
