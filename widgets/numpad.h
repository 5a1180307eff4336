#pragma once

#include "app/pageinterface.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class QLineEdit;

namespace Ui {
class NumPad;
}

namespace ovra {
namespace GlobalElements {

// The PIN pad in front of the service pages. The controller supplies the PIN; the pad only
// compares what was typed against it.
class NumPad : public QWidget
{
    Q_OBJECT

public:
    static constexpr int maxDigits = 8;
    // Dynamic property set on the field while it shows a rejected entry; the style sheet
    // draws it red.
    static const char *const codeStateProperty;

    explicit NumPad(QWidget *parent = nullptr);
    ~NumPad() override;

    // Empties the field, makes it echo dots and directs the keys into it. target is the
    // page reported when the right PIN is entered.
    void Initialize(QLineEdit *field, ovra::GlobalElements::Pageinterface::en_pages target);

    bool HasCode() const { return m_hasCode; }
    bool IsShowingWrong() const;

    // True when typed is a non-empty run of digits whose value is code. Without a code
    // from the controller nothing is correct.
    static bool IsCodeCorrect(const QString &typed, bool hasCode, unsigned int code);

    QSize sizeHint() const override;

public slots:
    void SetCode(unsigned int code);

signals:
    void SignalCorrectCode(ovra::GlobalElements::Pageinterface::en_pages target);
    void SignalWrongCode();

private:
    void OnDigit(const QString &digit);
    void OnClear();
    void OnOk();
    void ShowWrong(bool wrong);

    Ui::NumPad *ui;
    QPointer<QLineEdit> m_field;
    Pageinterface::en_pages m_target = Pageinterface::StartUp;
    unsigned int m_code = 0;
    bool m_hasCode = false;
};

} // namespace GlobalElements
} // namespace ovra
