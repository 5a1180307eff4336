#pragma once

#include "app/pageinterface.h"
#include "programs/program.h"

#include <QString>
#include <QWidget>

class QPushButton;

namespace Ui {
class ProgramButton;
}

namespace ovra {
namespace GlobalElements {

// One entry of a program list: the program's name as a wide button and, at its right, a
// star that marks the program as a favourite. The program record belongs to the list.
class ProgramButton : public QWidget
{
    Q_OBJECT

public:
    explicit ProgramButton(QWidget *parent = nullptr);
    ~ProgramButton() override;

    // Also shows the program's name and favourite state; nullptr detaches the entry.
    void SetButtonProgram(ovra::GlobalElements::Program *program);
    ovra::GlobalElements::Program *GetButtonProgram() const { return m_program; }

    // Shown literally, shortened with "…" when it does not fit.
    void SetText(const QString &text);
    QString GetText() const { return m_caption; }

    void SetNextPageIndex(ovra::GlobalElements::Pageinterface::en_pages page);
    ovra::GlobalElements::Pageinterface::en_pages GetNextPageIndex() const { return m_nextPage; }

    void SetCheckable(bool checkable);
    void SetChecked(bool checked);
    bool IsChecked() const;

    // Shows the state only: the user did not touch the star, so nothing is reported.
    void SetFavChecked(bool checked);
    bool IsFavChecked() const;

    QPushButton *GetPushButtonObject() const;
    QPushButton *GetFavButtonObject() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void SignalButtonClicked(ovra::GlobalElements::Pageinterface::en_pages page);
    void SignalProgButtonClicked(ovra::GlobalElements::Program *program);
    void SignalSetProgToFav(bool fav, ovra::GlobalElements::Program *program);

public slots:
    void on_pushButton_title_clicked();
    void on_pushButton_fav_toggled(bool checked);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ShowFavState(bool checked);
    void RefitCaption();

    Ui::ProgramButton *ui;
    Program *m_program = nullptr;
    QString m_caption;
    Pageinterface::en_pages m_nextPage = Pageinterface::StartUp;
};

} // namespace GlobalElements
} // namespace ovra
