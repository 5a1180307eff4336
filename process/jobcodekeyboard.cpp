#include "process/jobcodekeyboard.h"

#include "process/jobcode.h"
#include "widgets/iconbutton.h"
#include "widgets/keyboard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ovra {
namespace Process {

JobCodeKeyboard::JobCodeKeyboard(JobCode *code, QWidget *cover)
    : QWidget(cover), m_code(code), m_cover(cover), m_title(new QLabel(this)), m_hint(new QLabel(this)),
      m_field(new QLineEdit(this)), m_keyboard(new GlobalElements::Keyboard(this)),
      m_cancel(new GlobalElements::Iconbutton(this)), m_done(new GlobalElements::Iconbutton(this))
{
    setObjectName(QStringLiteral("widget_jobKeyboard"));
    setAttribute(Qt::WA_StyledBackground, true);
    setStyleSheet(QStringLiteral("QWidget#widget_jobKeyboard { background: #F4F6F8; }"));
    m_title->setStyleSheet(QStringLiteral("font-size: 26px; font-weight: bold;"));
    m_hint->setStyleSheet(QStringLiteral("color: #53585B;"));
    m_hint->setWordWrap(true);
    m_field->setObjectName(QStringLiteral("lineEdit_job"));
    m_field->setStyleSheet(QStringLiteral("QLineEdit { font-size: 28px; min-height: 56px; }"));
    m_field->setMaxLength(JobCode::maxLength);
    m_field->setFocusPolicy(Qt::NoFocus); // keys reach the code, never the field itself
    m_keyboard->SetTarget(m_field);
    m_cancel->setObjectName(QStringLiteral("widget_jobCancel"));
    m_cancel->SetIcon(QStringLiteral(":/Icons/abbrechen.png"));
    m_done->setObjectName(QStringLiteral("widget_jobDone"));
    m_done->SetIcon(QStringLiteral(":/Icons/check.png"));
    for (GlobalElements::Iconbutton *button : {m_cancel, m_done})
        button->setFixedSize(88, 64);

    auto *entry = new QHBoxLayout;
    entry->setSpacing(8);
    entry->addWidget(m_field, 1);
    // The keyboard of the program names has neither: job codes often do.
    for (const QString &key : {QStringLiteral("/"), QStringLiteral(".")}) {
        auto *button = new QPushButton(key, this);
        button->setObjectName(key == QLatin1String("/") ? QStringLiteral("pushButton_jobSlash")
                                                        : QStringLiteral("pushButton_jobDot"));
        button->setFixedSize(64, 60);
        button->setStyleSheet(QStringLiteral("font-size: 26px;"));
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QPushButton::clicked, m_keyboard, [this, key] { m_keyboard->insertLetter(key); });
        entry->addWidget(button);
    }
    entry->addSpacing(8);
    entry->addWidget(m_cancel);
    entry->addWidget(m_done);

    auto *top = new QVBoxLayout;
    top->setContentsMargins(24, 16, 24, 8);
    top->setSpacing(8);
    top->addWidget(m_title);
    top->addLayout(entry);
    top->addWidget(m_hint);
    top->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(top, 1);
    layout->addWidget(m_keyboard);

    connect(m_keyboard, &GlobalElements::Keyboard::SignalTextChanged, m_code, &JobCode::Set);
    connect(m_keyboard, &GlobalElements::Keyboard::SignalEnter, this, &JobCodeKeyboard::Done);
    connect(m_done, &GlobalElements::Iconbutton::Signal_ButtonClicked, this, &JobCodeKeyboard::Done);
    connect(m_cancel, &GlobalElements::Iconbutton::Signal_ButtonClicked, this, &JobCodeKeyboard::Cancel);
    connect(m_code, &JobCode::Changed, this, &JobCodeKeyboard::Show);
    Show(m_code->Text());
    Retranslate();
    hide();
}

void JobCodeKeyboard::Open()
{
    m_before = m_code->Text();
    // Keys typed from now on go on from the code shown, rather than begin a new one.
    m_code->Set(m_code->Text());
    m_field->end(false);
    setGeometry(m_cover->rect());
    show();
    raise();
}

void JobCodeKeyboard::Done()
{
    if (isHidden())
        return;
    m_code->EndEntry();
    hide();
}

void JobCodeKeyboard::Cancel()
{
    m_code->Set(m_before);
    Done();
}

void JobCodeKeyboard::Show(const QString &text)
{
    if (m_field->text() != text)
        m_field->setText(text);
}

void JobCodeKeyboard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void JobCodeKeyboard::Retranslate()
{
    m_title->setText(tr("Auftrag").toUpper());
    m_hint->setText(tr("Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen").arg(JobCode::maxLength));
}

} // namespace Process
} // namespace ovra
