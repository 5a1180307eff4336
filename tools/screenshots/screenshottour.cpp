#include "tools/screenshots/screenshottour.h"

#include "app/mainwindow.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "popups/popupusb.h"
#include "ui_mainwindow.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPainter>

namespace ovra {
namespace Tools {

using Mainwindow::Page;

namespace {

const char *const pageNames[] = {
    "startup", "devicedata", "selftest", "mainmenu", "favourites", "programoptions", "settings",
    "service", "servicepin", "lists", "myprograms", "fixprograms", "language", "unit", "datetime",
    "devicedata2", "editor", "program", "process", "serviceprograms", "failures", "filteroptions",
    "filtermanufacturer", "filtermaterial", "usb", "changeprogram"};

void settle()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

} // namespace

ScreenshotTour::ScreenshotTour(Mainwindow::MainWindow *window, const QString &folder)
    : m_window(window), m_folder(folder)
{
}

void ScreenshotTour::Feed(const QByteArray &fields)
{
    m_window->GetMessageHandler()->HandleMessage(
        QString::fromLatin1(Communication::Frame::Build(fields)));
    settle();
}

bool ScreenshotTour::Save(const QString &name)
{
    settle();
    const QString path = m_folder + QLatin1Char('/') + name + QStringLiteral(".png");
    if (!m_window->grab().save(path))
        return false;
    m_written << path;
    return true;
}

bool ScreenshotTour::SavePopup(const QString &name, QDialog *popup)
{
    popup->open();
    settle();
    // The popup is its own window: paint it over the page as the user sees it.
    QPixmap picture = m_window->grab();
    {
        QPainter painter(&picture);
        painter.fillRect(picture.rect(), QColor(0, 0, 0, 90));
        const QPoint at = m_window->mapFromGlobal(popup->mapToGlobal(QPoint(0, 0)));
        painter.drawPixmap(at, popup->grab());
    }
    popup->close();
    settle();
    const QString path = m_folder + QLatin1Char('/') + name + QStringLiteral(".png");
    if (!picture.save(path))
        return false;
    m_written << path;
    return true;
}

QStringList ScreenshotTour::Run()
{
    if (!QDir().mkpath(m_folder))
        return {};
    Ui::MainWindow *ui = m_window->GetUi();
    m_window->show();
    settle();
    int n = 0;
    auto numbered = [&n](const QString &name) { return QStringLiteral("%1_%2").arg(n++, 2, 10, QLatin1Char('0')).arg(name); };

    Save(numbered(QStringLiteral("splash")));

    // What the controller says at start-up; commissioning keeps the self-test timer quiet.
    Feed("initialstart");
    Feed("name==Ovra S1$$serialno==S1-2304-0087$$hwver==HX3-C$$swver==3.12.0$$ophours==1234");
    Feed("time==0935$$date==20261122$$temp==295$$lang==deutsch$$unit==c");
    Feed("code==4711");
    Feed("stdoor==pass$$stheater==pass$$stcooling==fail");
    Feed("error==E1234,E201");
    Feed("guistate==26"); // leaves the device data page, which ends commissioning
    Feed("guistate==12");
    Feed("guistate==26");

    for (int page = 0; page <= int(Page::ChangeProg); ++page) {
        if (page == int(Page::DeviceData)) {
            ui->stackedWidget->setCurrentIndex(page); // shown only once at start-up
            ui->label_Name->setText(QStringLiteral("GERÄTEDATEN"));
        } else {
            if (page == int(Page::PlayProg) || page == int(Page::ProcessProg) || page == int(Page::ChangeProg))
                ui->label_Name->setText(QStringLiteral("Zirkon Speed"));
            m_window->Statemachine(static_cast<Page>(page));
        }
        if (page == int(Page::Selftest)) // results arrive after the page is prepared
            Feed("stdoor==pass$$stheater==pass$$stcooling==fail$$st==fail");
        if (page == int(Page::ServicePIN))
            ui->lineEdit_servicePin->setText(QStringLiteral("12"));
        Save(numbered(QString::fromLatin1(pageNames[page])));
    }

    m_window->Statemachine(Page::MainMenu);
    ui->stackedWidget_main->setCurrentIndex(2);
    ui->page_MatChange->setStyleSheet(QStringLiteral("QWidget#page_MatChange { background: url(:/Material/Argon.jpg); }"));
    Save(numbered(QStringLiteral("materialchange")));
    ui->stackedWidget_main->setCurrentIndex(3);
    ui->page_DoorIso->setStyleSheet(QStringLiteral("QWidget#page_DoorIso { background: url(:/Tuerisolation/TuerisoZirkon.jpg); }"));
    Save(numbered(QStringLiteral("doorinsulation")));
    ui->stackedWidget_main->setCurrentIndex(0);

    ui->label_Name->setText(QStringLiteral("Zirkon Speed"));
    m_window->Statemachine(Page::PlayProg);
    for (QDialog *popup : m_window->findChildren<QDialog *>()) {
        if (auto *usb = qobject_cast<Popups::PopupUSB *>(popup)) {
            usb->SetText(QStringLiteral("  Firmware Aktualisierung...\n  Bitte warten..."));
            usb->SlotUpdateProgress(QStringLiteral("37%"));
        }
        const QString name = QString::fromLatin1(popup->metaObject()->className()).section(QStringLiteral("::"), -1).toLower();
        SavePopup(numbered(QStringLiteral("popup_") + name), popup);
    }
    return m_written;
}

} // namespace Tools
} // namespace ovra
