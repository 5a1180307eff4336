#include "popups/popuplicense.h"

#include "popups/licensetext.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QScroller>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace Popups {

PopupLicense::PopupLicense(QWidget *parent)
    : PopupBase(parent), m_text(new QPlainTextEdit), m_ok(AddButton(QStringLiteral("pushButton_OK"), Verb::Action))
{
    resize(680, 440);
    SetTitleIcon(QStringLiteral(":/Icons/license.png"));
    m_text->setObjectName(QStringLiteral("plainTextEdit_License"));
    m_text->setReadOnly(true);
    m_text->setFocusPolicy(Qt::NoFocus);
    Body()->addWidget(m_text, 1);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    // A finger drags the text as well.
    QScroller::grabGesture(m_text->viewport(), QScroller::LeftMouseButtonGesture);
    Translate();
}

PopupLicense::~PopupLicense()
{
    // Leaves no flick gesture registered for a widget that is going away.
    QScroller::ungrabGesture(m_text->viewport());
}

void PopupLicense::Translate()
{
    SetTitle(tr("Lizenz"));
    m_ok->setText(tr("OK"));
    m_text->setPlainText(LicenseNoticeText(QString::fromLatin1(qVersion())));
}

QString PopupLicense::GetLicenseText() const
{
    return m_text->toPlainText();
}

} // namespace Popups
} // namespace ovra
