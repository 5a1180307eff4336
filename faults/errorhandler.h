#pragma once

#include <QObject>
#include <QStringList>

namespace ovra {
namespace GlobalElements {

// The controller's failure codes as the panel lists them, newest first. A code's meaning is
// the controller's; its length is its severity (3 severe, 4 medium, 5 information).
class ErrorHandler : public QObject
{
    Q_OBJECT

public:
    explicit ErrorHandler(QObject *parent = nullptr);

    void AddError(const QString &code);
    void ResetError(const QString &code);
    // Keeps only severe codes: for a user deletion that must not hide them.
    void DeleteErrorList();
    void DeleteErrorListByService();
    void DeleteProcessErrorList();

    // Every code followed by "\n", newest first; empty for an empty list.
    QString GetErrorList() const;
    QString GetProcessErrorList() const;

signals:
    void SignalErrorListChanged();

private:
    QStringList m_errorList;
    QStringList m_processErrorList;
};

} // namespace GlobalElements
} // namespace ovra
