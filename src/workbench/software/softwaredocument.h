#pragma once

#include "softwareset.h"

#include <QTextDocument>

namespace Workbench
{

class VectorPictures;

// An HTML file of a set, or a picture of it, with the pictures that the set holds and drawings that
// stand in the file itself. Nothing else is read: no file, no address, no style sheet.
class SoftwareDocument : public QTextDocument
{
    Q_OBJECT

public:
    // `path` is the file's in the set.
    SoftwareDocument(const QVector<SoftwareFile> &files, const QString &path,
                     QObject *parent = nullptr);

    // Why the file is not laid out, as a sentence; empty if it is.
    const QString &mistake() const { return m_mistake; }
    const QString &path() const { return m_path; }
    // The document's own title, or the name of its file.
    QString title() const;
    VectorPictures *pictures() const { return m_pictures; }
    // Whether lines end between words alone, as they do at first; a wide table is wider then than
    // the page.
    void keepWords(bool keep);
    // The path in the set of what a link or a picture of the document names; empty if it names
    // nothing there.
    QString resolved(const QString &name) const;

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    QByteArray bytesOf(const QString &name) const;

    QVector<SoftwareFile> m_files;
    QString m_path;
    QString m_mistake;
    VectorPictures *m_pictures;
};

} // namespace Workbench
