#pragma once

#include "app/pagetables.h"

#include <QString>
#include <QWidget>

namespace ovra {
namespace Mainwindow {
class MainWindow;
}
} // namespace ovra

// The window as a user sees and touches it, by the object names of its form: tests say
// Tap("widget_fwdLang") and Text("label_Name") instead of reaching into the generated form.
class PanelView
{
public:
    explicit PanelView(ovra::Mainwindow::MainWindow *window = nullptr) : m_view(window) {}

    // Presses the touch button inside a widget-kit widget (or a button itself); fails the
    // test when there is no such widget.
    void Tap(const QString &objectName) const;
    static void Click(QWidget *widget);
    // Keys as a barcode scanner types them, like a keyboard, then Enter; sent to whatever has
    // the keyboard focus, the window itself when nothing has.
    void Scan(const QString &keys) const;

    // What a widget shows: the caption of a kit widget, a label's or button's text.
    QString Text(const QString &objectName) const;
    QString Icon(const QString &objectName) const; // a kit widget's icon path
    QString Style(const QString &objectName) const;
    // Shown on its own page, whether that page is the current one or not.
    bool Shown(const QString &objectName) const;
    bool Enabled(const QString &objectName) const;
    bool Checked(const QString &objectName) const;

    ovra::Mainwindow::Page CurrentPage() const;
    int ShownPageIndex() const; // the inner stack's index, which may lag a bad page number
    // A running program opened for a change keeps the editor on screen, whatever page is reported.
    bool EditorHeld() const;
    // The outer stack: the pages, the splash, the material change or the door insulation.
    enum class Screen { Pages = 0, Splash = 1, MaterialChange = 2, DoorInsulation = 3 };
    Screen CurrentScreen() const;
    bool TouchEnabled() const;

    QWidget *Widget(const QString &objectName) const; // nullptr when there is none
    template <typename T>
    T *Find(const QString &objectName) const;

protected:
    void SetWindow(ovra::Mainwindow::MainWindow *window) { m_view = window; }

private:
    ovra::Mainwindow::MainWindow *m_view;
};

template <typename T>
T *PanelView::Find(const QString &objectName) const
{
    return qobject_cast<T *>(Widget(objectName));
}
