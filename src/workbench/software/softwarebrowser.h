#pragma once

#include "softwareset.h"

#include <QTextBrowser>

#include <memory>

namespace Workbench
{

class SoftwareDocument;

// Shows an HTML file or a picture of a set, on white paper whatever the desktop's colours are.
// Links lead to places in the document and to other files of the set, and nowhere else.
class SoftwareBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit SoftwareBrowser(QWidget *parent = nullptr);
    ~SoftwareBrowser() override;

    // False if the file cannot be laid out, and a sentence in `*error` then.
    bool showFile(const QVector<SoftwareFile> &files, const QString &path, QString *error);
    // Scrolls to a heading of the document and marks it; the ones before it are those above it,
    // each below the one before. False if there is none.
    bool goTo(const QStringList &headings);
    void forget();

Q_SIGNALS:
    // A link leads to this file of the set.
    void fileRequested(const QString &path);

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    void follow(const QUrl &link);

    std::unique_ptr<QTextDocument> m_empty;
    std::unique_ptr<SoftwareDocument> m_document;
};

} // namespace Workbench
