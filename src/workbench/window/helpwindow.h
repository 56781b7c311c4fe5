#pragma once

#include <QTextBrowser>

namespace Workbench
{

// Shows a document that was installed with the program, Markdown or HTML, with its pictures and its
// links to headings and to documents beside it. Nothing is fetched from elsewhere.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &name) override;
    void setSource(const QUrl &name) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    // Called however a document was come by: a link, a way back, a reload. The text is put in as
    // one change: otherwise the document, which is on display, is laid out anew for each cell of a
    // table, in a time that grows with the square of its length (minutes for a long one).
    void finishSource(const QUrl &url);
    bool goToHeading(const QString &name);
    void colourLinks();

    QString m_loaded; // not shown yet
    int m_pictureWidth = 0; // that pictures were made for, in pixels
};

// A window for one document at a time. Escape closes it.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    // With a modal dialog as parent it can be used while that dialog waits.
    explicit HelpWindow(QWidget *parent = nullptr);

    // Brings the window to the front. False if the file cannot be read.
    bool showDocument(const QString &path, const QString &title);
    HelpBrowser *browser() const { return m_browser; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    HelpBrowser *m_browser;
};

} // namespace Workbench
