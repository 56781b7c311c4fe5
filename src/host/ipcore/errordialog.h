#pragma once

#include <QDialog>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)

namespace IPCore
{

// A title sentence over a list of details, which can be selected and copied.
class ErrorDialog : public QDialog
{
    Q_OBJECT

public:
    ErrorDialog(const QString &title, const QStringList &details, QWidget *parent = nullptr);

private:
    void copyAll();

    QString m_title;
    QPlainTextEdit *m_details;
};

} // namespace IPCore
