#include "widgets/programbutton.h"

#include "ui_programbutton.h"

#include "widgets/buttonkit.h"
#include "widgets/captionfit.h"

#include <QFile>
#include <QIcon>
#include <QSignalBlocker>

namespace ovra {
namespace GlobalElements {

namespace {
const char *const favOnIcon = ":/Icons/favorite_on.png";
const char *const favOffIcon = ":/Icons/favorite_off.png";
} // namespace

ProgramButton::ProgramButton(QWidget *parent) : QWidget(parent), ui(new Ui::ProgramButton)
{
    ui->setupUi(this);
    ui->pushButton_title->installEventFilter(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    ShowFavState(false);
}

ProgramButton::~ProgramButton()
{
    delete ui;
}

void ProgramButton::SetButtonProgram(Program *program)
{
    m_program = program;
    if (program) {
        SetText(program->GetName());
        SetFavChecked(program->IsFav());
    }
}

void ProgramButton::SetText(const QString &text)
{
    m_caption = text;
    // Fitting needs the final size and style; a button not yet shown is fitted when it is
    // polished and laid out, which keeps a list of hundreds quick to build.
    if (ui->pushButton_title->testAttribute(Qt::WA_WState_Polished))
        RefitCaption();
    else
        ui->pushButton_title->setText(CaptionFit::Escape(m_caption));
}

void ProgramButton::SetNextPageIndex(Pageinterface::en_pages page)
{
    m_nextPage = page;
}

void ProgramButton::SetCheckable(bool checkable)
{
    ui->pushButton_title->setCheckable(checkable);
}

void ProgramButton::SetChecked(bool checked)
{
    ui->pushButton_title->setChecked(checked);
}

bool ProgramButton::IsChecked() const
{
    return ui->pushButton_title->isChecked();
}

void ProgramButton::SetFavChecked(bool checked)
{
    const QSignalBlocker blocker(ui->pushButton_fav);
    ui->pushButton_fav->setChecked(checked);
    ShowFavState(checked);
}

bool ProgramButton::IsFavChecked() const
{
    return ui->pushButton_fav->isChecked();
}

QPushButton *ProgramButton::GetPushButtonObject() const
{
    return ui->pushButton_title;
}

QPushButton *ProgramButton::GetFavButtonObject() const
{
    return ui->pushButton_fav;
}

QSize ProgramButton::sizeHint() const
{
    return QSize(720, 64);
}

QSize ProgramButton::minimumSizeHint() const
{
    return QSize(200, 64);
}

void ProgramButton::on_pushButton_title_clicked()
{
    // The program goes first, so the list knows the selection before the page changes.
    emit SignalProgButtonClicked(m_program);
    emit SignalButtonClicked(m_nextPage);
}

void ProgramButton::on_pushButton_fav_toggled(bool checked)
{
    ShowFavState(checked);
    emit SignalSetProgToFav(checked, m_program);
}

bool ProgramButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->pushButton_title && ButtonKit::NeedsRefit(event))
        RefitCaption();
    return QWidget::eventFilter(watched, event);
}

void ProgramButton::ShowFavState(bool checked)
{
    // Decoded once for all rows of all lists.
    static const QIcon onIcon(QString::fromLatin1(favOnIcon));
    static const QIcon offIcon(QString::fromLatin1(favOffIcon));
    static const bool haveIcons = QFile::exists(QString::fromLatin1(favOnIcon));
    if (haveIcons) {
        ui->pushButton_fav->setIcon(checked ? onIcon : offIcon);
        ui->pushButton_fav->setText(QString());
    } else {
        // Without the star images (e.g. a build without resources) a star glyph still
        // tells the two states apart.
        ui->pushButton_fav->setIcon(QIcon());
        ui->pushButton_fav->setText(checked ? QStringLiteral("\u2605") : QStringLiteral("\u2606"));
    }
}

void ProgramButton::RefitCaption()
{
    QPushButton *title = ui->pushButton_title;
    const QRect room = ButtonKit::CaptionRoom(title);
    // A list row has room for one line only; names are shortened, never wrapped.
    bool elided = false;
    // A program name is the user's text: an "&" in it is a literal one, not a mnemonic.
    const QString fitted =
        CaptionFit::Fit(CaptionFit::Escape(m_caption), title->fontMetrics(), room.width(), 1, &elided);
    if (title->text() != fitted)
        title->setText(fitted);
    title->setToolTip(elided ? m_caption : QString());
}

} // namespace GlobalElements
} // namespace ovra
