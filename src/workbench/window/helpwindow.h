#pragma once

#include <QTextBrowser>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QTabWidget)
QT_FORWARD_DECLARE_CLASS(QTreeWidget)
QT_FORWARD_DECLARE_CLASS(QTreeWidgetItem)

namespace Workbench
{

// Shows a document that was installed with the program, Markdown or HTML, with its pictures and its
// links to headings and to documents beside it. Nothing is fetched from elsewhere.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    struct Heading {
        int level; // from 1
        QString text;
        int position; // in the document
    };

    explicit HelpBrowser(QWidget *parent = nullptr);

    // Of the document that is shown.
    QVector<Heading> headings() const;
    // Shows a place at the top, `length` characters of it selected.
    void goTo(int position, int length = 0);
    // Steps of the size of the text; 0: as it was at first.
    void zoomBy(int steps);
    int zoom() const { return m_zoom; }

    QVariant loadResource(int type, const QUrl &name) override;
    void setSource(const QUrl &name) override;

Q_SIGNALS:
    void zoomed(int zoom);
    // Another document is shown, or the same in another form: places are no longer where they were.
    void documentShown();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    // Called however a document was come by: a link, a way back, a reload. The text is put in as
    // one change: otherwise the document, which is on display, is laid out anew for each cell of a
    // table, in a time that grows with the square of its length (minutes for a long one).
    void finishSource(const QUrl &url);
    bool goToHeading(const QString &name);
    void colourLinks();

    QString m_loaded;       // not shown yet
    int m_pictureWidth = 0; // that pictures were made for, in pixels
    int m_zoom = 0;
};

// A window for one document at a time, with its headings and a search in its text beside it.
// Escape leads from these to the text, and from there closes the window.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    // With a modal dialog as parent it can be used while that dialog waits.
    explicit HelpWindow(QWidget *parent = nullptr);

    // Brings the window to the front. False if the file cannot be read.
    // `heading`: as links name it; empty: the place where the document was left, or its begin.
    bool showDocument(const QString &path, const QString &title, const QString &heading = {});
    HelpBrowser *browser() const { return m_browser; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildSide();
    void fillContents();
    void followScrolling();
    void search();
    void open(const QTreeWidgetItem *item);

    HelpBrowser *m_browser;
    QTabWidget *m_side;
    QTreeWidget *m_contents;
    QLineEdit *m_wanted;
    QTreeWidget *m_results;
    QLabel *m_found;
};

} // namespace Workbench
